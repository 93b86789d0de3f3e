#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

using namespace tessarolyne;

namespace {

// The list open over a table that reaches `limit`.
struct OpenList {
    explicit OpenList(std::uint64_t limit) {
        world.Main().calculation.NbresPremCalc(limit, false);
        world.Main().BevelButtonListe.UserPressed();
    }

    WinNbresPremiers& List() { return world.program->winNbresPremiers(); }
    std::string Range() { return List().EditFieldAffDu.Text() + "-" + List().EditFieldAffAu.Text(); }
    // Enters both ranks and presses Return in one of the fields.
    std::string Show(const char* first, const char* last, bool returnInFirst) {
        List().EditFieldAffDu.Text = first;
        List().EditFieldAffAu.Text = last;
        CHECK((returnInFirst ? List().EditFieldAffDu : List().EditFieldAffAu).UserPressedKey(Chr(13)));
        return Range();
    }

    TestWorld world;
};

} // namespace

TEST_CASE("A range is cut to 2000 primes at the end that the Return key chooses, and to the table") {
    OpenList open(104729); // 10,000 primes
    CHECK(open.Range() == "1-2000");
    // What is entered, whether Return is pressed in the first field, and what is shown.
    const std::tuple<const char*, const char*, bool, const char*> rows[] = {{"5000", "1", true, "5000-6999"},
        {"1", "9000", false, "7001-9000"}, {"1", "9000", true, "1-2000"}, {"20000", "1", true, "8001-10000"},
        {"1", "", false, "8001-10000"}, {"9500", "99999", true, "9500-10000"},
        {"10000000000000000000", "1e30", true, "8001-10000"}, {"-5", "-9223372036854775809", true, "1-2000"},
        {"3 000", "3 010", true, "3000-3010"}};
    for (const auto& [first, last, returnInFirst, shown] : rows) {
        CHECK(open.Show(first, last, returnInFirst) == shown);
    }
    OpenList many(10000);
    CHECK(many.Show("1219", "0", false) == "1219-1229");
    CHECK(many.List().TxtAreaListeNbres1ers.Text() ==
          "\t9883\t9887\t9901\t9907\t9923\t9929\n\t9931\t9941\t9949\t9967\t9973");
}

TEST_CASE("A run extends the table to the limit and shows its end; an empty limit adds one prime") {
    OpenList open(7);
    WinNbresPremiers& list = open.List();
    const auto calculate = [&](const char* limit) {
        list.EditFieldFin.Text = limit;
        list.PushButtonCalcPrems.UserPressed();
        open.world.Settle();
        list.EditFieldAffDu.UserFocused();
        return list.EditFieldFin.DisplayText();
    };
    CHECK(calculate("1000000000000") == "Nb Max = 999 999 999 999");
    CHECK(calculate("20 000") == "19 997"); // 20001 is the last number tested
    CHECK(open.Range() == "263-2262");
    open.world.Main().CheckBoxFormatAuto.UserPressed();
    CHECK(calculate("") == "20011");
    CHECK(list.StaticTextNbNbre1ers.Text() == "2263 nombres premiers");
}

TEST_CASE(
    "Closing takes over the place, if whole on the screen, and mends 0 primes per line with a message") {
    TestWorld world;
    for (const std::int16_t left : {std::int16_t{761}, std::int16_t{100}}) {
        world.program->app.WinNBP = {left, 38, 520, 400};
        world.Main().BevelButtonListe.UserPressed();
        WinNbresPremiers& list = world.program->winNbresPremiers();
        CHECK(list.Left == (left == 761 ? 1280 - 510 : 100));
        list.UserResized(520, 400);
        CHECK((list.TxtAreaListeNbres1ers.Height == 456 - 185 && list.PushButtonFichier.Top == 550 - 185));
        list.UserMoved(120, 90);
        world.Type(list.EditFieldNbNbresLigne, "0");
        world.dialogs.Expect(DialogButton::Action);
        list.UserClosed();
        world.loop.Advance(1);
        CHECK(world.Main().primeFile.NbreNbPparLigne == 10);
        CHECK(world.program->app.WinNBP == std::array<std::int16_t, 4>{120, 90, 520, 400});
    }
}

TEST_CASE("A stopped run leaves the list as it was and the last prime in the field") {
    OpenList open(7);
    WinNbresPremiers& list = open.List();
    list.EditFieldFin.Text = "999999999999";
    open.world.memory.available = std::uint64_t{1} << 40;
    list.PushButtonCalcPrems.UserPressed();
    CHECK(list.UserPressedKey(Chr(27)));
    open.world.Settle();
    const PrimeTable& table = open.world.Main().primeFile.Nbres_Premiers;
    CHECK(list.TxtAreaListeNbres1ers.Text() == "\t2\t3\t5\t7");
    CHECK(
        (list.EditFieldFin.Text() == std::to_string(table.Back()) && list.Ind_DerPrem == table.UpperBound()));
}

TEST_CASE(
    "Ctrl+F goes to a value and tells its rank or its neighbours, on the screen and to screen readers") {
    OpenList open(104729);
    WinNbresPremiers& list = open.List();
    // The value, what is selected, the label, what is said, and the range.
    const std::array<const char*, 5> rows[] = {
        {"104723", "104723", "104 723 (n° 9 999)", "104 723 (n° 9 999)", "8999-10000"},
        {"90000", "90001", "89 989 (n° 8 713) < 90 000 < 90 001 (n° 8 714)",
            "90 000 n'est pas premier. Voisins : 89 989 (n° 8 713), 90 001 (n° 8 714)", "7714-9713"},
        {"0", "2", "0 < 2 (n° 1)", "0 n'est pas premier. Voisins : 2 (n° 1)", "1-2000"},
        {"104730", "2", "0 < 2 (n° 1)", "Au-delà de la liste, qui va jusqu'à 104 729", "1-2000"},
    };
    for (const auto& [value, selected, label, said, range] : rows) {
        CAPTURE(value);
        list.UserPressedShortcut(list.Shortcuts().front());
        CHECK(list.EditFieldChercher.HasFocus());
        open.world.Type(list.EditFieldChercher, value);
        CHECK(list.EditFieldChercher.UserPressedKey(Chr(13)));
        const TextArea& area = list.TxtAreaListeNbres1ers;
        CHECK(Mid(area.Text, area.SelStart + 1, area.SelLength) == selected);
        CHECK(list.StaticTextNbNbre1ers.Text() == label);
        CHECK(open.world.announcer.said.back() == said);
        CHECK(open.Range() == range);
        CHECK(list.EditFieldChercher.Visible() == !list.StaticTextNbNbre1ers.Visible());
    }
    CHECK(list.EditFieldChercher.UserPressedKey(Chr(27)));
    CHECK(list.TxtAreaListeNbres1ers.HasFocus());
    CHECK_FALSE(list.EditFieldChercher.Visible());
}
