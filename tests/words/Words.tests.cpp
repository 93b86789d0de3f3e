#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("An amount is reworded at once by each choice of language, option and currency") {
    TestWorld world;
    WinMain& window = world.Main();
    const auto& words = window.TxtAreaLettres.Text;
    world.Type(window.EditFieldNbre, "21.80");
    CHECK(words() == "vingt et un euros quatre-vingts centimes");
    window.PopupMenuLg.UserChose(2);
    CHECK(words() == "vingt et un euros huitante centimes");
    window.PopupMenuLg.UserChose(0);
    window.CheckBoxTrUnion.UserPressed();
    CHECK(words() == "twenty-one euros eighty centimes");
    window.CheckBoxMajusc.UserPressed();
    world.Type(window.EditFieldMonnaies, "francs");
    world.Type(window.EditFieldCentimes, "");
    CHECK(words() == "Twenty-one francs eighty ");
    world.Type(window.EditFieldNbre, "1.01");
    world.Type(window.EditFieldMonnaie, "franc");
    world.Type(window.EditFieldCentime, "sou");
    CHECK(words() == "One franc one sou");
    world.Type(window.EditFieldNbre, "1000000000");
    CHECK(
        words() == "Vous-devez-entrer-un-nombre-en-dessous-d'un-billion-(mille-milliards)-!francs zero sou");
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
    CHECK(window.EditFieldMonnaies.Text() == "florins");
    CHECK(world.program->fncts.DrapMenu);
    world.dialogs.Expect(DialogButton::Action);
    window.PushButtonPressPapLettr.UserPressed();
    CHECK(window.TxtAreaLettres.Text() == "deux euros zéro centime");
    CHECK(world.dialogs.asked.back().message == "Remettre les devises par défaut ?");
    CHECK(world.desktop.clipboard == "deux florins zéro centime");
    CHECK(world.sounds.played == std::vector<std::string>{"Bip.wav"});
    CHECK(world.sounds.beeps == 2);
}
