#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

using namespace tessarolyne;

TEST_CASE("A calculation disables what could disturb it and nothing else, shortcuts too but for quitting") {
    TestWorld world;
    WinMain& window = world.Main();
    window.BevelButtonListe.UserPressed();
    const auto disabled = [](const Window& of) {
        const auto controls = of.Controls();
        return std::count_if(
            controls.begin(), controls.end(), [](const Control* control) { return !control->Enabled(); });
    };
    for (const bool running : {true, false, true}) {
        world.program->fncts.HoldMenuForCalculation(running);
        window.EnableMenuBoutons();
        CHECK(disabled(window) == (running ? 21 : 1)); // the button for factors is off at rest
        CHECK(disabled(world.program->winNbresPremiers()) == (running ? 7 : 0));
    }
    CHECK((window.EditFieldNbre.Enabled() && window.EditFieldBaseOrg.Enabled()));
    const MenuBar& menus = *world.program->app.GetMenuBar();
    for (const char* name : {"FichChoixFichNbP", "FichSauvFichNbP", "AppleAPropos", "AppleVMaJ", "AppleDon",
             "ApplePrefs", "AideAide"}) {
        CAPTURE(name);
        menus.Find(name)->UserChose(world.program->app); // a dialog would fail the test
        CHECK_FALSE(menus.Find(name)->Enabled);
        CHECK(menus.Find(name)->Action());
    }
    CHECK(world.http.requests.empty());
    menus.Find("FichierQuitter")->UserChose(world.program->app);
    CHECK(window.quitting.IsUnderWay());
}

TEST_CASE("Shortcuts copy in the order of sight, and a field's menu offers its number in other forms") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "4660");
    world.desktop.option = true; // Ctrl serves as Option, and must not reset the currencies
    std::vector<std::string> copied;
    for (const Window::Shortcut& shortcut : window.Shortcuts()) {
        window.UserPressedShortcut(shortcut);
        copied.push_back(shortcut.keys + " " + world.desktop.clipboard);
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
            all += command.caption + "=" + world.desktop.clipboard + ";";
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
    window.RadioButton09AZ[1].UserPressed();
    CHECK(offered(window.EditFieldBaseOrg) == "Copier sans espaces=BCDE;");
    world.Type(window.EditFieldBaseOrg, "!");
    CHECK(offered(window.EditFieldNbre).empty());
}

TEST_CASE("The switch brings what is shown into line both ways, but for the edited field and for errors") {
    TestWorld world;
    WinMain& window = world.Main();
    window.CheckBoxFormatAuto.UserPressed();
    CHECK(window.EditFieldBaseDest.Text().empty());
    world.Type(window.EditFieldNbre, "1234567");
    const std::string words = window.TxtAreaLettres.Text;
    for (const bool focused : {true, false}) {
        if (!focused) {
            window.EditFieldMonnaie.UserFocused();
        }
        for (const bool grouped : {true, false}) {
            window.CheckBoxFormatAuto.UserPressed();
            world.Settle();
            CHECK(window.EditFieldNbre.Text() == (grouped && !focused ? "1 234 567" : "1234567"));
            CHECK(window.EditFieldBaseOrg.Text() == (grouped ? "12 D6 87" : "12D687"));
            CHECK(window.EditFieldBaseDest.Text() ==
                  (grouped ? "1 0010 1101 0110 1000 0111" : "100101101011010000111"));
            CHECK(window.TxtAreaDecomp1er.Text() == (grouped ? "127 x 9 721" : "127 x 9721"));
        }
    }
    CHECK(window.TxtAreaLettres.Text() == words);
    world.Type(window.EditFieldNbre, "1234.5");
    window.EditFieldMonnaie.UserFocused();
    window.CheckBoxFormatAuto.UserPressed();
    CHECK(window.EditFieldNbre.Text() == "1 234.50");
    window.EditFieldNbre.UserFocused();
    CHECK(window.EditFieldNbre.Text() == "1234.50");
    window.EditFieldMonnaie.UserFocused();
    CHECK(window.EditFieldBaseDest.Text() == "#Erreur Nbre !");
}

TEST_CASE("The copy button copies the words, or with Option asks before it resets the currency") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "2");
    world.Type(window.EditFieldMonnaies, "florins");
    window.PushButtonPressPapLettr.UserPressed();
    world.desktop.option = true;
    world.dialogs.Expect(DialogButton::Cancel, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
    window.PushButtonPressPapLettr.UserPressed();
    CHECK((window.EditFieldMonnaies.Text() == "florins" && world.program->fncts.DrapMenu));
    world.dialogs.Expect(DialogButton::Action);
    window.PushButtonPressPapLettr.UserPressed();
    CHECK(window.TxtAreaLettres.Text() == "deux euros zéro centime");
    CHECK(world.dialogs.asked.back().message == "Remettre les devises par défaut ?");
    CHECK(world.desktop.clipboard == "deux florins zéro centime");
    CHECK((world.sounds.played == std::vector<std::string>{"Bip.wav"} && world.sounds.beeps == 2));
    window.PopupMenuLg.UserChose(0);
    world.Type(window.EditFieldNbre, "1000000000");
    CHECK(window.TxtAreaLettres.Text().starts_with("Vous devez"));
}
