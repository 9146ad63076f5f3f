#include "window/TileDrawing.h"

#include "window/Pictures.h"

#include <QStringList>

namespace {

QString folder()
{
    return QStringLiteral("tiles");
}

} // namespace

QStringList tileDrawings()
{
    return Pictures::namesIn(folder());
}

QPixmap drawTile(const QString &drawing, int pixels)
{
    const QPixmap picture = Pictures::load(folder(), drawing);
    if (picture.isNull()) {
        QPixmap empty(pixels, pixels);
        empty.fill(Qt::transparent);
        return empty;
    }
    return picture.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
