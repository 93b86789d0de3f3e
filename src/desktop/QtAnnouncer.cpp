#include "desktop/QtAnnouncer.h"

#include "desktop/QtText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>

#include <algorithm>

namespace tessarolyne {

namespace {

// The box or the label in it.
class NoticePart final : public QWidget {
public:
    NoticePart(QAccessible::Role role, QWidget* parent) : QWidget(parent), role_(role) { resize(1, 1); }

    QAccessible::Role Role() const { return role_; }

private:
    const QAccessible::Role role_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    auto* const part = dynamic_cast<NoticePart*>(object);
    return part == nullptr ? nullptr : new QAccessibleWidget(part, part->Role());
}

// The window that has the keyboard, else, while another program has it, any that is shown.
QWidget* WindowToSpeakFrom() {
    if (QWidget* const active = QApplication::activeWindow()) {
        return active;
    }
    const auto all = QApplication::topLevelWidgets();
    const auto shown = std::find_if(all.begin(), all.end(), [](const QWidget* widget) {
        return widget->isVisible() &&
               (widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog);
    });
    return shown == all.end() ? nullptr : *shown;
}

} // namespace

// Not at once: where a run ends, all controls come back, and a reader that many events reach together passes
// over some of them, Orca over all but those of the focus.
void QtAnnouncer::Say(const std::string& text) {
    constexpr int rest = 400; // milliseconds
    text_ = WithLineFeeds(text);
    if (QAccessible::isActive()) {
        rest_.start(rest);
    }
}

// A reader asks for the text a moment after it was told that the box shows, so that it has to stay.
void QtAnnouncer::Show() {
    QWidget* const window = WindowToSpeakFrom();
    if (window == nullptr) {
        return;
    }
    QAccessible::installFactory(MakeAccess); // once, however often it is called
    delete last_;
    auto* const box = new NoticePart(QAccessible::Notification, window);
    auto* const label = new NoticePart(QAccessible::StaticText, box);
    label->setAccessibleName(text_);
    last_ = box;
    box->show();
}

} // namespace tessarolyne
