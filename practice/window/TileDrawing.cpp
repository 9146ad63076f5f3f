#include "window/TileDrawing.h"

#include <QMap>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace {

/// All drawings are made on a square of this many units.
constexpr int kUnits = 32;

using Drawing = void (*)(QPainter &);

QColor rgb(QRgb value)
{
    return QColor::fromRgb(value);
}

/// A plain ground with a few marks of another colour, so that a large area does not look dead.
void ground(QPainter &painter, QRgb colour, QRgb marks)
{
    painter.fillRect(0, 0, kUnits, kUnits, rgb(colour));
    for (const QPointF &at :
         {QPointF(6, 8), QPointF(19, 5), QPointF(26, 15), QPointF(11, 19), QPointF(21, 26), QPointF(4, 28)})
        painter.fillRect(QRectF(at, QSizeF(3, 2)), rgb(marks));
}

void waves(QPainter &painter, QRgb colour, QRgb crest)
{
    painter.fillRect(0, 0, kUnits, kUnits, rgb(colour));
    painter.setPen(QPen(rgb(crest), 1.5));
    painter.setBrush(Qt::NoBrush);
    for (const QPointF &at : {QPointF(3, 7), QPointF(18, 13), QPointF(6, 21), QPointF(20, 27)}) {
        QPainterPath wave(at);
        wave.quadTo(at + QPointF(3, -3), at + QPointF(5, 0));
        wave.quadTo(at + QPointF(7, 3), at + QPointF(10, 0));
        painter.drawPath(wave);
    }
}

void ball(QPainter &painter, QRgb colour, const QRectF &rect)
{
    painter.setPen(QPen(rgb(colour).darker(140), 1));
    painter.setBrush(rgb(colour));
    painter.drawEllipse(rect);
}

void box(QPainter &painter, QRgb colour, const QRectF &rect)
{
    painter.setPen(QPen(rgb(colour).darker(140), 1));
    painter.setBrush(rgb(colour));
    painter.drawRect(rect);
}

void polygon(QPainter &painter, QRgb colour, const QPolygonF &points)
{
    painter.setPen(QPen(rgb(colour).darker(140), 1));
    painter.setBrush(rgb(colour));
    painter.drawPolygon(points);
}

void bricks(QPainter &painter)
{
    painter.fillRect(0, 0, kUnits, kUnits, rgb(0xd9c3a0));
    painter.setPen(QPen(rgb(0xb59a72), 1));
    for (int row = 0; row < 4; ++row) {
        painter.drawLine(0, row * 8, kUnits, row * 8);
        const int shift = row % 2 == 0 ? 8 : 0;
        for (int x = shift; x < kUnits; x += 16)
            painter.drawLine(x, row * 8, x, row * 8 + 8);
    }
}

