#include "ui/App.h"

#include "app/Version.h"
#include "ui/Fncts.h"
#include "ui/Surroundings.h"

namespace tessarolyne {

App::App(Surroundings& surroundings, Services& services)
    : Application(services), ShortVersion(shortVersion), program_(surroundings) {}

void App::Event_Open() {
    program_.fncts.DefAppEncod = "UTF-8";
}

} // namespace tessarolyne
