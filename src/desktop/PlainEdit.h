#pragma once

#include <QPlainTextEdit>

namespace tessarolyne {

// A text of several lines whose copies hold the text alone, without the styles of the screen. Qt's own never
// stops to drag a selection that left it in a single move of the mouse, and takes all input for that.
class PlainEdit final : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

    // Shows the text fainter, also when the desktop's colours change.
    void SetDimmed(bool dimmed);

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ReadPalette();

    bool dimmed_ = false;
};

} // namespace tessarolyne
