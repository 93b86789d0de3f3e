#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

using namespace tessarolyne;

namespace {

const std::string errNbre = "#Erreur Nbre !";

} // namespace

TEST_CASE("A number typed in either field stands in the other, written as programs do, and emptied takes all "
          "along") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(window.EditFieldBaseOrg, "0x1_ff");
    CHECK((window.EditFieldNbre.Text() == "511" && window.EditFieldBaseDest.Text() == "1 1111 1111"));
    CHECK(window.EditFieldBaseOrg.Text() == "0x1_ff");
    window.EditFieldNbre.UserFocused();
    CHECK(window.EditFieldBaseOrg.Text() == "1 ff"); // bare once it is left
    world.Type(window.EditFieldBaseOrg, "0b1010");   // base 16 has a digit b
    CHECK(window.EditFieldNbre.Text() == "725 008");
    world.Type(window.EditFieldNbre, "255");
    CHECK(window.EditFieldBaseOrg.Text() == "FF");
    world.Type(window.EditFieldBaseOrg, "");
    CHECK((window.EditFieldNbre.Text().empty() && world.sounds.beeps == 0));
    world.Type(window.EditFieldNbre, "255");
    world.Type(window.EditFieldNbre, "");
    CHECK((window.EditFieldBaseOrg.Text() + window.EditFieldBaseDest.Text() + window.TxtAreaDecomp1er.Text() +
           window.TxtAreaLettres.Text())
              .empty());
}

TEST_CASE("What isn't a whole number within the limit is refused in place, and the source text stays") {
    TestWorld world;
    WinMain& window = world.Main();
    const struct {
        TextField& field;
        std::string typed, nbre, baseOrg;
        int beeps;
    } rows[] = {{window.EditFieldNbre, "12,5", "12.5", errNbre, 0},
        {window.EditFieldNbre, "999999999999.01", "999999999999.01", errNbre, 1},
        {window.EditFieldBaseOrg, "E8D4A51000", "Plus grand nombre possible = 999 999 999 999", "E8D4A51000",
            1},
        {window.EditFieldBaseOrg, "g", errNbre, "g", 1}};
    for (const auto& row : rows) {
        CAPTURE(row.typed);
        world.Type(window.EditFieldNbre, "7"); // takes the errors before away
        const int beeps = world.sounds.beeps;
        world.Type(row.field, row.typed);
        CHECK(window.EditFieldNbre.Text() == row.nbre);
        CHECK(window.EditFieldBaseOrg.Text() == row.baseOrg);
        CHECK(window.EditFieldBaseDest.Text() == errNbre);
        CHECK(window.TxtAreaDecomp1er.Text() == errNbre);
        CHECK((&row.field == &window.EditFieldNbre || window.TxtAreaLettres.Text() == errNbre));
        CHECK(world.sounds.beeps == beeps + row.beeps);
    }
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("x");
    CHECK(window.EditFieldNbre.Text() == errNbre);
    const int beeps = world.sounds.beeps;
    world.Type(window.EditFieldNbre, "999999999999"); // the limit itself
    CHECK((window.EditFieldBaseOrg.Text() == "E8 D4 A5 0F FF" && world.sounds.beeps == beeps));
}

TEST_CASE(
    "Looking at another base or alphabet leaves what was typed last the source, wherever the focus is") {
    TestWorld world;
    WinMain& window = world.Main();
    const auto baseOrg = [&](int base) { window.PopupMenuBaseOrg.UserChose(base - 2), world.Settle(); };
    world.Type(window.EditFieldNbre, "255");
    window.EditFieldBaseOrg.UserFocused();
    baseOrg(2);
    baseOrg(16);
    CHECK(window.EditFieldBaseOrg.Text() == "FF");
    for (const int letters : {1, 0}) {
        window.RadioButton09AZ[static_cast<std::size_t>(letters)].UserPressed();
        world.Settle();
        CHECK(window.EditFieldBaseOrg.Text() == (letters == 1 ? "PP" : "FF"));
        CHECK(window.EditFieldNbre.Text() == "255");
    }
    world.Type(window.EditFieldBaseOrg, "1FF");
    window.EditFieldNbre.UserFocused();
    baseOrg(10);
    CHECK(window.EditFieldNbre.Text() == errNbre);
    baseOrg(16);
    CHECK(window.EditFieldNbre.Text() == "511");
    CHECK(window.EditFieldBaseOrg.Text() == "1 FF");
}

TEST_CASE("Factors and words of another number than the one that stands there are dimmed, and say so") {
    TestWorld world;
    WinMain& window = world.Main();
    const TextArea &factors = window.TxtAreaDecomp1er, &words = window.TxtAreaLettres;
    const auto baseOrg = [&](int base) { window.PopupMenuBaseOrg.UserChose(base - 2); };
    const auto dimmed = [](const TextArea& area) {
        return area.Remark() == "Correspond au nombre précédent.";
    };
    world.Type(window.EditFieldBaseOrg, "10");
    const std::string textOfSixteen = words.Text;
    baseOrg(12);
    CHECK(window.EditFieldNbre.Text() == "12");
    CHECK((factors.Text() == "2 x 2 x 2 x 2" && words.Text() == textOfSixteen));
    CHECK((dimmed(factors) && dimmed(words)));
    CHECK(factors.Explanation() == "Correspond au nombre précédent.");
    window.CheckBoxMajusc.UserPressed(); // the words are written again, and only they
    CHECK((dimmed(factors) && !dimmed(words)));
    baseOrg(16); // the factors hold again
    CHECK((!dimmed(factors) && dimmed(words)));
}

TEST_CASE("What a field can't take is refused with one beep, says why, and changes nothing") {
    TestWorld world;
    WinMain& window = world.Main();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    std::vector<std::string> said;
    const struct {
        TextField& field;
        std::string before, inserted, why;
    } rows[] = {{window.EditFieldNbre, "255", "1e6", "Cette zone ne prend qu'un nombre"},
        {window.EditFieldNbre, "255", "1234567890", "12 chiffres au plus"},
        {window.EditFieldNbre, "255", "-5", "Pas de signe moins"},
        {window.EditFieldNbre, "1.25", "5", "Deux décimales au plus"},
        {window.EditFieldBaseOrg, "FF", "GG", "Seulement des chiffres de la base 16"},
        {list.EditFieldAffDu, "1", ".", "Seulement des nombres entiers"},
        {list.EditFieldNbNbresLigne, "100", "5", "3 chiffres au plus"}};
    for (const auto& [field, before, inserted, why] : rows) {
        CAPTURE(inserted);
        said.clear();
        const Connection notified =
            field.Notified.Connect([&](const std::string& text) { said.push_back(text); });
        field.Text = before;
        field.UserFocused();
        field.SelStart = static_cast<int>(before.size());
        const int beeps = world.sounds.beeps;
        field.UserTyped(inserted);
        CHECK(world.sounds.beeps == beeps + 1);
        CHECK(said == std::vector{why});
        CHECK(field.Notice() == why);
        CHECK(field.Text() == before);
        field.UserReplaced(0, 1, "");
        CHECK(field.Notice().empty());
    }
    window.EditFieldMonnaie.Text = "livre";
    window.EditFieldMonnaie.UserReplaced(0, 99, "\n"); // a field has one line
    CHECK(window.EditFieldMonnaie.Text() == "livre");
}

TEST_CASE("Up and Down go through the numbers of this run in both fields, and back to what was being typed") {
    TestWorld world;
    WinMain& window = world.Main();
    TextField& decimal = window.EditFieldNbre;
    TextField& digits = window.EditFieldBaseOrg;
    const auto steps = [&](TextField& field, const std::string& keys) {
        std::string shown;
        for (const char key : keys) {
            CHECK(field.UserPressedKey(Chr(key == '^' ? 30 : 31)));
            shown += (shown.empty() ? "" : " ") + field.Text();
        }
        world.Settle();
        return shown;
    };
    CHECK(steps(decimal, "^v").empty());
    world.Type(decimal, "255");
    decimal.UserReplaced(2, 1, ""); // corrected on the way, and then deleted key by key
    decimal.UserReplaced(1, 1, "");
    decimal.UserReplaced(0, 1, "");
    world.Type(decimal, "12.5");
    decimal.UserReplaced(0, 4, "4660"); // pasted over it
    world.Settle();
    world.Type(digits, "A");
    CHECK(steps(digits, "^") == "1234");
    CHECK(decimal.Text() == "4 660");
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 2 x 5 x 233");
    CHECK(steps(digits, "^^vvv") == "FF FF 1234 A A"); // no cents in a base
    window.EditFieldNbre.UserFocused();
    CHECK(steps(decimal, "^^^^") == "4660 12.50 255 255");
    decimal.UserTyped("7");
    CHECK(steps(decimal, "^") == "10"); // where Up began is a number too
    CHECK(steps(decimal, "v") == "2557");
}

TEST_CASE(
    "A recalculation waits for the end of a dialog, also for a fraction whose field was left meanwhile") {
    TestWorld world;
    WinMain& window = world.Main();
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("12.5");
    window.EditFieldBaseOrg.UserFocused();
    {
        const Application::ModalStep dialog(world.program->app, nullptr);
        world.loop.Advance(100);
        CHECK(window.EditFieldBaseOrg.Text().empty());
    }
    world.loop.Advance(25);
    CHECK(window.EditFieldBaseOrg.Text() == errNbre);
    CHECK(window.EditFieldNbre.Text() == "12.50");
    CHECK(window.TxtAreaLettres.Text() == "douze euros cinquante centimes");
}

TEST_CASE("A second after typing stops, the output that the user went to last is announced") {
    TestWorld world;
    WinMain& window = world.Main();
    world.Type(
        window.EditFieldNbre, "11"); // above the table: without a thread, for which the clock would run on
    world.loop.Advance(900);
    world.Type(window.EditFieldNbre, "255");
    world.loop.Advance(960);
    CHECK(world.announcer.said.empty());
    world.loop.Advance(50);
    CHECK(world.announcer.said == std::vector<std::string>{"deux cent cinquante-cinq euros zéro centime"});
    window.TxtAreaDecomp1er.UserFocused();
    world.Type(window.EditFieldNbre, "1000002");
    world.loop.Advance(1000);
    CHECK(world.announcer.said.back() == "2 x 3 x 166 667");
    world.program->fncts.Annonces = false;
    world.Type(window.EditFieldNbre, "7");
    world.loop.Advance(5000);
    CHECK(world.announcer.said.size() == 2);
}
