#pragma once

#include <QEvent>
#include <QPalette>
#include <QWidget>

namespace tessarolyne {

// The colours of `parent` with a fainter text.
QPalette FaintPalette(const QWidget& parent);

// An edit that can show its text fainter, also when the desktop's colours change. The colour of the text
// alone is its own; that follows the desktop's, which the parent has.
template <typename Edit>
class Dimmable : public Edit {
public:
    using Edit::Edit;

    void SetDimmed(bool dimmed) {
        if (dimmed != dimmed_) {
            dimmed_ = dimmed;
            ReadPalette();
        }
    }

protected:
    void changeEvent(QEvent* event) override {
        Edit::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            ReadPalette();
        }
    }

private:
    void ReadPalette() { this->setPalette(dimmed_ ? FaintPalette(*this->parentWidget()) : QPalette()); }

    bool dimmed_ = false;
};

} // namespace tessarolyne
