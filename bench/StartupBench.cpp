// From the start of the process to its first window on the screen, and the memory that the process then
// holds, beside the desktop calculators that people would open instead. The programs take turns, so that a
// busy moment of the machine hits all of them. Fails unless ours is the soonest, and below 45 MB.

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int rounds = 15;
constexpr long residentLimitKiB = 45'000'000 / 1024;
constexpr milliseconds windowTimeout{20'000};

/// A child process; ended and awaited when it goes.
class Process {
public:
    /// Starts the command, looked up in PATH. Throws std::runtime_error when it cannot be started.
    explicit Process(std::vector<std::string> command) {
        std::vector<char*> arguments;
        for (std::string& argument : command) {
            arguments.push_back(argument.data());
        }
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", 1, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", 1, 0);
        const int error = posix_spawnp(&id_, arguments[0], &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (error != 0) {
            throw std::runtime_error("cannot start " + command[0]);
        }
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        kill(id_, SIGTERM);
        for (int i = 0; i < 200; ++i) {
            if (waitpid(id_, nullptr, WNOHANG) == id_) {
                return;
            }
            std::this_thread::sleep_for(milliseconds{10});
        }
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }

    /// Resident memory now, in KiB; 0 when the process has ended.
    [[nodiscard]] long ResidentKiB() const {
        std::ifstream status("/proc/" + std::to_string(id_) + "/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmRSS:")) {
                return std::stol(line.substr(6));
            }
        }
        return 0;
    }

private:
    pid_t id_ = 0;
};

/// Reads one line of what a server says about itself on a descriptor, once it is ready.
class ReadyLine {
public:
    ReadyLine() {
        if (pipe(ends_) != 0) {
            throw std::runtime_error("cannot make a pipe");
        }
    }
    ReadyLine(const ReadyLine&) = delete;
    ReadyLine& operator=(const ReadyLine&) = delete;
    ~ReadyLine() {
        close(ends_[0]);
        close(ends_[1]);
    }

    /// The descriptor that the server is to write to.
    [[nodiscard]] std::string Descriptor() const { return std::to_string(ends_[1]); }

    /// The line without its end. Throws std::runtime_error after ten seconds.
    [[nodiscard]] std::string Read() const {
        std::string line;
        pollfd waiting{ends_[0], POLLIN, 0};
        while (poll(&waiting, 1, 10'000) == 1) {
            char c = 0;
            if (read(ends_[0], &c, 1) != 1 || c == '\n') {
                return line;
            }
            line += c;
        }
        throw std::runtime_error("a server did not become ready");
    }

private:
    int ends_[2] = {-1, -1};
};

/// A virtual screen and a session bus of our own, without a window manager: nothing but the program itself
/// stands between its request and the mapped window. Knows nothing of what is measured.
class Screen {
public:
    Screen()
        : x_({"Xvfb", "-displayfd", displayLine_.Descriptor(), "-screen", "0", "1280x1024x24", "-nolisten",
              "tcp", "-noreset"}),
          bus_({"dbus-daemon", "--session", "--nofork", "--nopidfile",
              "--print-address=" + busLine_.Descriptor()}) {
        setenv("DISPLAY", (":" + displayLine_.Read()).c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", busLine_.Read().c_str(), 1);
        display_ = XOpenDisplay(nullptr);
        if (display_ == nullptr) {
            throw std::runtime_error("cannot open the virtual screen");
        }
        // A window may be gone again before it is looked at.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen() {
        if (display_ != nullptr) {
            XCloseDisplay(display_);
        }
    }

    /// Forgets what happened so far.
    void Drain() { XSync(display_, True); }

    /// Waits until a window for the user is mapped: one with a class, not a menu or a helper of a few pixels.
    /// Gives the moment, or nothing when the time is over.
    [[nodiscard]] std::optional<Clock::time_point> WaitForWindow(milliseconds timeout) {
        const Clock::time_point deadline = Clock::now() + timeout;
        pollfd waiting{ConnectionNumber(display_), POLLIN, 0};
        while (Clock::now() < deadline) {
            while (XPending(display_) > 0) {
                XEvent event;
                XNextEvent(display_, &event);
                const Clock::time_point now = Clock::now();
                if (event.type == MapNotify && !event.xmap.override_redirect &&
                    IsForUser(event.xmap.window)) {
                    return now;
                }
            }
            poll(&waiting, 1, 50);
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] bool IsForUser(Window window) const {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display_, window, &attributes) == 0 || attributes.width < 50) {
            return false;
        }
        XClassHint hint{};
        if (XGetClassHint(display_, window, &hint) == 0) {
            return false;
        }
        XFree(hint.res_name);
        XFree(hint.res_class);
        return true;
    }

