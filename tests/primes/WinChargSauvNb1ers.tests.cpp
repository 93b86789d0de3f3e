#include "primes/WinChargSauvNb1ers.h"

#include "platform/FolderItem.h"
#include "primes/RunFixture.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;
using enum DialogButton;

namespace {

using Numbers = std::vector<std::uint64_t>;

const std::string path = "/home/user/primes.txt";
const Numbers firstFour{2, 3, 5, 7};
const Numbers found{2, 3, 5, 7, 11, 13};
const std::string foundText = "Nombre de Nombres Premiers : 6\n2\t3\t5\t7\t11\t13\n";

// A program that has found two primes and is bound to a file of these bytes, which it hasn't read.
struct Bound : TestWorld {
    explicit Bound(const std::string& bytes) {
        files.AddFile(path, bytes);
        program->app.FichNbPrems = files.At(path);
        Main().calculation.NbresPremCalc(13, false);
    }
    void Load() { program->winChargSauvNb1ers().LoadNb1ers(); }
    void Save(LinkPolicy links = LinkPolicy::ReplaceTarget) {
        program->winChargSauvNb1ers().SaveNb1ers(links);
    }
    Numbers Table() { return Entries(Main().primeFile.Nbres_Premiers); }
    std::string Content() { return files.entries[path].content; }
    std::string LastMessage() { return dialogs.asked.empty() ? "" : dialogs.asked.back().message; }
};

// A place that takes everything and then has no room for it.
struct FullDisk final : MemoryFileSystem {
    std::unique_ptr<OutputFile> CreateSafely(const std::string&, LinkPolicy) override {
        struct Full final : OutputFile {
            void Write(std::string_view) override {}
            void Commit() override { throw IOException("no space left"); }
        };
        return std::make_unique<Full>();
    }
};

} // namespace

TEST_CASE("A file of primes becomes the table; any other leaves it, and is named before it is replaced") {
    const std::string noPrimes = Localisation::Txt_CeFichContPasNb1er();
    struct Case {
        std::string bytes;
        std::vector<DialogButton> answers;
        Numbers numbers;
        std::uint32_t known;
        bool staysBound;
        std::string content;
    };
    const auto same = [](const std::string& bytes, Numbers numbers) {
        const auto known = numbers == found ? 0U : static_cast<std::uint32_t>(numbers.size());
        return Case{bytes, {}, std::move(numbers), known, true, bytes};
    };
    const auto named = [](const std::string& bytes, DialogButton answer) {
        return Case{bytes, {answer}, found, answer == Action ? 6U : 0U, answer != Cancel,
            answer == Action ? foundText : bytes};
    };
    for (const Case& file : {same("x : 5\n2\t3\t5\t7\t11\n", {2, 3, 5, 7, 11}),
             same("x : 0\n2\t3\t5\t7\n", firstFour), same("2\t3\t5\t7\t1\t1\t6\n", {2, 3, 5, 7, 1, 1, 6}),
             same("", found), same("\r\n \t\n", found), same("Nombre : 25\n", found),
             same("\xEF\xBB\xBFNombre : 25", found), named("Dear Anne\nyours\n", Action),
             named("Dear Anne\nyours\n", Cancel), named("Dear Anne\nyours\n", None),
             named("Dear Anne : hello", Cancel), named("4\n", Action), named("2\t3\t5\n", Cancel),
             named("2\t3 : 5\n7\t11\t13\t17\n", Cancel), named(std::string(9, '\0'), Cancel)}) {
        CAPTURE(file.bytes);
        Bound world(file.bytes);
        for (const DialogButton answer : file.answers) {
            world.dialogs.Expect(answer, [&] { CHECK(world.Table() == found); });
        }
        world.Load();
        CHECK(world.Table() == file.numbers);
        CHECK(world.Main().primeFile.Nb_NbrePcharg == file.known);
        CHECK(world.program->app.FichNbPrems.has_value() == file.staysBound);
        CHECK(world.Content() == file.content);
        CHECK(world.LastMessage() == (file.answers.empty() ? "" : noPrimes));
        CHECK(world.sounds.beeps == static_cast<int>(file.answers.size()));
    }
}

