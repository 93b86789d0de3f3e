#include "app/CommandLine.h"
#include "app/ProgramRun.h"
#include "desktop/QtApplication.h"
#include "desktop/QtServices.h"
#include "desktop/Resources.h"
#include "machine/PosixFileSystem.h"
#include "machine/SystemClock.h"
#include "ui/Version.h"

#include <iostream>
#include <span>

using namespace tessarolyne;

int main(int count, char** arguments) {
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(count));
    if (const auto status = AnswerCommandLine(all.subspan(all.empty() ? 0 : 1), std::cout, std::cerr)) {
        return *status;
    }

    SystemClock clock;
    PosixFileSystem files(FindFolder);
    SystemMemory memory;
    Signals endSignals;

    QtApplication desktop("Tessarolyne", applicationIdentifier, count, arguments);
    const QtTranslations translations;
    QtServices services(files);
    Services world = services.With(clock, files, memory);
    ProgramRun program(world);

    desktop.OnSessionEnds = [&] { program.EndWithoutAsking(); };
    desktop.OnQuitRequested = [&] {
        program.app.QuitAsked = true;
        program.app.RequestQuit();
    };
    desktop.WatchDescriptor(endSignals.Descriptor(), [&] {
        if (endSignals.Take() != 0) {
            program.EndWithoutAsking();
        }
    });

    program.Start();
    return services.loop.Run();
}
