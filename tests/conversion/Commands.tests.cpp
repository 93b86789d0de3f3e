#include "platform/MenuBar.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

std::vector<std::string> Disabled(const Window& window) {
    std::vector<std::string> names;
    for (const Control* control : window.Controls()) {
        if (!control->Enabled()) {
            names.push_back(control->Name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST_CASE("A calculation disables what could disturb it, and nothing else") {
    TestWorld world;
    WinMain& window = world.Main();
    window.BevelButtonListe.UserPressed();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    const std::vector<std::string> atRest{"PushButtDecomposer"};
    CHECK(Disabled(window) == atRest);
    world.program->fncts.DrapMenu = false;
    window.EnableMenuBoutons();
    CHECK(Disabled(window).size() == 21);
    CHECK(Disabled(list) == std::vector<std::string>{"EditFieldAffAu", "EditFieldAffDu", "EditFieldFin",
                                "EditFieldNbNbresLigne", "PushButtonCalcPrems", "PushButtonFichier",
                                "TxtAreaListeNbres1ers"});
    world.program->fncts.DrapMenu = true;
    window.EnableMenuBoutons();
    CHECK(Disabled(window) == atRest);
    CHECK(Disabled(list).empty());
}

TEST_CASE("A shortcut whose command is off does nothing; quitting is never off") {
    TestWorld world;
    const MenuBar& menus = *world.program->app.GetMenuBar();
    world.program->fncts.DrapMenu = false;
    for (const char* name : {"FichChoixFichNbP", "FichSauvFichNbP", "AppleAPropos", "AppleVMaJ", "AppleDon",
             "ApplePrefs", "AideAide"}) {
        CAPTURE(name);
        menus.Find(name)->UserChose(world.program->app); // a dialog would fail the test
        CHECK_FALSE(menus.Find(name)->Enabled());
        CHECK(menus.Find(name)->Action());
    }
    CHECK(world.http.requests.empty());
    menus.Find("FichierQuitter")->UserChose(world.program->app);
    world.loop.Advance(50);
    CHECK(world.loop.ExitCode() == 0);
}

TEST_CASE(
    "The copy buttons copy what is shown, groups and errors included, and announce it unless switched off") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "4660");
    const auto copied = [&](PushButton& button) {
        button.UserPressed();
        return world.desktop.clipboard;
    };
    CHECK(copied(window.PushButtonPressPapBOrg) == "12 34");
    CHECK(copied(window.PushButtonPressPapBDest) == "1 0010 0011 0100");
    CHECK(copied(window.PushButtonPressPapPrem) == "2 x 2 x 5 x 233");
    CHECK(world.announcer.said.back() == "Copié : 2 x 2 x 5 x 233");
    world.Type(window.EditFieldNbre, "999999999989");
    CHECK(copied(window.PushButtonPressPapPrem) ==
          "Pour les grands nombres, cliquez Décomposer.\nCela peut être long.");
    world.program->app.Annonces = false;
    world.Type(window.EditFieldNbre, "1.5");
    CHECK(copied(window.PushButtonPressPapBOrg) == "#Erreur Nbre !");
    CHECK(world.announcer.said.size() == 4);
    CHECK(world.sounds.played == std::vector<std::string>(5, "Bip.wav"));
}