const QMap<QString, Drawing> &drawings()
{
    static const QMap<QString, Drawing> map{
        {QStringLiteral("grass"),
         [](QPainter &p) {
             ground(p, 0x7fbf5a, 0x6dae4b);
         }},
        {QStringLiteral("tallGrass"),
         [](QPainter &p) {
             ground(p, 0x67a847, 0x4f9138);
             p.setPen(QPen(rgb(0x3f7d2d), 1.5));
             for (int x = 4; x < kUnits; x += 8) {
                 p.drawLine(x, 28 - x % 5, x - 2, 18 - x % 5);
                 p.drawLine(x, 28 - x % 5, x + 3, 17 - x % 5);
             }
         }},
        {QStringLiteral("path"),
         [](QPainter &p) {
             ground(p, 0xd8b980, 0xc4a268);
         }},
        {QStringLiteral("sand"),
         [](QPainter &p) {
             ground(p, 0xecdca0, 0xdcc884);
         }},
        {QStringLiteral("water"),
         [](QPainter &p) {
             waves(p, 0x5aa7e0, 0x8cc6f0);
         }},
        {QStringLiteral("deepWater"),
         [](QPainter &p) {
             waves(p, 0x3576bd, 0x5590d0);
         }},
        {QStringLiteral("floor"),
         [](QPainter &p) {
             box(p, 0xb4b4bc, {0, 0, 32, 32});
             p.drawLine(0, 16, 32, 16);
             p.drawLine(16, 0, 16, 16);
             p.drawLine(8, 16, 8, 32);
             p.drawLine(24, 16, 24, 32);
         }},
        {QStringLiteral("snow"),
         [](QPainter &p) {
             ground(p, 0xf2f6fa, 0xdbe6f0);
         }},
        {QStringLiteral("tree"),
         [](QPainter &p) {
             box(p, 0x8a5a33, {13, 20, 6, 11});
             ball(p, 0x2f8a3c, {3, 1, 26, 23});
             p.setPen(Qt::NoPen);
             p.setBrush(rgb(0x49a552));
             p.drawEllipse(QRectF(8, 4, 12, 9));
         }},
        {QStringLiteral("fir"),
         [](QPainter &p) {
             box(p, 0x7a4f2d, {14, 25, 4, 6});
             polygon(p, 0x226b48, QPolygonF({{16, 9}, {28, 26}, {4, 26}}));
             polygon(p, 0x2c7d55, QPolygonF({{16, 1}, {25, 16}, {7, 16}}));
         }},
        {QStringLiteral("bush"),
         [](QPainter &p) {
             ball(p, 0x3d9448, {3, 13, 16, 15});
             ball(p, 0x46a352, {13, 11, 16, 17});
         }},
        {QStringLiteral("flowers"),
         [](QPainter &p) {
             ball(p, 0xe8506a, {5, 6, 7, 7});
             ball(p, 0xf6c945, {19, 10, 7, 7});
             ball(p, 0xb36ae2, {9, 20, 7, 7});
             ball(p, 0xfafafa, {22, 22, 6, 6});
         }},
        {QStringLiteral("rock"),
         [](QPainter &p) {
             polygon(p, 0x8f9299, QPolygonF({{5, 27}, {3, 18}, {10, 8}, {20, 6}, {28, 15}, {29, 26}}));
             polygon(p, 0xaeb2b9, QPolygonF({{10, 9}, {19, 7}, {17, 14}, {8, 16}}));
         }},
        {QStringLiteral("stump"),
         [](QPainter &p) {
             box(p, 0x87572f, {8, 14, 16, 14});
             ball(p, 0xd2a56d, {8, 9, 16, 9});
             ball(p, 0xc08f55, {13, 11, 6, 4});
         }},
        {QStringLiteral("reeds"),
         [](QPainter &p) {
             p.setPen(QPen(rgb(0x5b8f3a), 2));
             for (int x = 8; x <= 24; x += 8)
                 p.drawLine(x, 30, x + 1, 8);
             for (int x = 8; x <= 24; x += 8)
                 ball(p, 0x7b5230, QRectF(x - 1, 4, 5, 10));
         }},
        {QStringLiteral("mushrooms"),
         [](QPainter &p) {
             box(p, 0xf0e6d2, {9, 15, 5, 12});
             ball(p, 0xd64545, {4, 8, 15, 10});
             box(p, 0xf0e6d2, {21, 21, 4, 8});
             ball(p, 0xc98a4b, {17, 16, 12, 8});
         }},
        {QStringLiteral("wall"), bricks},
        {QStringLiteral("window"),
         [](QPainter &p) {
             bricks(p);
             box(p, 0x9fd4ee, {8, 7, 16, 16});
             p.drawLine(16, 7, 16, 23);
             p.drawLine(8, 15, 24, 15);
         }},
        {QStringLiteral("door"),
         [](QPainter &p) {
             bricks(p);
             box(p, 0x8b5a2b, {8, 6, 16, 26});
             ball(p, 0xf0d060, {19, 18, 3, 3});
         }},
        {QStringLiteral("roof"),
         [](QPainter &p) {
             p.fillRect(0, 0, kUnits, kUnits, rgb(0xc0523d));
             p.setPen(QPen(rgb(0x9c3d2c), 1));
             for (int row = 0; row < 4; ++row) {
                 for (int x = row % 2 == 0 ? 0 : -4; x < kUnits; x += 8)
                     p.drawArc(QRect(x, row * 8 - 8, 8, 16), 180 * 16, 180 * 16);
             }
         }},
        {QStringLiteral("fence"),
         [](QPainter &p) {
             box(p, 0xa8753f, {0, 13, 32, 4});
             box(p, 0xa8753f, {0, 21, 32, 4});
             for (int x = 3; x < kUnits; x += 10)
                 box(p, 0xbd884d, QRectF(x, 8, 5, 22));
         }},
        {QStringLiteral("well"),
         [](QPainter &p) {
             ball(p, 0x9a9aa4, {4, 10, 24, 19});
             ball(p, 0x3576bd, {9, 13, 14, 10});
             polygon(p, 0xb5533c, QPolygonF({{16, 0}, {28, 9}, {4, 9}}));
         }},
        {QStringLiteral("sign"),
         [](QPainter &p) {
             box(p, 0x7a4f2d, {14, 15, 4, 15});
             box(p, 0xcda266, {4, 5, 24, 13});
             p.drawLine(8, 10, 24, 10);
             p.drawLine(8, 13, 20, 13);
         }},
        {QStringLiteral("bridge"),
         [](QPainter &p) {
             for (int y = 0; y < kUnits; y += 8)
                 box(p, 0xb98a55, QRectF(1, y, 30, 7));
         }},
    };
    return map;
}

} // namespace

QStringList tileDrawings()
{
    return drawings().keys();
}

QPixmap drawTile(const QString &drawing, int pixels)
{
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    const auto found = drawings().constFind(drawing);
    if (found == drawings().constEnd())
        return pixmap;
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(pixels) / kUnits, double(pixels) / kUnits);
    (*found)(painter);
    return pixmap;
}
