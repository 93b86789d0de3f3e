#include "desktop/QtServices.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>

#include <chrono>

namespace tessarolyne {

namespace {

// How often a wait asks again whether it is over.
constexpr int waitStep = 4;

// Far longer than what anyone typed meanwhile takes.
constexpr int longestDrop = 100;

// Drops all input of the user, except the wish to quit.
class InputSink final : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->matches(QKeySequence::Quit)) {
            QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
        }
        return event->isInputEvent() || event->type() == QEvent::Shortcut ||
               event->type() == QEvent::InputMethod;
    }
};

} // namespace

int QtEventLoop::Run() {
    RunUntil([] { return false; });
    return exitCode_;
}

std::int64_t QtEventLoop::Milliseconds() const {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

// One event for each task, so that Qt's other events have their turn between two tasks.
void QtEventLoop::Post(std::function<void()> task) {
    QMetaObject::invokeMethod(
        this, [this, task = std::move(task)] { Take(task); }, Qt::QueuedConnection);
}

void QtEventLoop::Take(std::function<void()> task) {
    due_.push_back(std::move(task));
    RunNext();
}

void QtEventLoop::RunNext() {
    if (waits_ == 0 && !due_.empty()) {
        const auto task = std::move(due_.front());
        due_.pop_front();
        task();
    }
}

EventLoop::AlarmId QtEventLoop::SetAlarm(int milliseconds, std::function<void()> task) {
    const AlarmId alarm = ++lastAlarm_;
    alarms_[alarm] = std::move(task);
    QTimer::singleShot(
        milliseconds, Qt::PreciseTimer, this, [this, alarm] { Take([this, alarm] { Ring(alarm); }); });
    return alarm;
}

// Nothing if it was taken back.
void QtEventLoop::Ring(AlarmId alarm) {
    if (const auto rung = alarms_.extract(alarm)) {
        rung.mapped()();
    }
}

void QtEventLoop::RunUntil(const std::function<bool()>& done) {
    if (quitting_ || done()) {
        return;
    }
    QEventLoop loop;
    // Asked before each sleep, that is, after each batch of events: whatever makes it true is an event.
    const auto watch = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, [&] {
            if (loops_.back() == &loop && done()) {
                loop.exit();
            }
        });
    loops_.push_back(&loop);
    loop.exec();
    loops_.pop_back();
    QObject::disconnect(watch);
}

void QtEventLoop::WaitUntil(const std::function<bool()>& done) {
    ++waits_;
    {
        QTimer step;
        step.start(waitStep);
        while (!quitting_ && !done()) {
            QCoreApplication::processEvents(
                QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
        }
    }
    EndWait();
}

void QtEventLoop::DropInput() {
    InputSink sink;
    QCoreApplication::instance()->installEventFilter(&sink);
    ++waits_;
    QCoreApplication::processEvents(QEventLoop::AllEvents, longestDrop);
    EndWait();
}

// What was held back comes by fresh events and not from inside the wait's caller.
void QtEventLoop::EndWait() {
    for (std::size_t i = --waits_ == 0 ? due_.size() : 0; i > 0; --i) {
        QMetaObject::invokeMethod(
            this, [this] { RunNext(); }, Qt::QueuedConnection);
    }
}

void QtEventLoop::Quit(int exitCode) {
    quitting_ = true;
    exitCode_ = exitCode;
    QCoreApplication::exit(exitCode); // every loop, also those of Qt's own dialogs
}

} // namespace tessarolyne
