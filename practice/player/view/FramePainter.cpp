#include "player/view/FramePainter.h"

#include "player/view/Effects.h"

#include <QPainter>

namespace player {

namespace {

constexpr double kOpaque = 255.0;
constexpr double kPercent = 100.0;

QPainter::CompositionMode modeOf(int blending)
{
    switch (blending) {
    case 1:
        return QPainter::CompositionMode_Plus;
    case 2:
        return QPainter::CompositionMode_Multiply;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

/// Whether there is nothing but panels, which would stand in a void: a title without a picture, a menu, a
/// shop.
bool hasPanelsOnly(const Frame &frame)
{
    return frame.map == 0 && frame.title.isEmpty() && frame.backdrop.isEmpty() && frame.battlers.isEmpty() &&
           !frame.panels.isEmpty() && frame.panel("gameOver") == nullptr;
}

/// Enemies stand higher than in the picture of their troop, as the party needs the lower part of the screen;
/// the ground that they stand on comes up with them. In game pixels.
constexpr int kBackdropAbove = 80;

void paintDusk(QPainter *painter, const QRect &rect)
{
    QLinearGradient dusk(rect.topLeft(), rect.bottomLeft());
    dusk.setColorAt(0, QColor(0x12, 0x1c, 0x38));
    dusk.setColorAt(1, QColor(0x3c, 0x50, 0x74));
    painter->fillRect(rect, dusk);
}

} // namespace

FramePainter::FramePainter(Artwork *artwork)
    : m_artwork(artwork)
    , m_ground(artwork)
    , m_sprites(artwork)
    , m_panels(artwork)
{
}

void FramePainter::paint(QPainter *painter, const Frame &frame, const GameData &data, const QSize &device)
{
    const ScreenScale scale = ScreenScale::fit(device);
    if (scale.cell != m_scale.cell) {
        m_artwork->forgetSizes();
    }
    m_scale = scale;
    if (m_map != frame.map) {
        m_map = frame.map;
        m_ground.forget();
    }
    const QRect screen(scale.corner, scale.size());
    QRegion around(QRect(QPoint(), device));
    around -= screen;
    for (const QRect &rect : around) {
        painter->fillRect(rect, Qt::black);
    }
    painter->save();
    painter->setClipRect(screen);
    painter->translate(scale.corner);
    const QRect all(QPoint(), scale.size());
    const Tone tone{frame.tintRed, frame.tintGreen, frame.tintBlue, frame.tintGrey};
    if (tone.isNone()) {
        painter->fillRect(all, Qt::black);
        paintWorld(painter, frame, data, scale);
    } else {
        paintToned(painter, frame, data, scale);
    }
    m_sprites.paintBattlers(painter, frame, data, scale);
    paintPictures(painter, frame, scale);
    if (frame.flash.alpha() > 0) {
        painter->fillRect(all, frame.flash);
    }
    if (frame.fade > 0) {
        QColor colour = frame.fadeColour;
        colour.setAlphaF(qMin(1.0, frame.fade));
        painter->fillRect(all, colour);
    }
    PanelPainter::paintTimer(painter, frame.timer, scale);
    m_panels.paintAll(painter, frame.panels, scale, frame.tick);
    SpritePainter::paintAnimations(painter, frame, data, scale);
    painter->restore();
}

void FramePainter::paintToned(QPainter *painter, const Frame &frame, const GameData &data,
                              const ScreenScale &scale)
{
    if (m_toned.size() != scale.size()) {
        m_toned = QImage(scale.size(), QImage::Format_RGB32);
    }
    m_toned.fill(Qt::black);
    QPainter world(&m_toned);
    paintWorld(&world, frame, data, scale);
    world.end();
    Tone{frame.tintRed, frame.tintGreen, frame.tintBlue, frame.tintGrey}.apply(&m_toned);
    painter->drawImage(QPoint(), m_toned);
}

void FramePainter::paintWorld(QPainter *painter, const Frame &frame, const GameData &data,
                              const ScreenScale &scale)
{
    const QRect all(QPoint(), scale.size());
    const QPoint shake = scale.point(frame.shake);
    painter->translate(shake);
    if (hasPanelsOnly(frame)) {
        paintDusk(painter, all);
    }
    const QString backdrops = QStringLiteral("backdrops");
    if (!frame.backdrop.isEmpty()) {
        const int above = scale.length(kBackdropAbove);
        painter->drawPixmap(0, -above,
                            m_artwork->picture(backdrops, frame.backdrop, all.size() + QSize(0, above)));
    }
    if (!frame.title.isEmpty()) {
        painter->drawPixmap(QPoint(), m_artwork->picture(QStringLiteral("titles"), frame.title, all.size()));
    }
    if (const MapData *map = data.maps.find(frame.map)) {
        m_ground.paint(painter, *map, frame.origin, scale);
        m_sprites.paint(painter, frame, data, scale);
    }
    painter->translate(-shake);
    drawWeather(painter, frame.weather, frame.weatherPower, frame.tick, all.size(), scale.factor());
}

void FramePainter::paintPictures(QPainter *painter, const Frame &frame, const ScreenScale &scale)
{
    for (const ShownPicture &shown : frame.pictures) {
        const QSize whole = m_artwork->shownSize(shown.name);
        const QPixmap picture =
            m_artwork->picture(QStringLiteral("pictures"), shown.name,
                               {scale.length(whole.width()), scale.length(whole.height())});
        const QSizeF wanted(whole.width() * shown.scale.width() / kPercent,
                            whole.height() * shown.scale.height() / kPercent);
        QRectF place(shown.at, wanted);
        if (shown.isCentred) {
            place.moveCenter(shown.at);
        }
        painter->save();
        painter->setOpacity(qBound(0.0, shown.opacity, kOpaque) / kOpaque);
        painter->setCompositionMode(modeOf(shown.blending));
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(scale.rect(place), picture);
        painter->restore();
    }
}

} // namespace player
