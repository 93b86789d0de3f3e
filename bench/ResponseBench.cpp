// How long the main thread keeps its events waiting while a hard number is typed and while a thread computes,
// and how long a calculation takes to stop: the program with its real windows on Qt's offscreen platform.
// Beside it, the same program while nothing happens. Ends with 1 when a bar is missed.

#include "app/ProgramRun.h"
#include "conversion/WinMain.h"
#include "desktop/QtApplication.h"
#include "desktop/QtServices.h"
#include "desktop/Resources.h"
#include "machine/PosixFileSystem.h"
#include "machine/SystemClock.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double longestStall = 50;    // milliseconds, a few hundredths of a second
constexpr double longestStop = 50;     // milliseconds
constexpr double stopOfNinetyNine = 5; // milliseconds, the 99th percentile
constexpr std::size_t stops = 10'000;
constexpr int betweenKeys = 60; // milliseconds
constexpr std::int32_t largestTable = 300'000'000;

// Too hard for the half second of a typist on a short table: primes, and products of two large primes.
const std::vector<std::string> hardNumbers = {
    "999999999989", "999962000357", "1000000016000000063", "9007199254740881"};

// A prime so far away that no run which is to be stopped gets there.
const std::string unreachable = "39999999967";

double Milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

// A machine without a sound device.
class NoSounds final : public Sounds {
public:
    void Beep() override {}
    std::function<bool()> Play(const std::string&) override { return {}; }
};

