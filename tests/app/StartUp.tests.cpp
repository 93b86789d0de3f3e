#include "app/CommandLine.h"
#include "platform/Text.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"

#include <sstream>

using namespace tessarolyne;

namespace {

const std::string donationPage = DONATION_PAGE; // of the build's setting

// A start of a user who hasn't given yet, with what happens while the prompt is up.
struct Prompted : TestWorld {
    explicit Prompted(const std::function<void(Prompted&, WinInfos&)>& meanwhile)
        : TestWorld(Launch::NotYet) {
        files.AddFile(preferencesFile, "Date Launch :@: 2026-11-21 12:00:00\nAuto Check Update :@: True\n");
        loop.WhileModal([this, meanwhile] { meanwhile(*this, program->winInfos()); });
        program->Start();
    }
    // Whether the next start finds these settings.
    bool Saves(const std::string& settings) {
        program->app.RequestQuit();
        loop.Advance(100);
        return HasSaved(settings);
    }
};

} // namespace

TEST_CASE("Every setting comes from its line of the file, and goes back to it") {
    const std::string file =
        "Date Launch :@: 2026-11-22 09:05:03\nDeja Envoye Don 03 :@: True\nAuto Check Update :@: True\n"
        "Fenetre WinMain :@: 300,200,550,594\nMajuscule :@: True\nFenetre WinNbres_1ers :@: 70,90,520,540\n"
        "Liste Nb1ers Visible :@: True\nFichier Nbres 1ers :@: Root:home:user:primes.txt\n"
        "Nbre Nb Prem par Lignes :@: 25\nBase Org :@: 6\nBase Dest :@: 34\nNbre Base 09AZ :@: 1\n"
        "Format Auto :@: False\nTrait d'union :@: True\nLangue Nombre Lettre :@: ch be\n"
        "Monnaie :@: a :@: b\nCentime :@: \nMonnaies :@: francs\nCentimes :@: centimes é\n"
        "Annonces :@: False\n";
    TestWorld world(file);
    world.files.AddFile("/home/user/primes.txt", "2\t3\t5\t7\t11\n");
    world.program->Start();
    WinMain& window = world.Main();
    CHECK(window.primeFile.Nbres_Premiers.Back() == 11);
    CHECK((world.program->app.AutoCheckUpdt && !world.program->fncts.Annonces));
    CHECK(std::pair(window.Left(), window.Top()) == std::pair(300, 200));
    CHECK((window.CheckBoxMajusc.Value() && window.CheckBoxTrUnion.Value()));
    CHECK((!window.CheckBoxFormatAuto.Value() && window.RadioButton09AZ[1].Value()));
    CHECK(window.PopupMenuBaseOrg.Text() + window.PopupMenuBaseDest.Text() == "en base 8en base 36");
    CHECK((window.EditFieldMonnaie.Text() == "a :@: b" && window.EditFieldCentime.Text().empty()));
    CHECK(window.EditFieldBaseOrg.Text().empty()); // loading settings computes nothing
    window.UserClosed();
    CHECK(world.files.entries.at(world.preferencesFile).content == ReplaceAll(file, "09:05:03", "12:00:00"));
}

TEST_CASE("A second instance leaves the binding that another has made meanwhile, and makes its own") {
    TestWorld world;
    ProgramRun second(world.services);
    second.Start();
    const auto bind = [&](Program& program, const char* path) {
        world.files.AddFile(path, "2\t3\t5\t7\n");
        program.app.FichNbPrems = world.files.At(path);
        program.winMain().settings.PrefsSauver(false);
    };
    bind(*world.program, "/home/user/a.txt");
    second.winMain().settings.PrefsSauver(false);
    CHECK(world.HasSaved("Root:home:user:a.txt\n"));
    bind(second, "/home/user/b.txt");
    CHECK(world.HasSaved("Root:home:user:b.txt\n"));
}

TEST_CASE("A place that isn't whole on the screen, by one point, is the default place") {
    const int right = 1280 - 550;
    const int bottom = 1024 - 594;
    const struct {
        int left, top;
        bool whole = false;
    } rows[] = {{0, 38, true}, {right, bottom, true}, {0, 37}, {-1, 100}, {right + 1, 100},
        {right, bottom + 1}, {1280, 0, true}}; // the last on a second screen
    for (const auto& [left, top, whole] : rows) {
        TestWorld world("Fenetre WinMain :@: " + std::to_string(left) + "," + std::to_string(top) + ",1,1\n");
        world.program->Start();
        CHECK(world.Main().Left() == (whole ? left : 20));
        CHECK(world.Main().Top() == (whole ? top : 60));
    }
}

