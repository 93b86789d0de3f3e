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

TEST_CASE("Shortcuts copy in the order of sight, and a field's menu offers its number in other forms") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "4660");
    world.desktop.option = true; // Ctrl serves as Option, and must not reset the currencies
    std::vector<std::string> copied;
    for (const Window::Shortcut& shortcut : window.Shortcuts()) {
        window.UserPressedShortcut(shortcut);
        copied.push_back(shortcut.Keys + " " + world.desktop.clipboard);
    }
    CHECK(copied == std::vector<std::string>{"Cmd+1 12 34", "Cmd+2 1 0010 0011 0100", "Cmd+3 2 x 2 x 5 x 233",
                        "Cmd+4 quatre mille six cent soixante euros zéro centime"});
    window.PushButtonPressPapBOrg.Enabled = false;
    window.UserPressedShortcut(window.Shortcuts().front());
    CHECK(world.desktop.clipboard.starts_with("quatre"));

    const auto offered = [&](TextControl& field) {
        std::string all;
        for (const TextControl::Command& command : field.ContextCommands()) {
            field.UserChoseCommand(command);
            all += command.Caption + "=" + world.desktop.clipboard + ";";
        }
        return all;
    };
    window.BevelButtonListe.UserPressed();
    window.EditFieldMonnaie.UserFocused();
    CHECK(offered(window.EditFieldNbre) == "Copier sans espaces=4660;");
    CHECK(offered(window.EditFieldBaseOrg) == "Copier sans espaces=1234;Copier 0x1234=0x1234;");
    CHECK(offered(window.EditFieldBaseDest) ==
          "Copier sans espaces=1001000110100;Copier 0b1001000110100=0b1001000110100;");
    window.PopupMenuBaseDest.UserChose(8 - 2);
    CHECK(offered(window.EditFieldBaseDest) == "Copier sans espaces=11064;Copier 0o11064=0o11064;");
    CHECK(offered(window.TxtAreaDecomp1er) == "Copier sans espaces=2x2x5x233;");
    world.program->winNbresPremiers().EditFieldAffAu.Text = "2 000";
    CHECK(offered(world.program->winNbresPremiers().EditFieldAffAu) == "Copier sans espaces=2000;");
    window.RadioButton09AZ[1].UserPressed();
    CHECK(offered(window.EditFieldBaseOrg) == "Copier sans espaces=BCDE;");
    world.Type(window.EditFieldBaseOrg, "!");
    CHECK(offered(window.EditFieldNbre).empty());
}