TEST_CASE(
    "After a load that failed nothing is offered or saved until more is found, and then with a warning") {
    const auto fail = [](Bound& world, int way) {
        MemoryFileSystem::Entry& file = world.files.entries[path];
        switch (way) {
        case 0:
            file.kind = FileKind::Folder;
            break;
        case 1:
            world.files.unreadable.insert(path);
            break;
        case 2:
            world.memory.available = 0;
            break;
        case 3:
            file.claimedSize = std::uint64_t{2'147'483'647} * 13 + 5000;
            break;
        default:
            file.kind = FileKind::Unknown; // in a folder that can't be searched
        }
        world.dialogs.Expect(Action, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
        world.Load();
    };
    for (const int way : {0, 1, 2, 3, 4}) {
        CAPTURE(way);
        Bound atStart("2\t3\t5\t7\t11\n");
        atStart.Main().primeFile.Nbres_Premiers.Clear();
        fail(atStart, way);
        CHECK(atStart.Table() == firstFour);
        CHECK(atStart.program->app.FichNbPrems.has_value());
        CHECK(atStart.LastMessage() ==
              (way == 3 ? Localisation::Txt_FichTropGrand() : Localisation::Txt_ErreurLectFich()));
        CHECK(atStart.dialogs.asked[0].icon == 1);
        CHECK(atStart.sounds.beeps == 1);
        atStart.Main().UserClosed(); // asks nothing
        atStart.loop.Advance(50);
        CHECK(atStart.loop.IsQuitting());

        Bound later("2\t3\t5\t7\t11\n");
        fail(later, way);
        CHECK(later.Table() == found);
        later.dialogs.Expect(Alternate);
        later.Main().UserClosed();
        CHECK(later.LastMessage().starts_with("Il y a 2 nouveaux"));
        CHECK(later.dialogs.asked.back().explanation == Localisation::Txt_CeciEffSonCont());
        later.program->EndWithoutAsking();
        CHECK(later.Content() == "2\t3\t5\t7\t11\n");
    }
    Bound gone("");
    gone.files.AddLink(path, "/home/user/gone.txt");
    gone.Load();
    CHECK(gone.program->app.FichNbPrems.has_value());
}

TEST_CASE("While it works the window is drawn, holds the commands and can't be closed") {
    Bound world("x : 500\n2\t3\t5\t7\t11\t13");
    for (const bool saving : {false, true}) {
        WinChargSauvNb1ers& window = world.program->winChargSauvNb1ers();
        int drawn = 0;
        const Connection connection = window.DrawNow.Connect([&] {
            ++drawn;
            CHECK_FALSE(world.program->fncts.DrapMenu);
            window.UserClosed();
            CHECK_FALSE(window.IsClosed());
        });
        saving ? window.SaveNb1ers() : window.LoadNb1ers();
        CHECK(drawn == (saving ? 5 : 6));
        CHECK(window.IsClosed());
        CHECK(world.program->fncts.DrapMenu);
    }
}

TEST_CASE("A load at the start shows nothing, unless it lasts, and then leaves the keyboard where it is") {
    for (const bool lasts : {false, true}) {
        Bound world("x : 500\n2\t3\t5\t7\t11\t13");
        CHECK(world.stage.Count<WinChargSauvNb1ers>() == 0); // from the start with no file
        {
            const QuietShowing quiet(world.program->app);
            WinChargSauvNb1ers& window = world.program->winChargSauvNb1ers();
            const Connection connection = window.DrawNow.Connect([&] {
                world.loop.Advance(lasts ? 20 : 0);
                CHECK_FALSE((window.Visible() && window.TakesKeyboard()));
            });
            const std::int64_t start = world.loop.Ticks();
            window.LoadNb1ers();
            CHECK((world.loop.Ticks() == start) != lasts);
        }
        CHECK(world.stage.Count<WinChargSauvNb1ers>() == (lasts ? 1 : 0));
        CHECK(world.Table() == found);
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
    struct Case {
        std::string now;
        bool isQuiet;
        std::string message; // none: nothing is said
        std::string content;
    };
    const std::string more = "2\t3\t5\t7\t11\t13\t17\n";
    const std::string fewer = "2\t3\t5\t7\t11\n";
    for (const Case& file : {Case{more, false, Localisation::Txt_FichAPlusDeNb1ers(), more},
             Case{more, true, "", more}, Case{fewer, false, "", foundText}, Case{fewer, true, "", foundText},
             Case{"", false, "", foundText}, Case{"Dear Anne", true, "", "Dear Anne"},
             Case{"Dear Anne", false, Localisation::Txt_CeFichContPasNb1er(), foundText}}) {
        CAPTURE(file.now);
        Bound world("2\t3\t5\t7\n");
        world.Load();
        world.Main().calculation.NbresPremCalc(13, false);
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
    own.Main().calculation.NbresPremCalc(13, false);
    own.Save();
    own.Main().primeFile.Nbres_Premiers.Clear();
    own.Save();
    CHECK(own.Content() == "Nombre de Nombres Premiers : 0\n");
}

TEST_CASE("A failed save says so with three beeps and leaves table and file as they were") {
    Bound world("2\t3\t5\t7\n");
    FullDisk full;
    world.files.unwritable.insert(path);
    int beeps = 0;
    for (const std::optional<FolderItem>& item :
        {world.program->app.FichNbPrems, std::optional(full.At(path)), std::optional<FolderItem>()}) {
        world.program->app.FichNbPrems = item;
        world.dialogs.Expect(Action);
        world.Save();
        CHECK(world.LastMessage() == Localisation::Txt_ErreurEcritFich());
        CHECK(world.dialogs.asked.back().icon == 1);
        CHECK(world.sounds.beeps == (beeps += 3));
        CHECK(world.Table() == found);
        CHECK(world.Main().primeFile.Nb_NbrePcharg == 6);
        CHECK(world.program->fncts.DrapMenu);
    }
    CHECK(world.Content() == "2\t3\t5\t7\n");
}
