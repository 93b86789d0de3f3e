#include "app/App.h"

#include "app/Program.h"
#include "app/Version.h"
#include "conversion/NumberFormat.h"

namespace tessarolyne {

App::App(Program& program, Services& services)
    : Application(services), ShortVersion(shortVersion), program_(program) {}

void App::Event_Open() {
    program_.fncts.DefAppEncod = "UTF-8";
}

std::string App::FormatString(std::string_view texte, std::string_view separateur, int tailleGroupe) {
    return tessarolyne::FormatString(texte, separateur, tailleGroupe);
}

} // namespace tessarolyne
