#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

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
