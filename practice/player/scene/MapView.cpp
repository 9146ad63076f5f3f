#include "player/scene/MapView.h"

#include "player/scene/TalkText.h"

#include <algorithm>
#include <cmath>

namespace player {

namespace {

constexpr double kColumns = double(Frame::kWidth) / Frame::kCell;
constexpr double kRows = double(Frame::kHeight) / Frame::kCell;
constexpr int kTicksOfName = 150;
constexpr int kTicksOfStep = 8;
constexpr int kTicksOfAnimationFrame = 4;
constexpr int kJumpHeight = 24;

/// The upper or left end of the view in cells; a map that is smaller stands in the middle.
double within(double wanted, double cells, double seen)
{
    return cells <= seen ? (cells - seen) / 2 : qBound(0.0, wanted, cells - seen);
}

Sprite spriteOf(const Character &who)
{
    Sprite sprite;
    sprite.image = who.isTransparent ? QString() : who.image;
    sprite.at = who.at;
    sprite.direction = who.direction;
    const bool steps = who.isMoving() || who.stepsInPlace;
    sprite.step = steps ? who.stepTicks / kTicksOfStep % 4 : 0;
    sprite.opacity = who.opacity;
    if (who.isJumping && who.ticks > 0) {
        const double done = double(who.ticksLeft) / who.ticks;
        sprite.height = qRound(4 * kJumpHeight * done * (1 - done));
    }
    sprite.balloon = who.balloon;
    sprite.animation = who.animation;
    sprite.event = who.id;
    return sprite;
}

} // namespace

void MapView::enter(const MapData *map)
{
    m_x = Sliding();
    m_y = Sliding();
    m_name = map != nullptr && map->showsName ? map->displayName : QString();
    m_nameTicks = m_name.isEmpty() ? 0 : kTicksOfName;
}

void MapView::tick()
{
    m_x.tick();
    m_y.tick();
    m_nameTicks = qMax(0, m_nameTicks - 1);
}

void MapView::scroll(int direction, int cells, int speed)
{
    const int ticks = cells * (64 >> (qBound(1, speed, 6) - 1));
    const QPoint way = stepTo(direction) * cells;
    m_x.slideTo(m_x.target() + way.x(), ticks);
    m_y.slideTo(m_y.target() + way.y(), ticks);
}

QPointF MapView::origin(const MapData &map, const Character &hero) const
{
    return {within(hero.at.x() + 0.5 - kColumns / 2 + m_x.value(), map.size.width(), kColumns),
            within(hero.at.y() + 0.5 - kRows / 2 + m_y.value(), map.size.height(), kRows)};
}

void MapView::show(const World &world, const Character &hero, Frame *frame) const
{
    const MapData *const map = world.map();
    if (map == nullptr) {
        return;
    }
    frame->map = map->id;
    frame->origin = origin(*map, hero);
    // A cell more on each side, for what is larger than its own.
    const QRectF seen(frame->origin - QPointF(2, 2), QSizeF(kColumns + 3, kRows + 4));
    const auto add = [frame, &seen](const Character &who, int frames) {
        if (!seen.contains(who.at)) {
            return;
        }
        Sprite sprite = spriteOf(who);
        sprite.animationFrame = frames;
        if (!sprite.image.isEmpty() || sprite.balloon != 0 || sprite.animation != 0) {
            frame->sprites.append(sprite);
        }
    };
    for (const World::Event &event : world.events()) {
        if (event.page != nullptr) {
            add(event.character, event.character.animationPassed / kTicksOfAnimationFrame);
        }
    }
    add(hero, hero.animationPassed / kTicksOfAnimationFrame);
    // Whoever stands farther down stands before the others.
    std::stable_sort(frame->sprites.begin(), frame->sprites.end(),
                     [](const Sprite &left, const Sprite &right) { return left.at.y() < right.at.y(); });
    if (m_nameTicks > 0) {
        Panel panel;
        panel.role = QStringLiteral("mapName");
        panel.rect = QRect(8, 8, qBound(120, TalkText::width(m_name) + 40, Frame::kWidth - 16), 44);
        panel.lines.append(PanelLine(m_name));
        frame->panels.append(panel);
    }
}

} // namespace player
