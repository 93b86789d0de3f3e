#include "primes/WinChargSauvNb1ers.h"

#include "platform/IOException.h"
#include "primes/PlainPrimeFile.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string path = "/home/user/primes.txt";
const std::vector<std::uint64_t> firstFour{2, 3, 5, 7};

void Bind(TestWorld& world, const std::string& bytes) {
    world.files.AddFile(path, bytes);
    world.program->app.FichNbPrems = world.files.At(path);
}

// What the program looks like after a load of these bytes.
struct Loaded {
    std::vector<std::uint64_t> numbers;
    std::uint32_t known = 0;
    bool isBound = false;
    int beeps = 0;
    std::vector<std::string> asked;
};

Loaded Load(const std::string& bytes, std::vector<DialogButton> answers) {
    TestWorld world;
    Bind(world, bytes);
    world.Main().Nb_NbrePcharg = 77;
    for (const DialogButton answer : answers) {
        world.dialogs.Expect(answer);
    }
    world.program->winChargSauvNb1ers().LoadNb1ers();
    Loaded loaded{NumbersOf(world.Main().Nbres_Premiers), world.Main().Nb_NbrePcharg,
        world.program->app.FichNbPrems.has_value(), world.sounds.beeps, {}};
    for (const MessageDialog& dialog : world.dialogs.asked) {
        loaded.asked.push_back(dialog.message);
    }
    return loaded;
}

// A place that fails at the first byte, or takes everything and then fails.
class FullDisk final : public MemoryFileSystem {
public:
    explicit FullDisk(bool atOnce) : atOnce_(atOnce) {}
    std::unique_ptr<OutputFile> CreateSafely(const std::string&, LinkPolicy) override {
        struct Full final : OutputFile {
            explicit Full(bool failing) : atOnce(failing) {}
            void Fail() const { throw IOException("no space left"); }
            void Write(std::string_view) override { atOnce ? Fail() : void(); }
            void Commit() override { atOnce ? void() : Fail(); }
            bool atOnce;
        };
        return std::make_unique<Full>(atOnce_);
    }

private:
    bool atOnce_;
};

// Sees a window as whoever draws it.
class Drawer {
public:
    Drawer(WinChargSauvNb1ers& window, std::function<void()> meanwhile)
        : connection_(window.DrawNow.Connect([this, meanwhile = std::move(meanwhile)] {
              ++drawn;
              meanwhile();
          })) {}
    int drawn = 0;

private:
    Connection connection_;
};

void Append(TestWorld& world, std::initializer_list<std::uint64_t> numbers) {
    for (const std::uint64_t number : numbers) {
        REQUIRE(world.Main().Nbres_Premiers.Append(number));
    }
}

} // namespace

TEST_CASE("A loaded file becomes the table, and a bad one leaves 2, 3, 5, 7 and says what it has to") {
    const std::string readError = Localisation::Txt_ErreurLectFich();
    const std::string noPrimes = Localisation::Txt_CeFichContPasNb1er();
    using enum DialogButton;
    struct Case {
        const char* name;
        std::string bytes;
        std::vector<DialogButton> answers;
        std::vector<std::uint64_t> numbers;
        std::uint32_t known;
        bool staysBound;
        std::vector<std::string> asked;
    };
    const std::vector<Case> cases = {
        {"good", "x : 5\n2\t3\t5\t7\t11\n", {}, {2, 3, 5, 7, 11}, 5, true, {}},
        {"wrong count", "x : 0\n2\t3\t5\t7\n", {}, firstFour, 4, true, {}},
        {"good start, odd rest", "2\t3\t5\t7\t1\t1\t6\n", {}, {2, 3, 5, 7, 1, 1, 6}, 7, true, {}},
        {"empty", "", {}, firstFour, 0, true, {}},
        {"text without numbers", "Dear Anne\nyours\n", {}, firstFour, 0, true, {}},
        {"three entries", "2\t3\t5\n", {Action}, firstFour, 0, true, {readError}},
        {"only 4, to be overwritten", "4\n", {Action}, firstFour, 0, true, {noPrimes}},
        {"only 4, to be let go", "4\n", {Cancel}, firstFour, 0, false, {noPrimes}},
        {"data lost as a header", "2\t3 : 5\n7\t11\t13\t17\n", {Cancel}, firstFour, 0, false, {noPrimes}},
    };
    for (const Case& file : cases) {
        CAPTURE(file.name);
        const Loaded loaded = Load(file.bytes, file.answers);
        CHECK(loaded.numbers == file.numbers);
        CHECK(loaded.known == file.known);
        CHECK(loaded.isBound == file.staysBound);
        CHECK(loaded.asked == file.asked);
        CHECK(loaded.beeps == static_cast<int>(file.asked.size()));
    }
}

