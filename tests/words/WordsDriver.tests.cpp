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
    CHECK(words() == "twenty one euros eighty centimes");
    window.PopupMenuLg.UserChose(1);
    window.CheckBoxTrUnion.UserPressed();
    CHECK(words() == "vingt-et-un euros quatre-vingts centimes");
    window.CheckBoxMajusc.UserPressed();
    CHECK(words() == "Vingt-et-un euros quatre-vingts centimes");
    world.Type(window.EditFieldMonnaies, "francs");
    world.Type(window.EditFieldCentimes, "");
    CHECK(words() == "Vingt-et-un francs quatre-vingts ");
    world.Type(window.EditFieldNbre, "1.01");
    world.Type(window.EditFieldMonnaie, "franc");
    world.Type(window.EditFieldCentime, "sou");
    CHECK(words() == "Un franc un sou");
}

TEST_CASE("What has no words says so") {
    TestWorld world;
    WinMain& window = world.Main();
    window.EditFieldNbre.Text = "-3"; // the mask keeps a user from it
    window.ConvNbreLettresD();
    CHECK(window.TxtAreaLettres.Text() == "#Erreur Nbre !\nVous devez entrer un nombre positif !");
    window.EditFieldNbre.Text = "n";
    window.ConvNbreLettresD();
    CHECK(window.TxtAreaLettres.Text() == "#Erreur Nbre !");
    window.PopupMenuLg.ListIndex = 0;
    world.Type(window.EditFieldNbre, "1000000000");
    CHECK(window.TxtAreaLettres.Text() ==
          "Vous devez entrer un nombre en dessous d'un billion (mille milliards) !euros zero centime");
    world.dialogs.ExpectTell();
    window.PopupMenuLg.ListIndex = -1; // no row, which the three items can't give
    CHECK(world.dialogs.told.back() ==
          "Error ! Please contact the authors.\nConvNbreLettresD, PopupMenuLg.Text = ''");
}

TEST_CASE("The copy button copies the words, or with Option asks before it resets the currency") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "2");
    world.Type(window.EditFieldMonnaies, "florins");
    window.PushButtonPressPapLettr.UserPressed();
    CHECK(world.desktop.clipboard == "deux florins zéro centime");
    CHECK(world.sounds.played == std::vector<std::string>{"Bip.wav"});

    world.desktop.option = true;
    const int beeps = world.sounds.beeps;
    SUBCASE("cancelled") {
        world.dialogs.Expect(DialogButton::Cancel);
        window.PushButtonPressPapLettr.UserPressed();
        CHECK(window.EditFieldMonnaies.Text() == "florins");
    }
    SUBCASE("confirmed") {
        world.dialogs.Expect(DialogButton::Action, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
        window.PushButtonPressPapLettr.UserPressed();
        CHECK(window.EditFieldMonnaies.Text() == "euros");
        CHECK(window.TxtAreaLettres.Text() == "deux euros zéro centime");
    }
    CHECK(world.sounds.beeps == beeps + 1);
    CHECK(world.desktop.clipboard == "deux florins zéro centime");
    CHECK(world.sounds.played.size() == 1);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.dialogs.asked.back().message == "Remettre les devises par défaut ?");
}
