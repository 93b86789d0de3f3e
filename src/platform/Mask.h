#pragma once

#include <cstddef>
#include <string_view>

namespace tessarolyne {

// What a text field lets its user write: up to so many digits, with a point and up to so many digits behind
// it, as in "999999999999.99" or "999". It judges insertions only: deleting is always allowed, and texts that
// the program sets don't come here. It isn't the mask by which numbers are shown (see Format).
class Mask {
public:
    // Each "9" is one digit that may stand there, "." the point. An empty mask, or one with any other
    // character, lets everything through.
    explicit Mask(std::string_view mask = {});

    // Whether the text is what the user may have written so far; a message isn't. A number shown with blanks
    // (U+0020) is judged without them; beginnings of numbers, such as "." and "12.", fit.
    bool Holds(std::string_view text) const;
    // How many digits may stand before and behind the point.
    std::size_t WholeDigits() const { return wholeDigits_; }
    std::size_t Decimals() const { return decimals_; }

private:
    bool Fits(std::string_view text) const;

    bool filters_ = false;
    bool point_ = false;
    std::size_t wholeDigits_ = 0;
    std::size_t decimals_ = 0;
};

} // namespace tessarolyne
