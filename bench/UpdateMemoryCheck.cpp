// One update check at the address that is given, by the whole program on a screen in memory, up to the dialog
// that tells the outcome. Prints the KiB that it took over the idle program. For UpdateMemoryBench.

#include "app/ProgramRun.h"
#include "conversion/WinMain.h"
#include "desktop/QtApplication.h"
#include "desktop/QtServices.h"
#include "desktop/Resources.h"
#include "machine/PosixFileSystem.h"
#include "machine/SystemClock.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

using namespace tessarolyne;

namespace {

[[noreturn]] void Stop(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::exit(2);
}

long StatusKiB(const char* name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stol(line.substr(std::string_view(name).size()));
        }
    }
    Stop("no figures in /proc/self/status");
}

void Check(const std::string& url, int count, char** arguments) {
    std::string home = "/tmp/tessarolyne-bench-XXXXXX";
    if (mkdtemp(home.data()) == nullptr) {
        Stop("no folder in /tmp");
    }
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_CONFIG_HOME", home.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", home.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "default.warning=false", 1); // of all that this platform can't do
    std::ofstream(home + "/Tessarolyne Prefs.txt") << "Deja Envoye Don 03 :@: True\n";
    SystemClock clock;
    PosixFileSystem files(FindFolder);
    SystemMemory memory;
    QtApplication application("UpdateMemoryBench", "org.tessarolyne.Benchmark", count, arguments);
    QtServices services(files);
    Services world = services.With(clock, files, memory);
    ProgramRun program(world, url);
    program.Start();
    long idle = 0;
    QTimer::singleShot(500, [&] {
        idle = StatusKiB("VmRSS:");
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak begins anew
        program.winMain().updateCheck.Start();
    });
    // The dialog stays for a while, so that it is laid out and drawn.
    QTimer look;
    int looks = 0;
    QObject::connect(&look, &QTimer::timeout, [&] {
        looks += QApplication::activeModalWidget() != nullptr ? 1 : 0;
        if (looks == 20) {
            services.loop.Quit(0);
        }
    });
    look.start(5);
    services.loop.Run();
    std::printf("%ld\n", StatusKiB("VmHWM:") - idle);
    std::filesystem::remove_all(home);
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        Stop("usage: UpdateMemoryCheck ADDRESS");
    }
    Check(arguments[1], count, arguments);
}
