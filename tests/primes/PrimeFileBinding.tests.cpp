#include "primes/WinChargSauvNb1ers.h"

#include "primes/RunFixture.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

using namespace tessarolyne;
using enum DialogButton;

namespace {

using Numbers = std::vector<std::uint64_t>;

const std::string path = "/home/user/primes.txt";
const std::string sixPrimes = "2\t3\t5\t7\t11\t13\n";
const Numbers firstFour{2, 3, 5, 7};
const Numbers found{2, 3, 5, 7, 11, 13};
const std::string foundText = "Nombre de Nombres Premiers : 6\n" + sixPrimes;

// A program with four primes beside a file of these bytes, which it hasn't read.
struct World : TestWorld {
    explicit World(const std::string& bytes) { files.AddFile(path, bytes); }
    std::optional<FolderItem>& BoundFile() { return program->app.FichNbPrems; }
    Numbers Table() { return Entries(Main().primeFile.Nbres_Premiers); }
    std::string Content() { return files.entries[path].content; }
    std::string LastMessage() { return dialogs.asked.empty() ? "" : dialogs.asked.back().message; }
};

// One that is bound to the file, and has found two primes more.
struct Bound : World {
    explicit Bound(const std::string& bytes) : World(bytes) {
        BoundFile() = files.At(path);
        Find();
    }
    void Find() { Main().calculation.NbresPremCalc(13, false); }
    void Load() { program->winChargSauvNb1ers().LoadNb1ers(); }
    void Save(LinkPolicy links = LinkPolicy::ReplaceTarget) {
        program->winChargSauvNb1ers().SaveNb1ers(links);
    }
};

// One whose list shows the button of the file.
struct WithButton : World {
    explicit WithButton(bool bound) : World(sixPrimes) {
        BoundFile() = bound ? std::optional(files.At(path)) : std::nullopt;
        Main().BevelButtonListe.UserPressed();
    }
    std::string Caption() { return program->winNbresPremiers().PushButtonFichier.Caption; }
    // A chooser gives that path, or is cancelled without one.
    void Click(bool option, bool shift, const std::string& chosen) {
        desktop.option = option;
        desktop.shift = shift;
        if (!option) {
            dialogs.ExpectFile(chosen.empty() ? std::nullopt : std::optional(files.At(chosen)));
        }
        program->winNbresPremiers().PushButtonFichier.UserPressed();
    }
};

} // namespace

TEST_CASE("A file of primes becomes the table; any other leaves it, and is named before it is replaced") {
    const struct {
        std::string bytes;
        Numbers numbers;
        std::optional<DialogButton> answer = {};
    } rows[] = {{"x : 5\n2\t3\t5\t7\t11\n", {2, 3, 5, 7, 11}}, {"x : 0\n2\t3\t5\t7\n", firstFour},
        {"2\t3\t5\t7\t1\t1\t6\n", {2, 3, 5, 7, 1, 1, 6}}, {"", found}, {"\r\n \t\n", found},
        {"Nombre : 25\n", found}, {"\xEF\xBB\xBFNombre : 25", found}, {"Dear Anne\nyours\n", found, Action},
        {"Dear Anne\nyours\n", found, Cancel}, {"Dear Anne\nyours\n", found, None},
        {"Dear Anne : hello", found, Cancel}, {"4\n", found, Action}, {"2\t3\t5\n", found, Cancel},
        {"2\t3 : 5\n7\t11\t13\t17\n", found, Cancel}, {std::string(9, '\0'), found, Cancel}};
    for (const auto& [bytes, numbers, answer] : rows) {
        CAPTURE(bytes);
        Bound world(bytes);
        if (answer) {
            world.dialogs.Expect(*answer, [&] { CHECK(world.Table() == found); });
        }
        world.Load();
        const bool isKnown = numbers != found || answer == Action;
        CHECK(world.Table() == numbers);
        CHECK(world.Main().primeFile.Nb_NbrePcharg == (isKnown ? numbers.size() : 0));
        CHECK(world.BoundFile().has_value() == (answer != Cancel));
        CHECK(world.Content() == (answer == Action ? foundText : bytes));
        CHECK(world.LastMessage() == (answer ? Localisation::Txt_CeFichContPasNb1er() : ""));
        CHECK(world.sounds.beeps == (answer ? 1 : 0));
    }
}

