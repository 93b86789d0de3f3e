#include "desktop/Offscreen.h"
#include "desktop/QtServices.h"
#include "machine/SystemClock.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

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
            const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, QPointF(8, 8), QPointF(8, 8), Qt::LeftButton, down, Qt::NoModifier);
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
    Program program(services);
    program.Start();
    desktop.loop.Post([&] { program.app.RequestQuit(); });
    CHECK(program.fncts.MyDialogBox("m", "", "Ok", "", "", 0, &program.winNbresPremiers()) == 0);
    CHECK(program.app.DrapOkQuit);
}
