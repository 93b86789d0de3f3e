#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

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
    CHECK(window.EditFieldBaseOrg.Text() == "#Erreur Nbre !");
    CHECK(window.EditFieldBaseDest.Text() == "#Erreur Nbre !");
}

TEST_CASE("The list window's numbers follow the switch; a field shows the bare number while it is edited") {
    TestWorld world;
    WinMain& window = world.Main();
    window.calculation.NbresPremCalc(20000, false);
    window.BevelButtonListe.UserPressed();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    CHECK(list.EditFieldAffAu.DisplayText() == "2 000");
    CHECK(list.EditFieldFin.HasFocus());
    CHECK(list.EditFieldFin.DisplayText() == "19997");
    window.CheckBoxFormatAuto.UserPressed();
    CHECK(list.EditFieldAffAu.DisplayText() == "2000");
    CHECK(list.EditFieldAffAu.Text() == "2000");
    list.EditFieldFin.Text = "1000000000000"; // one more than the limit
    list.PushButtonCalcPrems.UserPressed();
    window.CheckBoxFormatAuto.UserPressed();
    CHECK(list.EditFieldFin.Text() == "Nb Max = 999999999999");
}
