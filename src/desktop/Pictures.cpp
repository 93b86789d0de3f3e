#include "desktop/Pictures.h"

#include "desktop/QtText.h"
#include "desktop/Resources.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPixmapCache>
#include <QRect>

namespace tessarolyne {

namespace {

QPixmap Load(const std::string& name) {
    QPixmap pixmap;
    const QString key = QLatin1String("tessarolyne/") + ToQt(name);
    if (!QPixmapCache::find(key, &pixmap)) {
        const QString path = ResourcePath("pictures/" + name + ".png");
        if (!path.isEmpty()) {
            pixmap.load(path);
        }
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace

void DrawPicture(QPainter& painter, const Picture& picture, const QRect& area) {
    const QSize given(picture.width, picture.height);
    if (picture.resource.empty()) {
        painter.fillRect(QRect(area.topLeft(), given), QColor::fromRgb(picture.fill));
        return;
    }
    const QPixmap pixmap = Load(picture.resource);
    if (pixmap.isNull()) {
        return;
    }
    const QSize size = given.isEmpty() ? pixmap.deviceIndependentSize().toSize() : given;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(area.topLeft(), size), pixmap);
}

QColor TextColorOn(const Picture& picture, const QPalette& palette) {
    if (!picture.resource.empty() || picture.width == 0) {
        return palette.color(QPalette::ButtonText);
    }
    return qGray(picture.fill) > 128 ? Qt::black : Qt::white;
}

} // namespace tessarolyne
