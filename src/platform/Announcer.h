#pragma once

#include <string>

namespace tessarolyne {

// Says to a screen reader what it would not come upon by itself: a result that has come, a copy, a refusal.
// Nothing is seen of it, and nothing happens where no screen reader is. The program announces by way of
// Fncts::Announce, which knows whether the user wants it.
class Announcer {
public:
    virtual ~Announcer() = default;
    // Has `text` spoken once, soon, and returns at once. A later text takes the place of an earlier one.
    virtual void Say(const std::string& text) = 0;
};

} // namespace tessarolyne