TEST_CASE("A file that can't be read to its end says so, keeps what came before, and is kept beside") {
    TestWorld world(
        "Base Dest :@: 8\nBase Org :@: 35\nMajuscule :@: True\nFenetre WinMain :@: 300,200,1,1\n");
    world.dialogs.ExpectTell();
    world.dialogs.Expect(DialogButton::Action); // the hint of a first launch
    world.loop.WhileModal([&] { world.program->app.Quit(0); });
    world.program->Start();
    CHECK(world.sounds.beeps == 3);
    CHECK(world.dialogs.told.at(0) ==
          "Error ! Please contact the authors.\nPrefsCharger, problem while reading file!");
    const WinMain& window = world.Main();
    CHECK((window.PopupMenuBaseDest.ListIndex == 8 && window.PopupMenuBaseOrg.ListIndex == 14));
    CHECK((!window.CheckBoxMajusc.Value() && window.PopupMenuLg.ListIndex == 0));
    world.Main().settings.PrefsSauver(false);
    const std::string kept = world.files.entries.at(std::string(world.preferencesFile) + ".bad").content;
    CHECK(kept.find("Org :@: 35") != std::string::npos);
    CHECK(world.HasSaved("Org :@: 14"));
}

TEST_CASE("An unknown language is told, and settings that can't be written don't hold up the quit") {
    TestWorld world("Langue Nombre Lettre :@: la\n");
    world.dialogs.ExpectTell();
    world.program->Start();
    CHECK(world.Main().PopupMenuLg.ListIndex == 0);
    world.files.unwritable.insert(world.preferencesFile);
    world.dialogs.ExpectTell();
    world.Main().UserClosed();
    world.loop.Advance(50);
    CHECK(world.loop.IsQuitting());
    const std::string fault = "Error ! Please contact the authors.\n";
    CHECK(world.dialogs.told == std::vector{fault + "PrefsCharger, LangNbreLettr = 'la'",
                                    fault + "PrefsSauver, problem while writing file!"});
}

TEST_CASE("The first launch gives the hint, then the about window, and neither prompt nor check") {
    TestWorld world(TestWorld::Launch::First);
    world.dialogs.Expect(DialogButton::Action, [&] { CHECK(world.Main().Visible()); });
    world.loop.WhileModal([&] {
        WinInfos& about = world.program->winInfos();
        CHECK(about.TexteInfo.Text().starts_with(Localisation::Infos_Texte()));
        CHECK_FALSE(about.BevButtDejDon.Visible());
        about.BoutonOk.UserPressed();
    });
    world.program->Start();
    CHECK(world.dialogs.asked.at(0).message == Localisation::Txt_SiVsVoulezConservNbPrem());
    CHECK((world.program->app.initProg && world.program->fncts.DrapMenu && world.http.requests.empty()));
}

TEST_CASE("Until the user has given, each start asks for a donation") {
    Prompted world([](Prompted& self, WinInfos& about) {
        const std::string title = "Faire un don…";
        CHECK(about.TexteInfo.Text() == title + "\n\n" + Localisation::Infos_Text_Don());
        CHECK_FALSE(self.program->app.initProg);
        about.BoutonOk.UserPressed();
    });
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.http.requests.size() == 1);
    // This launch, not the one before.
    CHECK(world.Saves("Date Launch :@: 2026-11-22 12:00:00\nDeja Envoye Don 03 :@: False\n"));
}

TEST_CASE("Who has given, or says so, isn't asked again, whatever the browser does") {
    enum { Says, Gives, GivesByMenu };
    for (const int how : {Says, Gives, GivesByMenu}) {
        CAPTURE(how);
        Prompted world([&](Prompted& self, WinInfos& about) {
            self.desktop.takesAddresses = false;
            if (how != Says) {
                self.dialogs.ExpectTell();
            }
            (how == Gives ? about.BevButtDon : about.BevButtDejDon).UserPressed();
            self.program->app.DejaDonne = how != GivesByMenu;
        });
        if (how == GivesByMenu) {
            world.program->app.GetMenuBar()->Find("AppleDon")->UserChose(world.program->app);
        }
        CHECK(world.dialogs.told == std::vector<std::string>(how == Says ? 0 : 1, donationPage));
        CHECK(world.Saves("Don 03 :@: True"));
    }
}

TEST_CASE("Help and version are printed, a session opens the window, any other argument is refused by name") {
    const std::string help = "Usage: tessarolyne";
    const std::string version = std::string("Tessarolyne ") + shortVersion + "\n";
    const struct {
        std::vector<const char*> arguments;
        std::optional<int> status;
        std::string out = {}; // its beginning
        bool full = false;    // the disk behind the redirection
    } rows[] = {{{}, std::nullopt}, {{"-session", "10ab_12"}, std::nullopt}, {{"-h"}, 0, help},
        {{"--help"}, 0, help}, {{"-v"}, 0, version}, {{"--version"}, 0, version},
        {{"--version"}, 1, version, true}, {{"255"}, 2}, {{""}, 2}, {{"--versions"}, 2}, {{"-session"}, 2},
        {{"-session", ""}, 2}, {{"-session", "a", "b"}, 2}, {{"-platform", "xcb"}, 2},
        {{"--help", "255"}, 2}};
    for (const auto& row : rows) {
        CAPTURE((row.arguments.empty() ? "" : row.arguments.front()));
        std::ostringstream out;
        std::ostringstream err;
        out.setstate(row.full ? std::ios::badbit : std::ios::goodbit);
        CHECK(AnswerCommandLine(row.arguments, out, err) == row.status);
        CHECK((row.full || (out.str().starts_with(row.out) && out.str().empty() == row.out.empty())));
        CHECK(err.str().empty() == (row.status != 2));
        CHECK((row.status != 2 || err.str().find(row.arguments.front()) != std::string::npos));
    }
}
