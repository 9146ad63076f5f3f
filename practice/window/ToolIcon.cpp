#include "window/ToolIcon.h"

#include <QMap>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>

namespace {

/// All pictures are drawn on a square of this many units, which are pixels at normal resolution.
constexpr int kUnits = 24;

constexpr QRgb kInk = 0xff3c4652;
constexpr QRgb kBlue = 0xff3f86d6;
constexpr QRgb kGreen = 0xff52a857;
constexpr QRgb kYellow = 0xfff2c14e;
constexpr QRgb kRed = 0xffd85b5b;
constexpr QRgb kPaper = 0xfffbfbfd;

using Drawing = void (*)(QPainter &);

QColor lighter(QRgb colour, int percent)
{
    return QColor(colour).lighter(percent);
}

void shape(QPainter &painter, const QColor &colour, const QPolygonF &points)
{
    painter.setBrush(colour);
    painter.drawPolygon(points);
}

void turnArrow(QPainter &painter, bool back)
{
    if (!back) {
        painter.translate(kUnits, 0);
        painter.scale(-1, 1);
    }
    QPainterPath path(QPointF(7, 9));
    path.cubicTo(13, 5, 21, 9, 19, 18);
    painter.setPen(QPen(QColor(kBlue), 3, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.setPen(Qt::NoPen);
    shape(painter, kBlue, QPolygonF({{2, 10}, {10, 4}, {11, 14}}));
}

void lens(QPainter &painter)
{
    painter.setPen(QPen(QColor(kInk), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(15, 15), QPointF(21, 21));
    painter.setPen(QPen(QColor(kInk), 1.5));
    painter.setBrush(QColor(0xdd, 0xee, 0xfb));
    painter.drawEllipse(QRectF(3, 3, 14, 14));
}

/// Three sheets on top of each other, the one with this number coloured, 0 at the bottom.
void sheets(QPainter &painter, int number)
{
    for (int sheet = 0; sheet < 3; ++sheet) {
        const double y = 11 - sheet * 4.5;
        shape(painter, sheet == number ? QColor(kYellow) : QColor(kPaper),
              QPolygonF({{12, y}, {22, y + 5}, {12, y + 10}, {2, y + 5}}));
    }
}

void folder(QPainter &painter)
{
    shape(painter, kYellow, QPolygonF({{2, 5}, {9, 5}, {11, 8}, {21, 8}, {21, 20}, {2, 20}}));
    shape(painter, lighter(kYellow, 125), QPolygonF({{5, 11}, {23, 11}, {21, 20}, {2, 20}}));
}

const QMap<QString, Drawing> &drawings()
{
    static const QMap<QString, Drawing> map{
        {QStringLiteral("new"),
         [](QPainter &p) {
             shape(p, kPaper, QPolygonF({{5, 2}, {14, 2}, {19, 7}, {19, 22}, {5, 22}}));
             shape(p, QColor(kPaper).darker(115), QPolygonF({{14, 2}, {19, 7}, {14, 7}}));
         }},
        {QStringLiteral("open"), folder},
        {QStringLiteral("save"),
         [](QPainter &p) {
             shape(p, kBlue, QPolygonF({{3, 3}, {18, 3}, {21, 6}, {21, 21}, {3, 21}}));
             p.setBrush(QColor(kPaper));
             p.drawRect(QRectF(7, 3, 9, 6));
             p.drawRect(QRectF(6, 13, 12, 8));
         }},
        {QStringLiteral("undo"),
         [](QPainter &p) {
             turnArrow(p, true);
         }},
        {QStringLiteral("redo"),
         [](QPainter &p) {
             turnArrow(p, false);
         }},
        {QStringLiteral("map"),
         [](QPainter &p) {
             shape(p, kGreen, QPolygonF({{2, 6}, {9, 3}, {9, 18}, {2, 21}}));
             shape(p, lighter(kGreen, 130), QPolygonF({{9, 3}, {16, 6}, {16, 21}, {9, 18}}));
             shape(p, kGreen, QPolygonF({{16, 6}, {22, 3}, {22, 18}, {16, 21}}));
         }},
        {QStringLiteral("event"),
         [](QPainter &p) {
             p.setBrush(QColor(kYellow));
             p.drawEllipse(QRectF(8, 2, 8, 8));
             p.setBrush(QColor(kRed));
             p.drawRoundedRect(QRectF(5, 11, 14, 11), 5, 5);
         }},
        {QStringLiteral("zoomIn"),
         [](QPainter &p) {
             lens(p);
             p.drawLine(QPointF(7, 10), QPointF(13, 10));
             p.drawLine(QPointF(10, 7), QPointF(10, 13));
         }},
        {QStringLiteral("zoomOut"),
         [](QPainter &p) {
             lens(p);
             p.drawLine(QPointF(7, 10), QPointF(13, 10));
         }},
        {QStringLiteral("zoomActual"),
         [](QPainter &p) {
             lens(p);
             p.drawRect(QRectF(7.5, 7.5, 5, 5));
         }},
        {QStringLiteral("grid"),
         [](QPainter &p) {
             p.setBrush(QColor(kPaper));
             p.drawRect(QRectF(3, 3, 18, 18));
             for (int at = 9; at <= 15; at += 6) {
                 p.drawLine(QPointF(at, 3), QPointF(at, 21));
                 p.drawLine(QPointF(3, at), QPointF(21, at));
             }
         }},
        {QStringLiteral("pencil"),
         [](QPainter &p) {
             shape(p, kYellow, QPolygonF({{6, 15}, {17, 4}, {21, 8}, {10, 19}}));
             shape(p, kPaper, QPolygonF({{6, 15}, {10, 19}, {3, 22}}));
             shape(p, kRed, QPolygonF({{17, 4}, {19, 2}, {23, 6}, {21, 8}}));
         }},
        {QStringLiteral("rectangle"),
         [](QPainter &p) {
             p.setBrush(lighter(kBlue, 150));
             p.drawRect(QRectF(3, 6, 18, 13));
         }},
        {QStringLiteral("ellipse"),
         [](QPainter &p) {
             p.setBrush(lighter(kBlue, 150));
             p.drawEllipse(QRectF(2, 5, 20, 14));
         }},
        {QStringLiteral("fill"),
         [](QPainter &p) {
             shape(p, QColor(kPaper).darker(110), QPolygonF({{3, 13}, {12, 4}, {20, 12}, {11, 21}}));
             shape(p, kBlue, QPolygonF({{4, 13}, {20, 12}, {11, 21}}));
             p.setBrush(QColor(kBlue));
             p.drawEllipse(QRectF(19, 16, 4, 6));
         }},
        {QStringLiteral("eraser"),
         [](QPainter &p) {
             shape(p, lighter(kRed, 140), QPolygonF({{3, 16}, {14, 5}, {21, 12}, {12, 21}, {8, 21}}));
             shape(p, kPaper, QPolygonF({{3, 16}, {7, 12}, {14, 19}, {12, 21}, {8, 21}}));
         }},
        {QStringLiteral("layer1"),
         [](QPainter &p) {
             sheets(p, 0);
         }},
        {QStringLiteral("layer2"),
         [](QPainter &p) {
             sheets(p, 1);
         }},
        {QStringLiteral("layer3"),
         [](QPainter &p) {
             sheets(p, 2);
         }},
    };
    return map;
}

QPixmap draw(Drawing drawing, double opacity)
{
    constexpr int kScale = 2;
    QPixmap pixmap(kUnits * kScale, kUnits * kScale);
    pixmap.setDevicePixelRatio(kScale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(opacity);
    painter.setPen(QPen(QColor(kInk), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawing(painter);
    return pixmap;
}

} // namespace

QStringList toolIcons()
{
    return drawings().keys();
}

QIcon toolIcon(const QString &name)
{
    QIcon icon;
    const auto found = drawings().constFind(name);
    if (found != drawings().constEnd()) {
        icon.addPixmap(draw(*found, 1.0), QIcon::Normal);
        icon.addPixmap(draw(*found, 0.35), QIcon::Disabled);
    }
    return icon;
}
