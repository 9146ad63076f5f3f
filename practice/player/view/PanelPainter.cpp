#include "player/view/PanelPainter.h"

#include "player/view/PanelLayout.h"

#include <QPainter>
#include <QRegion>

#include <array>

namespace player {

namespace {

using Background = Panel::Background;

constexpr int kBlinkTicks = 40;
constexpr double kNarrowest = 0.6;
constexpr int kBannerLetters = 34;

const QColor kFrame(0xe8, 0xe4, 0xd4);
const QColor kGround(0x14, 0x1c, 0x2c, 230);
const QColor kHeading(0xff, 0xd8, 0x78);
const QColor kGrey(0x90, 0x94, 0xa0);

/// The colours that a message can have by number; the first one is the usual one.
const std::array<QColor, 10> kLetters = {
    QColor(0xff, 0xff, 0xff), QColor(0x78, 0xb4, 0xff), QColor(0xff, 0x80, 0x70), QColor(0x78, 0xe0, 0x80),
    QColor(0x80, 0xe8, 0xf0), QColor(0xd0, 0xa0, 0xff), QColor(0xff, 0xe0, 0x70), QColor(0xb0, 0xb4, 0xc0),
    QColor(0xff, 0xb0, 0x60), QColor(0xff, 0xa8, 0xd0)};

QFont lettersOf(const ScreenScale &scale, double size = PanelLayout::kLetters)
{
    QFont font;
    font.setPixelSize(qMax(1, scale.length(size)));
    return font;
}

void paintGround(QPainter *painter, const QRect &rect, Background background, const ScreenScale &scale)
{
    if (background == Background::kWindow) {
        const double line = qMax(1.0, 2 * scale.factor());
        painter->setPen(QPen(kFrame, line));
        painter->setBrush(kGround);
        painter->setRenderHint(QPainter::Antialiasing);
        const double inside = line / 2;
        painter->drawRoundedRect(QRectF(rect).adjusted(inside, inside, -inside, -inside), scale.length(6),
                                 scale.length(6));
        painter->setRenderHint(QPainter::Antialiasing, false);
    } else if (background == Background::kDim) {
        painter->fillRect(rect, QColor(0, 0, 0, 130));
    }
}

/// What keeps anything below a panel from shining through it.
void paintCover(QPainter *painter, const QRect &rect, const ScreenScale &scale)
{
    QColor ground = kGround;
    ground.setAlpha(255);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawRoundedRect(rect, scale.length(6), scale.length(6));
    painter->setRenderHint(QPainter::Antialiasing, false);
}

/// A text with a shadow, narrower where it would not fit.
void paintText(QPainter *painter, const QRect &rect, int flags, const QString &text, const QColor &colour,
               const ScreenScale &scale)
{
    const int width = painter->fontMetrics().horizontalAdvance(text);
    const int shadow = qMax(1, scale.length(1));
    painter->save();
    painter->translate(rect.topLeft());
    QRect room(QPoint(), rect.size());
    if (width > room.width() && width > 0) {
        const double part = qMax(kNarrowest, double(room.width()) / width);
        painter->setClipRect(room, Qt::IntersectClip);
        painter->scale(part, 1);
        room.setWidth(int(room.width() / part));
    }
    painter->setPen(QColor(0, 0, 0, colour.alpha()));
    painter->drawText(room.translated(shadow, shadow), flags, text);
    painter->setPen(colour);
    painter->drawText(room, flags, text);
    painter->restore();
}

void paintLine(QPainter *painter, const QRect &rect, const PanelLine &line, bool isCentred,
               const ScreenScale &scale)
{
    const QFontMetrics metrics = painter->fontMetrics();
    const int width = metrics.horizontalAdvance(line.text());
    // All runs of a line are narrowed alike.
    const double part = width > rect.width() ? qMax(kNarrowest, double(rect.width()) / width) : 1.0;
    double left = isCentred ? qMax(0, (rect.width() - width) / 2) : 0;
    for (const Run &run : line.runs) {
        const double advance = metrics.horizontalAdvance(run.text) * part;
        const QColor &colour = kLetters.at(size_t(qMax(0, run.colour)) % kLetters.size());
        const QRect room(rect.left() + qRound(left), rect.top(), qCeil(advance) + (part < 1 ? 0 : 1),
                         rect.height());
        paintText(painter, room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine,
                  run.text, colour, scale);
        left += advance;
    }
}

void paintTriangle(QPainter *painter, const QPoint &centre, int half, bool isDown)
{
    const int tip = isDown ? half : -half;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(kFrame);
    painter->drawPolygon(QPolygon({centre + QPoint(-half, -tip / 2), centre + QPoint(half, -tip / 2),
                                   centre + QPoint(0, tip / 2 + (isDown ? 1 : -1))}));
    painter->setRenderHint(QPainter::Antialiasing, false);
}

void paintCursor(QPainter *painter, const QRect &row, const ScreenScale &scale, qint64 tick)
{
    const int phase = int(tick % kBlinkTicks);
    const int light = qAbs(phase - kBlinkTicks / 2) * 2;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(0xff, 0xe0, 0x80, 200), qMax(1, scale.length(1))));
    painter->setBrush(QColor(0x80, 0xa8, 0xe0, 60 + light));
    const double radius = scale.length(4);
    painter->drawRoundedRect(QRectF(row).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->setRenderHint(QPainter::Antialiasing, false);
}

void paintRows(QPainter *painter, const Panel &panel, const PanelLayout &layout, const ScreenScale &scale,
               qint64 tick)
{
    const int inset = scale.length(6);
    for (int number = 0; number < int(panel.rows.size()); ++number) {
        const QRect place = layout.row(number);
        if (place.isEmpty()) {
            continue;
        }
        const PanelRow &row = panel.rows.at(number);
        const QRect rect = scale.rect(place);
        if (number == panel.current) {
            paintCursor(painter, rect, scale, tick);
        }
        QRect text = rect.adjusted(inset, 0, -inset, 0);
        const QColor colour = row.isEnabled ? kLetters[0] : kGrey;
        if (!row.rightText.isEmpty()) {
            paintText(painter, text, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, row.rightText,
                      colour, scale);
            text.setRight(text.right() - painter->fontMetrics().horizontalAdvance(row.rightText) - inset);
        }
        paintText(painter, text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, row.text, colour,
                  scale);
    }
    const QRect all = scale.rect(layout.rows());
    const int half = scale.length(5);
    if (layout.hasRowsAbove()) {
        paintTriangle(painter, {all.center().x(), all.top() - half}, half, false);
    }
    if (layout.hasRowsBelow()) {
        paintTriangle(painter, {all.center().x(), all.bottom() + half}, half, true);
    }
}

/// The first gauge of somebody is that of life.
void paintGauge(QPainter *painter, const Gauge &gauge, const Panel &panel, const ScreenScale &scale)
{
    const QRect whole = scale.rect(gauge.rect.translated(panel.rect.topLeft()));
    const int bar = qMax(2, scale.length(6));
    QRect ground(whole.left(), whole.bottom() - bar, whole.width(), bar);
    painter->fillRect(ground, QColor(0x08, 0x0c, 0x14));
    const double part = gauge.most > 0 ? qBound(0.0, double(gauge.value) / gauge.most, 1.0) : 0;
    const bool isFirst = gauge.label == panel.gauges.constFirst().label;
    const QColor full = isFirst ? QColor(0x60, 0xc8, 0x70) : QColor(0x58, 0x98, 0xf0);
    const bool isLow = isFirst && part <= 0.25;
    ground.setWidth(qRound(ground.width() * part));
    painter->fillRect(ground, isLow ? QColor(0xe8, 0x60, 0x50) : full);
    painter->setFont(lettersOf(scale, 13));
    const QRect text = whole.adjusted(0, 0, 0, -bar);
    paintText(painter, text, Qt::AlignLeft | Qt::AlignBottom, gauge.label, kHeading, scale);
    paintText(painter, text, Qt::AlignRight | Qt::AlignBottom,
              QStringLiteral("%1/%2").arg(gauge.value).arg(gauge.most), kLetters[0], scale);
    painter->setFont(lettersOf(scale));
}

/// The speaker's name, outside of the panel.
void paintTab(QPainter *painter, const Panel &panel, const ScreenScale &scale)
{
    const int width = painter->fontMetrics().horizontalAdvance(panel.title) + scale.length(32);
    const int height = scale.length(28);
    const QRect rect = scale.rect(panel.rect);
    const bool hasRoomAbove = rect.top() >= height;
    const QRect tab(rect.left() + scale.length(8),
                    hasRoomAbove ? rect.top() - height + scale.length(2) : rect.bottom() - scale.length(2),
                    qMin(width, rect.width()), height);
    paintGround(painter, tab, panel.background, scale);
    paintText(painter, tab, Qt::AlignCenter, panel.title, kHeading, scale);
}

} // namespace