    ReadyLine displayLine_;
    ReadyLine busLine_;
    Process x_;
    Process bus_;
    Display* display_ = nullptr;
};

/// What one start of a program cost.
struct Start {
    double milliseconds;
    long residentKiB;
};

/// Waits until the memory has not grown for half a second, so that what is still being loaded counts too.
long SettledResidentKiB(const Process& process) {
    long last = 0;
    int quietRounds = 0;
    for (int i = 0; i < 60 && quietRounds < 10; ++i) {
        std::this_thread::sleep_for(milliseconds{50});
        const long now = process.ResidentKiB();
        quietRounds = now > last ? 0 : quietRounds + 1;
        last = std::max(last, now);
    }
    return last;
}

/// Starts the program once. Throws std::runtime_error when it shows no window.
Start MeasureStart(Screen& screen, const std::string& program) {
    screen.Drain();
    const Clock::time_point started = Clock::now();
    const Process process({program});
    const std::optional<Clock::time_point> mapped = screen.WaitForWindow(windowTimeout);
    if (!mapped) {
        throw std::runtime_error(program + " showed no window");
    }
    return {
        std::chrono::duration<double, std::milli>(*mapped - started).count(), SettledResidentKiB(process)};
}

template <typename Value>
Value Median(std::vector<Value> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The medians of a program's starts.
Start Medians(const std::vector<Start>& starts) {
    std::vector<double> times;
    std::vector<long> sizes;
    for (const Start& start : starts) {
        times.push_back(start.milliseconds);
        sizes.push_back(start.residentKiB);
    }
    return {Median(times), Median(sizes)};
}

/// A home of its own for all the programs: the user's settings slow nobody down and stay as they are.
void MoveHome(const std::filesystem::path& home) {
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", home.c_str(), 1);
    setenv("LANG", "C.UTF-8", 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    // Spares the GTK program the start of the accessibility bus.
    setenv("NO_AT_BRIDGE", "1", 1);
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "WAYLAND_DISPLAY"}) {
        unsetenv(name);
    }
}

/// Measures all programs in turns and prints the medians; true when the first one is the best and small
/// enough.
bool Compare(const std::vector<std::string>& programs) {
    Screen screen;
    std::map<std::string, std::vector<Start>> starts;
    for (int round = 0; round <= rounds; ++round) {
        for (const std::string& program : programs) {
            const Start start = MeasureStart(screen, program);
            // The first round fills the caches and writes first settings.
            if (round > 0) {
                starts[program].push_back(start);
            }
        }
    }
    std::printf("medians of %d starts in turns\n%-14s %14s %14s\n", rounds, "", "window, ms", "resident, MB");
    const Start ours = Medians(starts[programs.front()]);
    bool passed = ours.residentKiB < residentLimitKiB;
    for (const std::string& program : programs) {
        const Start median = Medians(starts[program]);
        std::printf("%-14s %14.1f %14.1f\n", std::filesystem::path(program).filename().c_str(),
            median.milliseconds, static_cast<double>(median.residentKiB) * 1024 / 1e6);
        passed = passed && (program == programs.front() || ours.milliseconds < median.milliseconds);
    }
    return passed;
}

} // namespace

int main(int argc, char** argv) {
    const std::string ours = argc > 1 ? argv[1] : TESSAROLYNE_RELEASE_PROGRAM;
    char home[] = "/tmp/StartupBench-XXXXXX";
    if (mkdtemp(home) == nullptr) {
        std::perror("mkdtemp");
        return 2;
    }
    MoveHome(home);
    int result = 2;
    try {
        result = Compare({ours, "speedcrunch", "kcalc", "galculator"}) ? 0 : 1;
        std::puts(result == 0 ? "passed: the soonest, and below 45 MB"
                              : "FAILED: not the soonest, or 45 MB and more");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    std::error_code ignored;
    std::filesystem::remove_all(home, ignored);
    return result;
}