TEST_CASE("A file that can't be read is a read error, one that isn't there is none") {
    for (const FileKind kind : {FileKind::Folder, FileKind::Other, FileKind::Unknown, FileKind::Regular}) {
        TestWorld world;
        Bind(world, "2\t3\t5\t7\t11\n");
        world.files.entries[path].kind = kind;
        world.files.unreadable.insert(path);
        Append(world, {11});
        world.dialogs.Expect(DialogButton::Action, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
        world.program->winChargSauvNb1ers().LoadNb1ers();
        CHECK(world.dialogs.asked[0].message == Localisation::Txt_ErreurLectFich());
        CHECK(world.dialogs.asked[0].icon == 1);
        CHECK(NumbersOf(world.Main().Nbres_Premiers) == firstFour);
        CHECK(world.program->app.FichNbPrems.has_value());
        CHECK(world.program->fncts.DrapMenu);
    }
    TestWorld world;
    Append(world, {11});
    world.files.AddLink(path, "/home/user/gone.txt");
    world.program->app.FichNbPrems = world.files.At(path);
    world.program->winChargSauvNb1ers().LoadNb1ers();
    CHECK(NumbersOf(world.Main().Nbres_Premiers) == firstFour);
    CHECK(world.program->app.FichNbPrems.has_value());
}

TEST_CASE(
    "While it works the window is drawn, holds the commands and can't be closed; it is seen for 6 ticks") {
    TestWorld world;
    Bind(world, "x : 4\n2\t3\t5\t7\n");
    for (const bool saving : {false, true}) {
        WinChargSauvNb1ers& window = world.program->winChargSauvNb1ers();
        CHECK(window.Frame.kind == WindowFrame::Kind::MovableModal);
        CHECK_FALSE(window.Frame.closeButton);
        const int beeps = world.sounds.beeps;
        const std::int64_t start = world.loop.Ticks();
        Drawer drawer(window, [&] {
            CHECK(window.Visible());
            CHECK_FALSE(world.program->fncts.DrapMenu);
            window.UserClosed();
            CHECK_FALSE(window.IsClosed());
        });
        saving ? window.SaveNb1ers() : window.LoadNb1ers();
        CHECK(window.Title() ==
              (saving ? Localisation::WinSauvNb1ersTitre() : Localisation::WinChargNb1ersTitre()));
        CHECK(drawer.drawn == (saving ? 3 : 1));
        CHECK(world.sounds.beeps == beeps + drawer.drawn);
        CHECK(window.ProgressBarNb1ers.Maximum == 4);
        CHECK(window.ProgressBarNb1ers.Value == (saving ? 3 : 0));
        CHECK(world.loop.Ticks() >= start + 6);
        CHECK(window.IsClosed());
        CHECK(world.program->fncts.DrapMenu);
        CHECK_FALSE(world.program->HasWinChargSauvNb1ers());
    }
}

TEST_CASE("A header that is far too low doesn't make the window draw itself at every number") {
    TestWorld world;
    std::string bytes = "x : 500\n2\t3\t5\t7";
    for (int i = 0; i < 10'000; ++i) {
        bytes += "\t9";
    }
    Bind(world, bytes);
    WinChargSauvNb1ers& window = world.program->winChargSauvNb1ers();
    const Drawer drawer(window, [] {});
    window.LoadNb1ers();
    CHECK(drawer.drawn >= 500);
    CHECK(drawer.drawn <= 510);
}

TEST_CASE("A save writes the table in the user's line length and counts it as known") {
    TestWorld world;
    Bind(world, "old");
    Append(world, {11, 13});
    world.Main().NbreNbPparLigne = 4;
    world.program->winChargSauvNb1ers().SaveNb1ers();
    CHECK(world.files.entries[path].content == "Nombre de Nombres Premiers : 6\n2\t3\t5\t7\n11\t13\n");
    CHECK(world.Main().Nb_NbrePcharg == 6);
}

TEST_CASE("A link stays at a save, or is replaced where the user has just chosen it") {
    for (const LinkPolicy links : {LinkPolicy::ReplaceTarget, LinkPolicy::ReplaceLink}) {
        TestWorld world;
        world.files.AddFile("/home/user/far.txt", "old");
        world.files.AddLink(path, "/home/user/far.txt");
        world.program->app.FichNbPrems = world.files.At(path);
        world.program->winChargSauvNb1ers().SaveNb1ers(links);
        const bool stays = links == LinkPolicy::ReplaceTarget;
        CHECK((world.files.entries[path].kind == FileKind::Link) == stays);
        CHECK((world.files.entries["/home/user/far.txt"].content == "old") != stays);
    }
}

TEST_CASE("A failed save says so with three beeps and leaves table and file as they were") {
    TestWorld world;
    FullDisk fullDisk(true);
    FullDisk fullAtTheEnd(false);
    Append(world, {11});
    Bind(world, "old");
    world.files.unwritable.insert(path);
    int beeps = 0;
    for (const std::optional<FolderItem>& item :
        {world.program->app.FichNbPrems, std::optional(fullDisk.At(path)),
            std::optional(fullAtTheEnd.At(path)), std::optional<FolderItem>()}) {
        world.program->app.FichNbPrems = item;
        world.dialogs.Expect(DialogButton::Action);
        world.program->winChargSauvNb1ers().SaveNb1ers();
        CHECK(world.dialogs.asked.back().message == Localisation::Txt_ErreurEcritFich());
        CHECK(world.dialogs.asked.back().icon == 1);
        CHECK(world.sounds.beeps == (beeps += 3));
        CHECK(NumbersOf(world.Main().Nbres_Premiers) == std::vector<std::uint64_t>{2, 3, 5, 7, 11});
        CHECK(world.Main().Nb_NbrePcharg == 5);
        CHECK(world.program->fncts.DrapMenu);
    }
    CHECK(world.files.entries[path].content == "old");
}

TEST_CASE("A session that ends leaves a file alone that the table doesn't stem from") {
    TestWorld world;
    Bind(world, "what could not be read");
    Append(world, {11});
    world.program->EndWithoutAsking();
    CHECK(world.files.entries[path].content == "what could not be read");
}

TEST_CASE("A session that ends in the middle of a bad load doesn't save what is in the table then") {
    TestWorld world;
    Bind(world, "x : 4\n4\t6\t8\n");
    world.dialogs.Expect(DialogButton::None, [&] { world.program->EndWithoutAsking(); });
    world.program->winChargSauvNb1ers().LoadNb1ers();
    CHECK(world.files.entries[path].content == "x : 4\n4\t6\t8\n");
}
