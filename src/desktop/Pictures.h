#pragma once

#include "platform/Controls.h"

#include <QColor>

class QPainter;
class QPalette;
class QRect;

namespace tessarolyne {

// Draws the picture with its top left at that of `area`: a resource (its name with ".png") at its own or its
// size that is given, or an area of one colour. A resource that isn't there draws nothing.
void DrawPicture(QPainter& painter, const Picture& picture, const QRect& area);

// A colour that can be read on the picture: black or white on a fill, else the palette's button text.
QColor TextColorOn(const Picture& picture, const QPalette& palette);

} // namespace tessarolyne
