#pragma once

#include <memory>
#include <string>
#include <utility>

namespace tessarolyne {

// A sound that was started. It goes on when this handle is dropped.
class Playing {
public:
    virtual ~Playing() = default;
    // False on a machine that can't play it.
    virtual bool IsPlaying() const = 0;
};

// The machine's loudspeaker.
class Sounds {
public:
    virtual ~Sounds() = default;
    virtual void Beep() = 0;
    // Starts the sound file of that name among the program's resources; returns at once.
    virtual std::unique_ptr<Playing> Play(const std::string& file) = 0;
};

// One sound resource, by its file's name.
class Sound {
public:
    explicit Sound(std::string file) : file_(std::move(file)) {}

    void Play(Sounds& sounds) { playing_ = sounds.Play(file_); }
    bool IsPlaying() const { return playing_ && playing_->IsPlaying(); }
    // The same sound once more, so that both can be heard at once.
    Sound Clone() const { return Sound(file_); }

private:
    std::string file_;
    std::unique_ptr<Playing> playing_;
};

} // namespace tessarolyne
