#pragma once

#include "platform/Sound.h"

#include <QString>

#include <optional>

namespace tessarolyne {

// The beep of the desktop, and sound files played by whichever player of the sound system is installed. A
// machine without one stays silent; nothing waits for it.
class QtSounds final : public Sounds {
public:
    void Beep() override;
    std::unique_ptr<Playing> Play(const std::string& file) override;

private:
    const QString& Player();

    std::optional<QString> player_; // looked for at the first sound
};

} // namespace tessarolyne
