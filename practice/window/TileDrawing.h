#pragma once

#include <QPixmap>
#include <QString>

/// Names of all drawings that drawTile() knows.
QStringList tileDrawings();

/// One tile, @p pixels wide and high, on a transparent ground. A name that is unknown gives an empty
/// picture.
QPixmap drawTile(const QString &drawing, int pixels);
