#include "desktop/QtSounds.h"

#include "desktop/Resources.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

#include <csignal>
#include <sys/types.h>

namespace tessarolyne {

namespace {

// Of PipeWire, PulseAudio, ALSA and macOS.
constexpr const char* players[] = {"pw-play", "paplay", "aplay", "afplay"};

class PlayingFile final : public Playing {
public:
    explicit PlayingFile(qint64 player) : player_(player) { since_.start(); }
    bool IsPlaying() const override {
        return player_ != 0 && since_.elapsed() < longest && ::kill(static_cast<pid_t>(player_), 0) == 0;
    }

private:
    // In milliseconds: more than any of the program's sounds, so that a player that hangs makes nobody wait
    // for ever.
    static constexpr qint64 longest = 10'000;

    const qint64 player_; // its process; 0 is none
    QElapsedTimer since_;
};

// Gives the player's process, 0 if it didn't start.
qint64 Start(const QString& player, const QString& path) {
    QProcess process;
    process.setProgram(player);
    process.setArguments({path});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 id = 0;
    return process.startDetached(&id) ? id : 0;
}

} // namespace

void QtSounds::Beep() {
    QApplication::beep();
}

std::unique_ptr<Playing> QtSounds::Play(const std::string& file) {
    const QString path = ResourcePath("sounds/" + file);
    const bool canPlay = !path.isEmpty() && !Player().isEmpty();
    return std::make_unique<PlayingFile>(canPlay ? Start(Player(), path) : 0);
}

const QString& QtSounds::Player() {
    if (!player_) {
        player_.emplace();
        for (const char* player : players) {
            *player_ = QStandardPaths::findExecutable(QLatin1String(player));
            if (!player_->isEmpty()) {
                break;
            }
        }
    }
    return *player_;
}

} // namespace tessarolyne
