#include "desktop/Dimmable.h"

namespace tessarolyne {

namespace {

// Contrast enough to be read: 4.8 to 1 for black on white, where WCAG 2.1 asks for 4.5. The palette's own
// colour for hints won't do: where a desktop sets none it stays that of light schemes in dark ones.
float Faint(float text, float base) {
    return base + (text - base) * 0.55F;
}

} // namespace

QPalette FaintPalette(const QWidget& parent) {
    const QColor text = parent.palette().color(QPalette::Active, QPalette::Text);
    const QColor base = parent.palette().color(QPalette::Active, QPalette::Base);
    QPalette faint;
    faint.setColor(
        QPalette::Text, QColor::fromRgbF(Faint(text.redF(), base.redF()), Faint(text.greenF(), base.greenF()),
                            Faint(text.blueF(), base.blueF())));
    return faint;
}

} // namespace tessarolyne
