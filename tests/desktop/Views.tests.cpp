#include "desktop/Offscreen.h"
#include "desktop/QtServices.h"
#include "desktop/QtText.h"
#include "desktop/TextEdits.h"
#include "machine/SystemClock.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/WinInfos.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

using namespace tessarolyne;

TEST_CASE("A control is greyed once it has been disabled for 150 ms, and refuses what comes from the first") {
    UseQt();
    TestWorld world;
    WinMain& window = world.Main();
    const WindowView view(window, nullptr);
    auto* const box = view.findChild<QWidget*>("CheckBoxMajusc");
    auto* const menu = view.findChild<QComboBox*>("PopupMenuLg");
    const auto click = [](QWidget* widget) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(8, 8), QPointF(8, 8), Qt::LeftButton, {}, {});
            QCoreApplication::sendEvent(widget, &event);
        }
    };
    click(box);
    CHECK(window.CheckBoxMajusc.Value);
    for (const int disabledFor : {149, 150}) {
        window.PopupMenuLg.Enabled = false;
        click(menu);
        CHECK_FALSE(menu->view()->isVisible());
        window.CheckBoxMajusc.Enabled = false;
        click(box);
        window.CheckBoxMajusc.Enabled = true;
        window.CheckBoxMajusc.Enabled = false;
        world.loop.Advance(disabledFor);
        CHECK(box->isEnabled() == (disabledFor < 150));
        window.CheckBoxMajusc.Enabled = true;
        window.PopupMenuLg.Enabled = true;
        CHECK(box->isEnabled());
        CHECK(window.CheckBoxMajusc.Value);
    }
}

TEST_CASE("The pointer over the button for a donation is a finger") {
    UseQt();
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const WindowView view(about, nullptr);
    QEnterEvent enter({}, {}, {});
    QCoreApplication::sendEvent(view.findChild<QWidget*>("BevButtDon"), &enter);
    CHECK(about.MouseCursor == Cursor::Finger);
}

TEST_CASE(
    "Escape chooses no button, not even one that is called cancel, and a quit ends a sheet with its window") {
    UseQt();
    TestWorld parts("");
    SystemClock clock;
    QtServices desktop(parts.files);
    MessageDialog question;
    question.actionCaption = "Ok";
    question.cancelCaption = "Historique…";
    desktop.loop.Post([] {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(QApplication::activeModalWidget(), &escape);
    });
    CHECK(desktop.dialogs.Ask(question) == DialogButton::None);
    Services services{clock, desktop.loop, desktop.stage, desktop.dialogs, parts.desktop, parts.sounds,
        parts.http, parts.files, parts.memory, parts.announcer};
    ProgramRun program(services);
    program.Start();
    desktop.loop.Post([&] { program.app.RequestQuit(); });
    CHECK(program.fncts.MyDialogBox("m", "", "Ok", "", "", 0, &program.winNbresPremiers()) == 0);
    CHECK(program.app.DrapOkQuit);
}

TEST_CASE("A dialog's text keeps its lines, shows what would change its layout as escapes, and is cut") {
    CHECK(VisibleText("a\rb\r\nc\td") == u"a\nb\nc\td"_qs);
    CHECK(VisibleText("x\u202Egnp.exe") == u"x⟨U+202E⟩gnp.exe"_qs);
    CHECK(VisibleText(std::string("\0\x1B\x7F", 3)) == u"⟨U+0000⟩⟨U+001B⟩⟨U+007F⟩"_qs);
    CHECK(VisibleText("\uFEFF\u2066\u200F") == u"⟨U+FEFF⟩⟨U+2066⟩⟨U+200F⟩"_qs);
    CHECK(VisibleText("<b>é 😀</b>") == u"<b>é 😀</b>"_qs);
    const QString shown = VisibleText(std::string(1'000'000, 'm'));
    CHECK(shown.size() < 20'000);
    CHECK(shown.endsWith(u'…'));
}

TEST_CASE("Positions agree across line ends, wide characters and bytes that are no text") {
    const std::string text = "a\r\n😀é\xFFz";
    // a, CR, LF, the face, é, the byte, z
    CHECK(WithLineFeeds(text).size() == 7);
    CHECK(UnitOfCharacter(text, 3) == 2);
    CHECK(UnitOfCharacter(text, 4) == 4);
    CHECK(UnitOfCharacter(text, 7) == 7);
    CHECK(CharacterOfUnit(text, 4) == 4);
    CHECK(CharacterOfUnit(text, 6) == 6);
    CHECK(CharacterOfUnit(text, 99) == 7);
}

TEST_CASE("A tool tip is never markup nor wider than the screen, and a caption never a mnemonic") {
    CHECK(PlainToolTip("<img src=x>\rb").contains(u"&lt;img src=x&gt;\nb"_qs));
    CHECK(PlainToolTip(std::string(100, 'x')).contains(u"x\nx"_qs)); // else it leaves the screen
    CHECK(WithAltKey("R&D", "") == u"R&&D"_qs);
}

TEST_CASE("The edit between two texts is the one that the user made") {
    const struct {
        const char* what;
        QString before, after;
        qsizetype selectionStart, caret;
        Replacement expected;
    } cases[] = {
        {"a digit typed among equal ones", u"1111"_qs, u"11111"_qs, 1, 2, {1, 0, u"1"_qs}},
        {"the key that deletes to the left", u"2222"_qs, u"222"_qs, 3, 2, {2, 1, u""_qs}},
        {"the key that deletes to the right", u"2222"_qs, u"222"_qs, 2, 2, {2, 1, u""_qs}},
        {"a paste that begins like what was selected", u"1 000"_qs, u"1 234,5"_qs, 0, 7,
            {0, 5, u"1 234,5"_qs}},
        {"an undo with the caret elsewhere", u"12345"_qs, u"19345"_qs, 5, 0, {1, 1, u"9"_qs}},
        {"one half of a surrogate pair", u"a\U0001F600b"_qs, u"a\U0001F601b"_qs, 3, 3,
            {1, 2, u"\U0001F601"_qs}},
        {"a first text", u""_qs, u"255"_qs, 0, 3, {0, 0, u"255"_qs}},
    };
    for (const auto& c : cases) {
        CAPTURE(c.what);
        const Replacement change = FindReplacement(c.before, c.after, c.selectionStart, c.caret);
        CHECK(change.start == c.expected.start);
        CHECK(change.removed == c.expected.removed);
        CHECK(change.inserted == c.expected.inserted);
    }
}
