#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

using namespace tessarolyne;

TEST_CASE("Behind a dialog or a modal window nothing that the user does counts, and presses are heard") {
    TestWorld world;
    WinMain& window = world.Main();
    window.BevelButtonListe.UserPressed();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    world.Type(window.EditFieldNbre, "255");
    window.EditFieldNbre.UserFocused();
    const auto state = [&] {
        return window.EditFieldNbre.Text() + window.EditFieldBaseOrg.Text() + window.TxtAreaLettres.Text() +
               list.TxtAreaListeNbres1ers.Text() + list.EditFieldAffDu.Text() + window.Focus()->Name +
               list.Focus()->Name;
    };
    const auto doAll = [&] {
        const int beeps = world.sounds.beeps;
        list.PushButtonCalcPrems.UserPressed();
        window.BevelButtonListe.UserPressed();
        window.CheckBoxMajusc.UserPressed();
        window.RadioButton09AZ[1].UserPressed();
        window.PopupMenuBaseOrg.UserChose(5);
        window.EditFieldNbre.UserTyped("9");
        CHECK(world.sounds.beeps == beeps + 6);
        window.EditFieldBaseOrg.UserFocused();
        list.EditFieldAffAu.UserPressedKey(Chr(13));
        list.EditFieldAffDu.UserFocused();
        world.program->app.GetMenuBar()->Find("ApplePrefs")->UserChose(world.program->app);
        world.loop.Advance(100);
        CHECK((window.BevelButtonListe.Value() && !window.CheckBoxMajusc.Value()));
    };
    const auto before = state();
    world.dialogs.Expect(DialogButton::None, doAll);
    world.program->fncts.MyDialogBox("m", "", "Ok", "", "", 0, nullptr);
    CHECK(state() == before);
    world.loop.WhileModal([&] {
        doAll();
        world.program->winInfos().BoutonOk.UserPressed();
    });
    world.program->winInfos().ShowModal();
    CHECK(state() == before);
    window.CheckBoxMajusc.UserPressed();
    CHECK(state() != before);
}

TEST_CASE("The result of a calculation that began while a question was up waits, and the commands with it") {
    TestWorld world;
    WinMain& window = world.Main();
    window.calculation.NbresPremCalc(100, false);
    window.EditFieldNbre.Text = "6";
    world.dialogs.Expect(DialogButton::Action, [&] {
        window.decomposition.DecompPremDeb(false);
        world.loop.WaitUntil([&] { return !window.calculation.IsOnThread(); });
        world.loop.Advance(200);
        CHECK(window.calculation.CalculEnCours());
    });
    world.program->fncts.MyDialogBox("m", "", "Ok", "", "", 0, nullptr);
    CHECK((window.TxtAreaDecomp1er.Text() == "…" && window.ProgressWheel1.Visible()));
    CHECK_FALSE(world.program->fncts.DrapMenu);
    world.Settle();
    CHECK((window.TxtAreaDecomp1er.Text() == "2 x 3" && !window.ProgressWheel1.Visible()));
    CHECK(world.program->fncts.DrapMenu);
}

TEST_CASE("Several beeps stand apart, and a sound is waited for if it is to be") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    const auto begin = world.loop.Milliseconds();
    fncts.BeepNbT(1);
    CHECK(world.loop.Milliseconds() == begin);
    fncts.BeepNbT(3);
    CHECK((world.sounds.beeps == 4 && world.loop.Milliseconds() - begin > 300));
    fncts.PlayT(fncts.Zoum, false);
    CHECK(fncts.Zoum.IsPlaying());
    fncts.PlayT(fncts.Zoum, true);
    CHECK((world.sounds.played.size() == 2 && !fncts.Zoum.IsPlaying()));
}

TEST_CASE("A dialog over one window covers the others, which come back uncovered") {
    TestWorld world;
    world.Main().BevelButtonListe.UserPressed();
    const auto covers = [&](const Window& window) {
        return std::ranges::count_if(window.Controls(), [&](const Control* control) {
            return control->Name == "LabBlockUI1" && control->Visible() && control->Width == window.Width();
        });
    };
    WinNbresPremiers& list = world.program->winNbresPremiers();
    world.dialogs.Expect(
        DialogButton::Action, [&] { CHECK((covers(world.Main()) == 1 && covers(list) == 0)); });
    world.program->fncts.MyDialogBox("m", "", "Ok", "", "", 0, &list);
    CHECK(covers(world.Main()) == 0);
}

TEST_CASE("A link shows the finger, and is followed where the press ends on it") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    CHECK((!about.Web1.Visible() && !about.Email1.Visible()));
    Label& link = about.Email2;
    link.MouseEnter();
    CHECK(about.MouseCursor == Cursor::Finger);
    for (const int x : {-1, 1}) {
        CHECK(link.MouseDown(1, 1));
        CHECK(world.desktop.opened.empty());
        link.MouseUp(x, 1);
    }
    CHECK(world.desktop.opened.at(0).starts_with("mailto:author2%40tessarolyne.example?Subject=A%20propos"));
    link.MouseEnter();
    link.MouseExit();
    CHECK(about.MouseCursor == Cursor::Standard);
}

TEST_CASE("A window that is widened takes its controls along as they are held to its edges") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const int width = about.Width;
    about.UserResized(width + 60, about.Height);
    CHECK((
        about.TexteInfo.Width == 390 + 60 && about.BoutonOk.Left == 341 + 60 && about.BevButtDon.Left == 20));
}

TEST_CASE("A chooser begins where its item stands, and suggests what fits it") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    world.files.AddFile("/home/user/primes.txt", "");
    const auto at = [&](const char* path) { return FolderItem::FromNativePath(world.files, path); };
    const struct {
        std::optional<FolderItem> start;
        const char *folder, *name;
    } rows[] = {{at("/home/user/primes.txt"), "/home/user", "primes.txt"},
        {at("/home/user/Documents"), "/home/user/Documents", "new.txt"},
        {std::nullopt, "/home/user/Documents", "new.txt"}, {at("/"), "/", "new.txt"}};
    for (const auto& row : rows) {
        world.dialogs.ExpectFile(std::nullopt);
        CHECK_FALSE(
            fncts.MyDialogSave(row.start, "prompt", FileTypes::QueText, "new.txt", nullptr).has_value());
        CHECK(world.dialogs.fileDialogs.back().initialFolder->NativePath() == row.folder);
        CHECK(world.dialogs.fileDialogs.back().suggestedName == row.name);
    }
    CHECK(world.dialogs.fileDialogs.back().filterExtension == ".txt");
    world.files.AddLink("/home/user/alias.txt", "/home/user/primes.txt");
    world.dialogs.ExpectFile(at("/home/user/alias.txt"));
    CHECK(fncts.MyDialogLoad({}, "prompt", FileTypes::QueText, nullptr) == at("/home/user/alias.txt"));
    world.dialogs.Expect(DialogButton::Alternate);
    CHECK(fncts.MyDialogBox("", "why", "Ok", "", "Other", 1, nullptr) == 3);
    CHECK(world.dialogs.asked.back().message == " ");
}

TEST_CASE("Two routes of a conversion that disagree are reported, once until others do") {
    TestWorld world;
    world.dialogs.Expect(DialogButton::Action); // a second dialog would fail the test
    for (const char* fromSource : {"11", "11"}) {
        world.Main().entry.ReportConversionMismatch("101", 2, fromSource, 16);
    }
    CHECK(world.dialogs.asked.front().message ==
          "Il y a une erreur de transcription de base !\rRésultat en base 2 \rdepuis base 10 = 101 "
          "\rdepuis base 16 = 11 ");
}
