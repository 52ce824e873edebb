#include "SharedIcon.h"

#include <QPixmapCache>

QIcon SharedIcon::Of(const QString& name, const QColor& color, TDraw draw)
{
    const QString key = name + color.name(QColor::HexArgb);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = draw(color);
        QPixmapCache::insert(key, picture);
    }
    return QIcon(picture);
}