PanelPainter::PanelPainter(Artwork *artwork)
    : m_artwork(artwork)
{
}

void PanelPainter::paintAll(QPainter *painter, const QVector<Panel> &panels, const ScreenScale &scale,
                            qint64 tick)
{
    QRegion taken;
    for (const Panel &panel : panels) {
        if (panel.background == Background::kWindow && taken.intersects(panel.rect)) {
            paintCover(painter, scale.rect(panel.rect), scale);
        }
        paint(painter, panel, scale, tick);
        taken += panel.rect;
    }
}

void PanelPainter::paint(QPainter *painter, const Panel &panel, const ScreenScale &scale, qint64 tick)
{
    const PanelLayout layout(panel);
    const QRect rect = scale.rect(panel.rect);
    painter->setFont(lettersOf(scale));
    paintGround(painter, rect, panel.background, scale);
    paintFace(painter, panel, layout, scale);
    if (PanelLayout::isBanner(panel)) {
        painter->setFont(lettersOf(scale, kBannerLetters));
        paintText(painter, scale.rect(layout.heading()), Qt::AlignCenter, panel.title, kHeading, scale);
        painter->setFont(lettersOf(scale));
    } else if (!layout.heading().isEmpty()) {
        paintText(painter, scale.rect(layout.heading()), Qt::AlignLeft | Qt::AlignVCenter, panel.title,
                  kHeading, scale);
    } else if (!panel.title.isEmpty()) {
        paintTab(painter, panel, scale);
    }
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    const int up = scale.length(panel.scrolled);
    for (int number = 0; number < int(panel.lines.size()); ++number) {
        const QRect line = scale.rect(layout.line(number)).translated(0, -up);
        if (line.intersects(rect)) {
            paintLine(painter, line, panel.lines.at(number), PanelLayout::isBanner(panel), scale);
        }
    }
    paintRows(painter, panel, layout, scale, tick);
    for (const Gauge &gauge : panel.gauges) {
        paintGauge(painter, gauge, panel, scale);
    }
    painter->restore();
    if (panel.isWaiting) {
        const int hop = tick % kBlinkTicks < kBlinkTicks / 2 ? scale.length(2) : 0;
        paintTriangle(painter, QPoint(rect.center().x(), rect.bottom() - scale.length(8) + hop),
                      scale.length(7), true);
    }
}

void PanelPainter::paintFace(QPainter *painter, const Panel &panel, const PanelLayout &layout,
                             const ScreenScale &scale)
{
    if (!layout.face().isEmpty()) {
        const QRect face = scale.rect(layout.face());
        painter->drawPixmap(face.topLeft(),
                            m_artwork->picture(QStringLiteral("faces"), panel.face, face.size()));
    }
}

void PanelPainter::paintTimer(QPainter *painter, const QString &timer, const ScreenScale &scale)
{
    if (timer.isEmpty()) {
        return;
    }
    painter->setFont(lettersOf(scale, 22));
    const int width = painter->fontMetrics().horizontalAdvance(timer) + scale.length(20);
    const QRect rect(scale.size().width() - width - scale.length(8), scale.length(8), width,
                     scale.length(32));
    painter->fillRect(rect, QColor(0, 0, 0, 130));
    paintText(painter, rect, Qt::AlignCenter, timer, kLetters[0], scale);
}

} // namespace player
