#pragma once

#include <QScrollArea>

namespace tessarolyne {

// The part of a window below its menu bar: a sheet of the model's size, on which the controls stand. It
// scrolls where the screen is too small for the sheet; keys that scroll elsewhere stay the controls' own.
class WindowContent final : public QScrollArea {
public:
    explicit WindowContent(QWidget* parent);

    QWidget* Sheet() const { return widget(); }
    // The size that shows a sheet, or as much of it as there is room for with its scroll bars.
    QSize SizeFor(const QSize& sheet, const QSize& room) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessarolyne
