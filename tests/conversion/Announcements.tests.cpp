#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

using Said = std::vector<std::string>;

TEST_CASE("A second after typing stops, the output that the user went to last is announced, an error too") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre,
        "11"); // each above the table: without a thread, for which the clock would run on
    world.loop.Advance(900);
    world.Type(window.EditFieldNbre, "255");
    world.loop.Advance(960);
    CHECK(world.announcer.said.empty());
    world.loop.Advance(50);
    CHECK(world.announcer.said == Said{"deux cent cinquante-cinq euros zéro centime"});
    window.TxtAreaDecomp1er.UserFocused();
    world.Type(window.EditFieldNbre, "1000002");
    world.loop.Advance(1000);
    CHECK(world.announcer.said.back() == "2 x 3 x 166 667");
    world.Type(window.EditFieldNbre, "1.5");
    world.loop.Advance(1000);
    CHECK(world.announcer.said.back() == "#Erreur Nbre !");
    world.program->fncts.Annonces = false;
    world.Type(window.EditFieldNbre, "7");
    world.loop.Advance(5000);
    CHECK(world.announcer.said.size() == 3);
}

TEST_CASE("A run that the user asked for is announced at its end, with what it gave or that it was stopped") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldNbre, "1000002");
    world.loop.Advance(1000);
    window.decomposition.DecompPremDeb(true);
    world.Settle();
    CHECK(world.announcer.said.size() == 2);
    CHECK(world.announcer.said.back() == "Calcul terminé : 2 x 3 x 166 667");
    world.Type(window.EditFieldNbre, "999999999989");
    window.decomposition.DecompPremDeb(true);
    window.calculation.StopOnEscape("\x1B");
    world.Settle();
    CHECK(world.announcer.said.back() == "Calcul arrêté");
}
