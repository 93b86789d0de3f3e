#pragma once

#include <QFont>
#include <QString>

class QWidget;

namespace tessarolyne {

// The widget's font for `text` in `width` points and its height: the system's own, or `pixels` high if that
// isn't 0, made smaller as far as needed where the text would be cut in a desktop with large fonts.
QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels = 0);

} // namespace tessarolyne