// A home of its own for the program, gone at the end.
class Home {
public:
    Home()
        : path_(std::filesystem::temp_directory_path() / ("tessarolyne-bench-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(path_);
        std::ofstream(path_ / "Tessarolyne Prefs.txt") << "Deja Envoye Don 03 :@: True\n";
        setenv("HOME", path_.c_str(), 1);
        setenv("XDG_CONFIG_HOME", path_.c_str(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    ~Home() { std::filesystem::remove_all(path_); }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

private:
    std::filesystem::path path_;
};

// Rings every millisecond on the main thread and notes the longest time between two rings.
class Heartbeat {
public:
    explicit Heartbeat(EventLoop& loop) : loop_(loop) { Arm(); }

    void Begin() {
        longest_ = 0;
        last_ = Clock::now();
    }
    double Longest() const { return longest_; }

private:
    void Arm() {
        loop_.SetAlarm(1, [this] {
            const auto now = Clock::now();
            longest_ = std::max(longest_, Milliseconds(now - last_));
            last_ = now;
            Arm();
        });
    }

    EventLoop& loop_;
    Clock::time_point last_ = Clock::now();
    double longest_ = 0;
};

class Bench {
public:
    explicit Bench(Services& services) : loop_(services.loop), program_(services), heartbeat_(services.loop) {
        program_.Start();
    }

    bool Stalls() {
        std::puts("The longest time that an event waited for the main thread, in milliseconds:");
        heartbeat_.Begin();
        Wait(1000);
        std::printf("  %-58s %7.2f\n", "nothing happens", heartbeat_.Longest());
        bool kept = Stall("hard numbers typed digit by digit", [this] { TypeHardNumbers(); });
        kept &= Stall("hard numbers factored by the button", [this] { FactorHardNumbers(); });
        main_.BevelButtonListe.UserPressed();
        kept &= Stall("the list computed to 3 x 10^9, and shown", [this] {
            StartList("3000000000");
            Finish();
        });
        kept &= Stall("hard numbers typed beside the open list", [this] { TypeHardNumbers(); });
        return kept;
    }

    // The list must be open.
    bool Stops() {
        std::mt19937_64 random(1);
        std::uniform_int_distribution<int> delay(0, 15);
        std::vector<double> ended;
        std::vector<double> painted;
        for (int i = 0; ended.size() < stops; ++i) {
            if (main_.primeFile.Nbres_Premiers.Size() > largestTable) {
                BeginTable();
            }
            if (i % 2 == 0) {
                StartList(unreachable);
            } else {
                StartFactors(unreachable);
            }
            Wait(delay(random));
            const auto start = Clock::now();
            List().UserPressedKey(Chr(27));
            Finish();
            ended.push_back(Milliseconds(commandsAreBack_ - start));
            painted.push_back(Milliseconds(Clock::now() - start));
        }
        std::printf("From Escape on, %zu random stops, in milliseconds:\n", stops);
        Print("the calculation is over", ended);
        Print("and the windows are painted", painted);
        const bool kept = NinetyNine(ended) < stopOfNinetyNine && ended.back() < longestStop;
        std::printf(
            "    %s: the calculation over below %.0f at the 99th percentile and below %.0f at worst\n",
            kept ? "bar kept" : "BAR MISSED", stopOfNinetyNine, longestStop);
        return kept;
    }

private:
    WinNbresPremiers& List() { return program_.winNbresPremiers(); }

    void Wait(int milliseconds) {
        const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
        loop_.RunUntil([end] { return Clock::now() >= end; });
    }
    void Finish() {
        loop_.RunUntil([this] { return !main_.calculation.CalculEnCours(); });
    }

    void BeginTable() {
        main_.primeFile.Nbres_Premiers.Clear();
        for (const std::uint64_t prime : {2U, 3U, 5U, 7U}) {
            static_cast<void>(main_.primeFile.Nbres_Premiers.Append(prime));
        }
    }

    void Type(const std::string& text) {
        TextField& field = main_.EditFieldNbre;
        field.UserFocused();
        field.UserReplaced(0, static_cast<int>(Len(field.Text())), "");
        for (const char key : text) {
            if (!field.UserPressedKey({key})) {
                field.UserTyped({key});
            }
            Wait(betweenKeys);
        }
        Finish();
    }
    void TypeHardNumbers() {
        for (const std::string& number : hardNumbers) {
            BeginTable();
            Type(number);
        }
    }

    void StartFactors(const std::string& number) {
        main_.EditFieldNbre.Text = number;
        main_.decomposition.DecompPremDeb(true);
    }
    void FactorHardNumbers() {
        for (const std::string& number : hardNumbers) {
            BeginTable();
            StartFactors(number);
            Finish();
        }
    }
    void StartList(const std::string& limit) {
        List().EditFieldFin.Text = limit;
        List().PushButtonCalcPrems.UserPressed();
    }
    static double NinetyNine(const std::vector<double>& sorted) { return sorted[sorted.size() * 99 / 100]; }
    static void Print(const char* what, std::vector<double>& times) {
        std::sort(times.begin(), times.end());
        std::printf("  %-30s median %5.2f, 99th percentile %6.2f, worst %6.2f\n", what,
            times[times.size() / 2], NinetyNine(times), times.back());
    }

    template <typename Work>
    bool Stall(const char* what, Work work) {
        BeginTable();
        heartbeat_.Begin();
        work();
        const bool kept = heartbeat_.Longest() < longestStall;
        std::printf("  %-58s %7.2f   %s: below %.0f\n", what, heartbeat_.Longest(),
            kept ? "bar kept" : "BAR MISSED", longestStall);
        return kept;
    }

    EventLoop& loop_;
    ProgramRun program_;
    WinMain& main_ = program_.winMain();
    Heartbeat heartbeat_;
    // The commands come back in the handler that ends a calculation, the popups with them.
    Clock::time_point commandsAreBack_;
    Connection watch_ = main_.PopupMenuLg.Changed.Connect([this] { commandsAreBack_ = Clock::now(); });
};

} // namespace

int main(int count, char** arguments) {
    const Home home;
    SystemClock clock;
    PosixFileSystem files(FindFolder);
    SystemMemory memory;
    QtApplication application("Tessarolyne", "org.tessarolyne.Tessarolyne", count, arguments);
    QtServices desktop(files);
    NoSounds silence;
    Services services{clock, desktop.loop, desktop.stage, desktop.dialogs, desktop.desktop, silence,
        desktop.http, files, memory, desktop.announcer};
    Bench bench(services);
    const bool kept = bench.Stalls();
    return bench.Stops() && kept ? 0 : 1;
}
