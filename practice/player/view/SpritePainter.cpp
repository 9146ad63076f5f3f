#include "player/view/SpritePainter.h"

#include "player/game/Direction.h"
#include "player/view/Balloons.h"
#include "player/view/Effects.h"

#include <QPainter>

namespace player {

namespace {

/// Of an enemy, in game pixels.
constexpr int kEnemySize = 128;
/// How high a step lifts somebody, in parts of the cell.
constexpr double kStepLift = 0.06;
constexpr double kOpaque = 255.0;

/// @p around is where it is seen unless it goes over all of the screen.
void animate(QPainter *painter, int animation, int frame, const GameData &data, const ScreenScale &scale,
             const QRectF &around)
{
    if (const AnimationEntry *entry = data.animations.find(animation)) {
        drawAnimation(painter, animation, double(frame) / qMax(1, entry->frames),
                      entry->isOnScreen ? QRectF(QPointF(), scale.size()) : around);
    }
}

/// Who it is, where a picture is missing. The hero's comes from the database.
Problem placeOf(const Sprite &sprite, int map)
{
    Problem place;
    if (sprite.event > 0) {
        place.file = QStringLiteral("data/Map%1.json").arg(map, 3, 10, QLatin1Char('0'));
        place.map = map;
        place.event = sprite.event;
    }
    return place;
}

} // namespace

SpritePainter::SpritePainter(Artwork *artwork)
    : m_artwork(artwork)
{
}

void SpritePainter::paint(QPainter *painter, const Frame &frame, const GameData &data,
                          const ScreenScale &scale)
{
    const QRect screen(QPoint(), scale.size());
    const auto cellOf = [&](const Sprite &sprite) {
        const QPointF at = (sprite.at - frame.origin) * scale.cell;
        return QRect(qRound(at.x()), qRound(at.y()), scale.cell, scale.cell);
    };
    const int around = 2 * scale.cell;
    const QRect seen = screen.adjusted(-around, -around, around, around);
    for (const Sprite &sprite : frame.sprites) {
        const QRect cell = cellOf(sprite);
        if (seen.intersects(cell)) {
            m_artwork->setPlace(placeOf(sprite, frame.map));
            paintSprite(painter, sprite, cell, scale.length(sprite.height));
        }
    }
    m_artwork->setPlace({});
    // What they feel is seen above all of them.
    for (const Sprite &sprite : frame.sprites) {
        const QRect cell = cellOf(sprite).translated(0, -scale.length(sprite.height));
        animate(painter, sprite.animation, sprite.animationFrame, data, scale,
                cell.adjusted(-around / 4, -around / 4, around / 4, around / 4));
        if (sprite.balloon > 0) {
            const int size = scale.length(22);
            drawBalloon(painter, sprite.balloon,
                        QRect(cell.center().x() - size / 2, cell.top() - size, size, size));
        }
    }
}

void SpritePainter::paintSprite(QPainter *painter, const Sprite &sprite, const QRect &cell, int lift)
{
    if (sprite.image.isEmpty() || sprite.opacity <= 0) {
        return;
    }
    const int step = sprite.step % 2 != 0 ? qRound(cell.height() * kStepLift) : 0;
    painter->setOpacity(qMin(sprite.opacity, 255) / kOpaque);
    painter->drawPixmap(cell.topLeft() - QPoint(0, lift + step),
                        facing(sprite.image, sprite.direction, cell.size()));
    painter->setOpacity(1);
}

QPixmap SpritePainter::facing(const QString &name, int direction, const QSize &size)
{
    const QString folder = QStringLiteral("facing");
    // Who looks to the right is who looks to the left in a mirror.
    const QString turned = name + (direction == kUp ? QStringLiteral("-up") : QStringLiteral("-left"));
    if (direction != kDown && !m_artwork->source(folder, turned).isNull()) {
        return m_artwork->picture(folder, turned, size, direction == kRight);
    }
    return m_artwork->picture(QStringLiteral("characters"), name, size);
}

void SpritePainter::paintBattlers(QPainter *painter, const Frame &frame, const GameData &data,
                                  const ScreenScale &scale)
{
    for (const FrameBattler &battler : frame.battlers) {
        const int size = scale.length(kEnemySize);
        const QPoint feet = scale.point(battler.at);
        const QRect place(feet - QPoint(size / 2, size), QSize(size, size));
        paintBattler(painter, battler, place, scale, frame.tick);
        animate(painter, battler.animation, battler.animationFrame, data, scale, place);
    }
}

void SpritePainter::paintAnimations(QPainter *painter, const Frame &frame, const GameData &data,
                                    const ScreenScale &scale)
{
    for (const FrameAnimation &shown : frame.animations) {
        animate(painter, shown.animation, shown.animationFrame, data, scale, scale.rect(shown.around));
    }
}

void SpritePainter::paintBattler(QPainter *painter, const FrameBattler &battler, const QRect &place,
                                 const ScreenScale &scale, qint64 tick)
{
    painter->setOpacity(qBound(0, battler.opacity, 255) / kOpaque);
    const QPixmap picture = m_artwork->picture(QStringLiteral("enemies"), battler.image, place.size());
    painter->drawPixmap(place.topLeft(), picture);
    if (battler.flashes && !picture.isNull()) {
        QPixmap white = picture;
        QPainter over(&white);
        over.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        over.fillRect(white.rect(), QColor(255, 255, 255, 170));
        over.end();
        painter->drawPixmap(place.topLeft(), white);
    }
    painter->setOpacity(1);
    if (battler.isSelected) {
        constexpr int kBounceTicks = 20;
        const int hop = int(tick % kBounceTicks) < kBounceTicks / 2 ? scale.length(2) : 0;
        const QPoint tip(place.center().x(), place.top() + scale.length(10) - hop);
        const int half = scale.length(7);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(QColor(0x20, 0x20, 0x30), scale.length(1.5)));
        painter->setBrush(QColor(0xff, 0xd8, 0x50));
        painter->drawPolygon(
            QPolygon({tip, tip + QPoint(-half, -half * 3 / 2), tip + QPoint(half, -half * 3 / 2)}));
        painter->setRenderHint(QPainter::Antialiasing, false);
    }
    if (!battler.popup.isEmpty()) {
        QFont font = painter->font();
        font.setPixelSize(scale.length(22));
        font.setBold(true);
        painter->setFont(font);
        const QRect text = place.translated(0, -scale.length(8));
        painter->setPen(Qt::black);
        const int shadow = qMax(1, scale.length(1));
        painter->drawText(text.translated(shadow, shadow), Qt::AlignCenter, battler.popup);
        painter->setPen(Qt::white);
        painter->drawText(text, Qt::AlignCenter, battler.popup);
    }
}

} // namespace player
