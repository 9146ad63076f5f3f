#include "window/TileDrawing.h"

#include "window/Pictures.h"

#include <QStringList>

namespace {

const QString kFolder = QStringLiteral("tiles");

} // namespace

QStringList tileDrawings()
{
    return Pictures::namesIn(kFolder);
}

QPixmap drawTile(const QString &drawing, int pixels)
{
    const QPixmap picture = Pictures::load(kFolder, drawing);
    if (picture.isNull()) {
        QPixmap empty(pixels, pixels);
        empty.fill(Qt::transparent);
        return empty;
    }
    return picture.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
