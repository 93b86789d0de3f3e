#pragma once

namespace tessarolyne {

class Announcer;
class Clock;
class Desktop;
class Dialogs;
class EventLoop;
class FileSystem;
class HttpService;
class MemoryLimits;
class Sounds;
class Stage;

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
