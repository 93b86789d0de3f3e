#include "desktop/QtSounds.h"

#include "desktop/Resources.h"
#include "desktop/WavLength.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

namespace tessarolyne {

namespace {

// Of PipeWire, PulseAudio, ALSA and macOS.
constexpr const char* players[] = {"pw-play", "paplay", "aplay", "afplay"};

class PlayingFile final : public Playing {
public:
    explicit PlayingFile(int milliseconds) : milliseconds_(milliseconds) { since_.start(); }
    bool IsPlaying() const override { return since_.elapsed() < milliseconds_; }

private:
    const int milliseconds_;
    QElapsedTimer since_;
};

bool Start(const QString& player, const QString& path) {
    QProcess process;
    process.setProgram(player);
    process.setArguments({path});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

void QtSounds::Beep() {
    QApplication::beep();
}

std::unique_ptr<Playing> QtSounds::Play(const std::string& file) {
    const QString path = ResourcePath("sounds/" + file);
    const bool started = !path.isEmpty() && !Player().isEmpty() && Start(Player(), path);
    return std::make_unique<PlayingFile>(started ? WavMilliseconds(path) : 0);
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
