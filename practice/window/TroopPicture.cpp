#include "window/TroopPicture.h"

#include "window/Pictures.h"

#include <QJsonObject>
#include <QPainter>

namespace {

/// The field of a battle, in the units of a member's place.
const QSize kField(640, 360);
/// Of an enemy, in the same units.
constexpr int kEnemySize = 128;

QPixmap pictureOf(const QJsonValue &enemy)
{
    return Pictures::load(QStringLiteral("enemies"), enemy[QLatin1String("image")].toString());
}

} // namespace

QPixmap troopPicture(const QJsonArray &members, const QJsonArray &enemies, const QSize &size)
{
    const QSize fitted = kField.scaled(size, Qt::KeepAspectRatio);
    QPixmap field(fitted);
    field.fill(Qt::transparent);
    QPainter painter(&field);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(fitted.width() / qreal(kField.width()), fitted.height() / qreal(kField.height()));
    painter.drawPixmap(QRect(QPoint(), kField),
                       Pictures::load(QStringLiteral("backdrops"), QStringLiteral("meadow")));
    for (const QJsonValue &member : members) {
        const QPixmap picture = pictureOf(enemies.at(member[QLatin1String("enemyId")].toInt()));
        QRect place(0, 0, kEnemySize, kEnemySize);
        place.moveCenter({member[QLatin1String("x")].toInt(), member[QLatin1String("y")].toInt()});
        if (!picture.isNull()) {
            painter.drawPixmap(place, picture);
        }
    }
    return field;
}
