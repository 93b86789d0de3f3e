// The program as main() has it, but for its translations, the address of the version file, which is the first
// argument, and a deadline that a test can wait for. The program that users get takes no address from
// outside.
#include "app/Program.h"
#include "app/Version.h"
#include "desktop/QtApplication.h"
#include "desktop/QtServices.h"
#include "desktop/Resources.h"
#include "machine/PosixFileSystem.h"
#include "machine/SystemClock.h"
#include "machine/SystemMemory.h"

using namespace tessarolyne;

int main(int count, char** arguments) {
    if (count != 2) {
        return 2;
    }
    SystemClock clock;
    PosixFileSystem files(FindFolder);
    SystemMemory memory;
    QtApplication desktop("Tessarolyne", applicationIdentifier);
    HttpLimits limits;
    limits.deadline = 5000; // the start of the window counts
    QtServices services(files, limits);
    Services world = services.With(clock, files, memory);
    Program program(world, arguments[1]);
    program.Start();
    return services.loop.Run();
}
