#include "desktop/QtEventLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QTimerEvent>

#include <chrono>

namespace tessarolyne {

namespace {

// How often a wait asks again whether it is over.
constexpr int waitStep = 4;

// Far longer than what anyone typed meanwhile takes.
constexpr int longestDrop = 100;

const QEvent::Type taskPosted = static_cast<QEvent::Type>(QEvent::registerEventType());

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

QtEventLoop::QtEventLoop() = default;
QtEventLoop::~QtEventLoop() = default;

int QtEventLoop::Run() {
    RunUntil([] { return false; });
    return exitCode_;
}

std::int64_t QtEventLoop::Milliseconds() const {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

void QtEventLoop::Post(std::function<void()> task) {
    {
        const std::lock_guard lock(mutex_);
        posted_.push_back(std::move(task));
    }
    WakeUp();
}

// One event for each task, so that Qt's other events have their turn between two tasks.
void QtEventLoop::WakeUp() {
    QCoreApplication::postEvent(this, new QEvent(taskPosted));
}

bool QtEventLoop::event(QEvent* event) {
    if (event->type() == taskPosted) {
        RunOnePosted();
        return true;
    }
    return QObject::event(event);
}

void QtEventLoop::RunOnePosted() {
    if (waits_ > 0) {
        return; // LetHeldIn wakes up for it again
    }
    std::function<void()> task;
    {
        const std::lock_guard lock(mutex_);
        if (posted_.empty()) {
            return;
        }
        task = std::move(posted_.front());
        posted_.pop_front();
    }
    task();
}

EventLoop::AlarmId QtEventLoop::SetAlarm(int milliseconds, std::function<void()> task) {
    const AlarmId alarm = ++lastAlarm_;
    const int timer = startTimer(milliseconds, Qt::PreciseTimer);
    alarms_[alarm] = Alarm{timer, std::move(task)};
    alarmOfTimer_[timer] = alarm;
    return alarm;
}

void QtEventLoop::CancelAlarm(AlarmId alarm) {
    const auto found = alarms_.find(alarm);
    if (found == alarms_.end()) {
        return;
    }
    if (found->second.timer != 0) {
        killTimer(found->second.timer);
        alarmOfTimer_.erase(found->second.timer);
    }
    alarms_.erase(found);
}

void QtEventLoop::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    const auto found = alarmOfTimer_.find(event->timerId());
    if (found == alarmOfTimer_.end()) {
        return;
    }
    const AlarmId alarm = found->second;
    alarmOfTimer_.erase(found);
    alarms_[alarm].timer = 0;
    if (waits_ > 0) {
        heldAlarms_.push_back(alarm);
    } else {
        Ring(alarm);
    }
}

void QtEventLoop::Ring(AlarmId alarm) {
    const auto found = alarms_.find(alarm);
    if (found != alarms_.end()) {
        const auto task = std::move(found->second.task);
        alarms_.erase(found);
        task();
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
    if (--waits_ == 0) {
        LetHeldIn();
    }
}

void QtEventLoop::DropInput() {
    InputSink sink;
    QCoreApplication::instance()->installEventFilter(&sink);
    ++waits_;
    QCoreApplication::processEvents(QEventLoop::AllEvents, longestDrop);
    if (--waits_ == 0) {
        LetHeldIn();
    }
}

// What was held back comes by fresh events and not from inside the wait's caller.
void QtEventLoop::LetHeldIn() {
    for (const AlarmId alarm : std::exchange(heldAlarms_, {})) {
        Post([this, alarm] { Ring(alarm); });
    }
    std::size_t waiting = 0;
    {
        const std::lock_guard lock(mutex_);
        waiting = posted_.size();
    }
    for (std::size_t i = 0; i < waiting; ++i) {
        WakeUp();
    }
}

void QtEventLoop::Quit(int exitCode) {
    quitting_ = true;
    exitCode_ = exitCode;
    QCoreApplication::exit(exitCode); // every loop, also those of Qt's own dialogs
}

} // namespace tessarolyne