TEST_CASE(
    "After a load that failed nothing is offered or saved until more is found, and then with a warning") {
    const std::string fewer = "2\t3\t5\t7\t11\n";
    for (const int fault : {0, 1, 2, 3, 4}) {
        CAPTURE(fault);
        const auto fail = [&](Bound& world) {
            auto& file = world.files.entries[path];
            constexpr FileKind kinds[] = {
                FileKind::Folder, FileKind::Unknown}; // in a folder that can't be searched
            file.kind = fault < 2 ? kinds[fault] : FileKind::Regular;
            world.files.unreadable = {fault == 2 ? path : ""};
            world.memory.available = fault == 3 ? 0 : world.memory.available;
            file.claimedSize = fault == 4 ? std::uint64_t{2'147'483'647} * 13 + 5000 : 0;
            world.dialogs.Expect(Action, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
            world.Load();
        };
        Bound atStart(fewer);
        atStart.Main().primeFile.Nbres_Premiers.Clear();
        fail(atStart);
        CHECK((atStart.Table() == firstFour && atStart.BoundFile().has_value()));
        CHECK(atStart.LastMessage() ==
              (fault == 4 ? Localisation::Txt_FichTropGrand() : Localisation::Txt_ErreurLectFich()));
        CHECK((atStart.dialogs.asked[0].icon == 1 && atStart.sounds.beeps == 1));
        atStart.Main().UserClosed(); // asks nothing
        atStart.loop.Advance(50);
        CHECK(atStart.loop.IsQuitting());

        Bound later(fewer);
        fail(later);
        CHECK(later.Table() == found);
        later.dialogs.Expect(Alternate);
        later.Main().UserClosed();
        CHECK(later.LastMessage().starts_with("Il y a 2 nouveaux"));
        CHECK(later.dialogs.asked.back().explanation == Localisation::Txt_CeciEffSonCont());
        later.program->EndWithoutAsking();
        CHECK(later.Content() == fewer);
    }
    Bound gone("");
    gone.files.AddLink(path, "/home/user/gone.txt");
    gone.Load();
    CHECK(gone.BoundFile().has_value());
}

TEST_CASE("While it works the window is drawn, holds the commands and can't be closed") {
    Bound world("x : 500\n" + sixPrimes);
    for (const bool saving : {false, true}) {
        WinChargSauvNb1ers& window = world.program->winChargSauvNb1ers();
        int drawn = 0;
        const Connection connection = window.Refresh.Connect([&] {
            ++drawn;
            CHECK_FALSE(world.program->fncts.DrapMenu);
            window.UserClosed();
            CHECK_FALSE(window.IsClosed());
        });
        saving ? window.SaveNb1ers() : window.LoadNb1ers();
        CHECK(drawn == (saving ? 5 : 6));
        CHECK((window.IsClosed() && world.program->fncts.DrapMenu));
    }
}

TEST_CASE("A save writes the table in the user's line length, to a link's target or in the link's place") {
    for (const LinkPolicy links : {LinkPolicy::ReplaceTarget, LinkPolicy::ReplaceLink}) {
        Bound world("");
        const std::string far = "/home/user/far.txt";
        world.files.AddFile(far);
        world.files.AddLink(path, far);
        world.Main().primeFile.NbreNbPparLigne = 4;
        world.Save(links);
        const bool stays = links == LinkPolicy::ReplaceTarget;
        CHECK(world.files.entries[stays ? far : path].content ==
              "Nombre de Nombres Premiers : 6\n2\t3\t5\t7\n11\t13\n");
        CHECK((world.files.entries[path].kind == FileKind::Link) == stays);
        CHECK(world.Main().primeFile.Nb_NbrePcharg == 6);
    }
}

TEST_CASE("A file that changed since it was seen is replaced only if nothing is lost by it") {
    const std::string more = "2\t3\t5\t7\t11\t13\t17\n";
    const std::string fewer = "2\t3\t5\t7\t11\n";
    const struct {
        std::string now;
        bool isQuiet;
        std::string content;
        std::string message; // none: nothing is said
    } rows[] = {{more, false, more, Localisation::Txt_FichAPlusDeNb1ers()}, {more, true, more, ""},
        {fewer, false, foundText, ""}, {fewer, true, foundText, ""}, {"", false, foundText, ""},
        {"Dear Anne", true, "Dear Anne", ""},
        {"Dear Anne", false, foundText, Localisation::Txt_CeFichContPasNb1er()}};
    for (const auto& file : rows) {
        CAPTURE(file.now);
        Bound world("2\t3\t5\t7\n");
        world.Load();
        world.Find();
        world.files.AddFile(path, file.now);
        if (!file.message.empty()) {
            world.dialogs.Expect(Action);
        }
        file.isQuiet ? world.program->EndWithoutAsking() : world.Save();
        CHECK(world.LastMessage() == file.message);
        CHECK(world.Content() == file.content);
        CHECK((world.Main().primeFile.Nb_NbrePcharg == 6 || file.isQuiet));
    }
    Bound own("2\t3\t5\t7\n"); // what was saved is seen, too
    own.Load();
    own.Find();
    own.Save();
    own.Main().primeFile.Nbres_Premiers.Clear();
    own.Save();
    CHECK(own.Content() == "Nombre de Nombres Premiers : 0\n");
}

TEST_CASE("A failed save says so with three beeps and leaves table and file as they were") {
    Bound world("2\t3\t5\t7\n");
    for (int fault = 0; fault < 3; ++fault) {
        world.files.isFull = fault == 0;
        world.files.unwritable = {fault == 1 ? path : ""};
        if (fault == 2) {
            world.BoundFile().reset();
        }
        world.dialogs.Expect(Action);
        world.Save();
        CHECK(world.LastMessage() == Localisation::Txt_ErreurEcritFich());
        CHECK((world.dialogs.asked.back().icon == 1 && world.sounds.beeps == 3 * (fault + 1)));
        CHECK((world.Table() == found && world.Main().primeFile.Nb_NbrePcharg == 6));
        CHECK(world.program->fncts.DrapMenu);
    }
    CHECK(world.Content() == "2\t3\t5\t7\n");
}

TEST_CASE("The binding, Option and Shift decide what a click does") {
    for (int keys = 0; keys < 8; ++keys) {
        const bool bound = (keys & 1) != 0, option = (keys & 2) != 0, shift = (keys & 4) != 0;
        CAPTURE(keys);
        WithButton world(bound);
        const bool load = bound != shift;
        const std::string chosen = load ? path : "/home/user/new.txt";
        world.Click(option, shift, chosen);
        if (option) {
            CHECK(world.desktop.opened.size() == (bound ? 1U : 0U));
            CHECK(world.sounds.beeps == (bound ? 0 : 1));
            CHECK(world.BoundFile().has_value() == bound);
            continue;
        }
        CHECK(world.dialogs.fileDialogs.back().prompt ==
              (load ? Localisation::Txt_SelectFichierNbPrem() : Localisation::Txt_SelectDossSauv()));
        CHECK(world.BoundFile() == world.files.At(chosen));
        CHECK(world.Caption() == "Changer Fichier");
        CHECK(world.Main().primeFile.Nbres_Premiers.Back() == (load ? 13 : 7));
        CHECK(world.files.entries.at(chosen).content.starts_with(load ? "2\t3" : "Nombre de"));
    }
}

TEST_CASE("A cancelled chooser asks what becomes of a bound file, and is silent without one") {
    WithButton unbound(true);
    unbound.files.entries.erase(path); // as good as none
    unbound.Click(false, false, path);
    CHECK(unbound.files.entries.at(path).content.starts_with("Nombre de Nombres Premiers : 4\n"));
    unbound.BoundFile().reset();
    unbound.Click(false, true, "");
    CHECK(unbound.dialogs.asked.empty());

    for (const DialogButton answer : {Action, Cancel, None}) {
        WithButton world(true);
        world.dialogs.Expect(answer);
        world.Click(false, false, "");
        CHECK(world.BoundFile().has_value() == (answer != Cancel));
        CHECK(world.Caption() == (answer == Cancel ? "Sauver Fichier" : "Changer Fichier"));
        CHECK(world.Main().primeFile.Nbres_Premiers.Back() == 7);
    }
}

TEST_CASE(
    "A file that can't be replaced, or found again at the next start, is told and counts as cancelled") {
    WithButton locked(false);
    locked.files.unwritable.insert(path);
    locked.dialogs.Expect(Action);
    locked.Click(false, false, path);
    CHECK(locked.dialogs.asked.at(0).message == "Remplacement impossible !");
    CHECK_FALSE(locked.BoundFile().has_value());
    WithButton fewer(true); // never read, and holds six primes to the table's four
    fewer.dialogs.Expect(Action);
    fewer.Click(false, true, path);
    CHECK(fewer.dialogs.asked.at(0).message == Localisation::Txt_FichAPlusDeNb1ers());
    CHECK(fewer.files.entries.at(path).content == sixPrimes);

    for (const bool load : {false, true}) {
        for (const char* name :
            {"/home/user/two\nlines.txt", "/home/user/two\rlines/primes.txt", "/home/user/link"}) {
            WithButton world(false);
            world.files.AddFile("/home/user/two\nlines.txt", sixPrimes);
            world.files.AddLink("/home/user/link", "/home/user/two\nlines.txt");
            world.dialogs.Expect(Action);
            world.Click(false, load, name);
            CHECK(world.dialogs.asked.at(0).message == Localisation::Txt_FichNomSurLignes());
            CHECK_FALSE(world.BoundFile().has_value());
            CHECK(world.files.entries.at("/home/user/two\nlines.txt").content == sixPrimes);
        }
    }
}
