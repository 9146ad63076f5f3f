#include "player/view/Effects.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

#include <array>

namespace player {

namespace {

using Colours = std::array<QColor, 2>;

/// Light and dark of each kind of animation.
constexpr int kKinds = 4;
const std::array<Colours, kKinds> kColours = {{
    {QColor(0xff, 0xff, 0xff), QColor(0xf8, 0xe0, 0x90)},
    {QColor(0xff, 0xf0, 0x90), QColor(0xf0, 0x78, 0x20)},
    {QColor(0xd8, 0xff, 0xd8), QColor(0x50, 0xc8, 0x60)},
    {QColor(0xe0, 0xf0, 0xff), QColor(0x58, 0x90, 0xf0)},
}};

QPen pen(const QColor &colour, double width)
{
    return {colour, width, Qt::SolidLine, Qt::RoundCap};
}

/// A cut across.
void drawSlash(QPainter *painter, double progress, double radius, const Colours &colours)
{
    const double head = qMin(1.0, progress * 1.6);
    const double tail = qMax(0.0, progress * 1.6 - 0.6);
    for (const double shift : {-0.35, 0.0, 0.35}) {
        const QPointF from(radius * (1 - 2 * tail), radius * (-1 + 2 * tail + shift));
        const QPointF to(radius * (1 - 2 * head), radius * (-1 + 2 * head + shift));
        painter->setPen(pen(colours.at(shift == 0.0 ? 0 : 1), radius * (shift == 0.0 ? 0.16 : 0.08)));
        painter->drawLine(from, to);
    }
}

/// Rays that fly apart.
void drawBurst(QPainter *painter, double progress, double radius, const Colours &colours)
{
    constexpr int kRays = 12;
    for (int ray = 0; ray < kRays; ++ray) {
        const double angle = 2 * M_PI * ray / kRays;
        const QPointF way(qCos(angle), qSin(angle));
        painter->setPen(pen(colours.at(size_t(ray % 2)), radius * 0.1 * (1 - progress) + 1));
        painter->drawLine(way * radius * progress * 0.7, way * radius * (0.3 + progress * 0.8));
    }
}

/// Sparks that rise.
void drawRising(QPainter *painter, double progress, double radius, const Colours &colours)
{
    constexpr int kSparks = 9;
    painter->setPen(Qt::NoPen);
    for (int spark = 0; spark < kSparks; ++spark) {
        const double rise = progress + spark * 0.37;
        const QPointF at(radius * (spark * 2.0 / (kSparks - 1) - 1) * 0.8,
                         radius * (1 - 2 * (rise - qFloor(rise))));
        painter->setBrush(colours.at(size_t(spark % 2)));
        const double size = radius * (spark % 3 == 0 ? 0.13 : 0.08);
        painter->drawEllipse(at, size, size);
    }
}

/// Rings that grow.
void drawRings(QPainter *painter, double progress, double radius, const Colours &colours)
{
    painter->setBrush(Qt::NoBrush);
    for (const double behind : {0.0, 0.3}) {
        const double part = progress - behind;
        if (part > 0) {
            painter->setPen(pen(colours.at(behind > 0 ? 1 : 0), radius * 0.12));
            painter->drawEllipse(QPointF(), radius * part, radius * part);
        }
    }
}

/// A number that looks thrown, the same each time.
quint32 scattered(quint32 seed)
{
    seed = (seed ^ 61U) ^ (seed >> 16U);
    seed *= 9U;
    seed ^= seed >> 4U;
    seed *= 0x27d4eb2dU;
    return seed ^ (seed >> 15U);
}

/// What falls: how many in game pixels a tick to the right and down, and how many at power 1.
struct Fall
{
    double right;
    double down;
    int count;
};
constexpr std::array<Fall, 3> kFalls = {{{-1.5, 9, 16}, {-5, 11, 26}, {-0.4, 1.3, 18}}};

double wrapped(double value, double size)
{
    return value - qFloor(value / size) * size;
}

} // namespace

void Tone::apply(QImage *image) const
{
    const auto shifted = [](int value, int plus) {
        return qBound(0, value + plus, 255);
    };
    for (int y = 0; y < image->height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(image->scanLine(y));
        for (int x = 0; x < image->width(); ++x) {
            int reds = qRed(line[x]);
            int greens = qGreen(line[x]);
            int blues = qBlue(line[x]);
            if (grey > 0) {
                const int light = qGray(line[x]);
                reds += (light - reds) * grey / 255;
                greens += (light - greens) * grey / 255;
                blues += (light - blues) * grey / 255;
            }
            line[x] = qRgb(shifted(reds, red), shifted(greens, green), shifted(blues, blue));
        }
    }
}

void drawAnimation(QPainter *painter, int animation, double progress, const QRectF &rect)
{
    const int kind = qAbs(animation - 1) % kKinds;
    const double radius = qMin(rect.width(), rect.height()) / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.center());
    painter->setOpacity(progress < 0.7 ? 1 : qMax(0.0, (1 - progress) / 0.3));
    const Colours &colours = kColours.at(size_t(kind));
    if (kind == 0) {
        drawSlash(painter, progress, radius, colours);
    } else if (kind == 1) {
        drawBurst(painter, progress, radius, colours);
    } else if (kind == 2) {
        drawRising(painter, progress, radius, colours);
    } else {
        drawRings(painter, progress, radius, colours);
    }
    painter->restore();
}

void drawWeather(QPainter *painter, int weather, double power, qint64 tick, const QSize &screen,
                 double factor)
{
    if (weather < 1 || weather > int(kFalls.size()) || power <= 0) {
        return;
    }
    const Fall &fall = kFalls.at(size_t(weather - 1));
    const bool isSnow = weather == 3;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, isSnow);
    const QColor colour(isSnow ? QColor(255, 255, 255, 210) : QColor(190, 210, 240, 150));
    painter->setPen(isSnow ? QPen(Qt::NoPen) : QPen(colour, qMax(1.0, factor)));
    painter->setBrush(colour);
    const int count = qRound(fall.count * power);
    QVector<QLineF> drops;
    for (int drop = 0; drop < count; ++drop) {
        const quint32 seed = scattered(quint32(drop));
        const double speed = 0.75 + (seed & 0xffU) / 510.0;
        const double x = double(scattered(seed) % 10007U) / 10007 * screen.width() +
                         fall.right * speed * factor * double(tick);
        const double y = double(scattered(seed + 1) % 10007U) / 10007 * screen.height() +
                         fall.down * speed * factor * double(tick);
        const QPointF at(wrapped(x, screen.width()), wrapped(y, screen.height()));
        if (isSnow) {
            const double size = factor * (1 + (seed & 3U) * 0.4);
            painter->drawEllipse(at, size, size);
        } else {
            drops.append(QLineF(at, at + QPointF(fall.right, fall.down) * factor * 1.2));
        }
    }
    painter->drawLines(drops);
    painter->restore();
}

} // namespace player
