#pragma once

#include "platform/Desktop.h"

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace tessarolyne {

// Announces as a notification that shows in the window that the user is in: a label in a box of that role,
// one pixel in size and never drawn. Screen readers speak what such a box holds when it shows, wherever the
// focus is.
class QtAnnouncer final : public Announcer {
public:
    QtAnnouncer() {
        rest_.setSingleShot(true);
        rest_.callOnTimeout([this] { Show(); });
    }

    void Say(const std::string& text) override;

private:
    void Show();

    QString text_;
    QTimer rest_;            // until it is shown
    QPointer<QWidget> last_; // it goes with its window
};

} // namespace tessarolyne
