#pragma once

#include "platform/FolderItem.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tessarolyne {

// A date and time of the user's local calendar, to the second.
struct Date {
    int year = 1904;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    // The date without the time.
    std::chrono::year_month_day CalendarDay() const;

    // "2026-11-22 21:05:00".
    std::string SQLDateTime() const;
    // Reads what SQLDateTime writes; nothing for any other text, a day that the calendar doesn't have
    // included.
    static std::optional<Date> FromSQLDateTime(std::string_view text);

    bool operator==(const Date&) const = default;
};

// What time it is. Safe to ask from any thread.
class Clock {
public:
    virtual ~Clock() = default;

    // A steady count of milliseconds from an arbitrary start.
    virtual std::int64_t Milliseconds() const = 0;

    // The user's local calendar and time of day.
    virtual Date Now() const = 0;

    // The same steady count in sixtieths of a second.
    std::int64_t Ticks() const { return Milliseconds() * 60 / 1000; }
};

// Says to a screen reader what it would not come upon by itself: a result that has come, a copy, a refusal.
// Nothing is seen of it, and nothing happens where no screen reader is. The program announces by way of
// Fncts::Announce, which knows whether the user wants it.
class Announcer {
public:
    virtual ~Announcer() = default;
    // Has `text` spoken once, soon, and returns at once. A later text takes the place of an earlier one.
    virtual void Say(const std::string& text) = 0;
};

// The clipboard, the modifier keys, and what opens addresses and files: the user's desktop.
class Desktop {
public:
    virtual ~Desktop() = default;

    virtual void SetClipboardText(const std::string& text) = 0;

    // Whether the key is down at this moment. Option is Alt; where Alt-click belongs to the window manager,
    // Ctrl serves as well.
    virtual bool OptionKeyIsDown() const = 0;
    virtual bool ShiftKeyIsDown() const = 0;

    // Hands an address to the desktop without waiting. Where nothing takes it, `refused` is called on the
    // main thread, at once or as soon as that is known.
    virtual void OpenAddress(const std::string& address, std::function<void()> refused) = 0;
    // The same for a file. False if nothing takes it.
    virtual bool OpenFile(const FolderItem& item) = 0;

    // Has the desktop point at the program, in the taskbar or the dock, until the user comes back to it.
    // Nothing if the user is there.
    virtual void AskForAttention() = 0;
};

class Window;

// What the buttons of a message say when the pointer rests on them; empty for nothing.
struct DialogHelpTags {
    std::string action = {};
    std::string cancel = {};
    std::string alternate = {};
};

// What a message dialog shows. Empty captions mean no such button, but for the action button, which then has
// the desktop's own caption. Texts are plain text, whatever they hold; carriage returns are line breaks.
struct MessageDialog {
    std::string message;
    std::string explanation;
    std::string actionCaption;
    std::string cancelCaption;
    std::string alternateCaption;
    DialogHelpTags helpTags;
    int icon = 0; // 0 note, 1 caution
    Window* sheetOf = nullptr;
};

enum class DialogButton { None, Action, Cancel, Alternate };

// A chooser for a file to open, or to save under a suggested name.
struct FileDialog {
    std::string prompt;
    std::string filterName;      // "text"
    std::string filterExtension; // ".txt"
    std::optional<FolderItem> initialFolder;
    std::string suggestedName;
    bool toSave = false;
    Window* sheetOf = nullptr;
};

// The desktop's dialogs. Each call returns when the user has answered or the program quits; the latter counts
// as no answer.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // The button that was pressed, None without an answer.
    virtual DialogButton Ask(const MessageDialog& dialog) = 0;
    // One text and one button to put it away.
    virtual void Tell(const std::string& text) = 0;
    // The chosen item, nil when the user cancels.
    virtual std::optional<FolderItem> Choose(const FileDialog& dialog) = 0;
};

// How much memory this process may still take. For what grows by the gigabyte and wants to end in order.
class MemoryLimits {
public:
    virtual ~MemoryLimits() = default;

    // Bytes that could be allocated and used now without swapping or hitting a limit; an estimate. 0 means
    // none.
    virtual std::uint64_t AvailableBytes() const = 0;
};

// The machine's loudspeaker.
class Sounds {
public:
    virtual ~Sounds() = default;
    virtual void Beep() = 0;
    // Starts the sound file of that name among the program's resources and returns at once, with what tells
    // whether it can still be heard: never on a machine that can't play it.
    virtual std::function<bool()> Play(const std::string& file) = 0;
};

// One sound resource, by its file's name. A copy is for hearing the same sound twice at once.
class Sound {
public:
    explicit Sound(std::string file) : file_(std::move(file)) {}

    void Play(Sounds& sounds) { isPlaying_ = sounds.Play(file_); }
    bool IsPlaying() const { return isPlaying_ && isPlaying_(); }

private:
    std::string file_;
    std::function<bool()> isPlaying_;
};

// The size of a screen, in points.
struct ScreenSize {
    int width = 0;
    int height = 0;
};

// Where a window stands, in points from the top left of the first screen.
struct WindowPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Where windows are seen: draws a window that is shown for the first time and keeps the drawing in step with
// the model until the window closes.
class Stage {
public:
    virtual ~Stage() = default;
    virtual void Present(Window& window) = 0;
    // The first screen.
    virtual ScreenSize Screen() const = 0;
    // Whether the place lies whole on a screen other than the first.
    virtual bool IsOnOtherScreen(const WindowPlace& place) const = 0;
};

class EventLoop;
class HttpService;

// All that the world answers, handed in at the start: the real machine and desktop, or a test's.
struct Services {
    Clock& clock;
    EventLoop& loop;
    Stage& stage;
    Dialogs& dialogs;
    Desktop& desktop;
    Sounds& sounds;
    HttpService& http;
    FileSystem& files;
    MemoryLimits& memory;
    Announcer& announcer;
};

} // namespace tessarolyne
