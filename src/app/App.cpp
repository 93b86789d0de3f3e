#include "app/App.h"

#include "app/Program.h"
#include "app/Version.h"

namespace tessarolyne {

App::App(Program& program, Services& services)
    : Application(services), ShortVersion(shortVersion), program_(program) {}

void App::Event_Open() {
    program_.fncts.DefAppEncod = "UTF-8";
}

} // namespace tessarolyne
