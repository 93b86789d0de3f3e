#include "desktop/Offscreen.h"
#include "desktop/QtServices.h"
#include "machine/SystemClock.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <QKeyEvent>

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

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
