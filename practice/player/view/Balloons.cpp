#include "player/view/Balloons.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace player {

namespace {

using Draw = void (*)(QPainter *painter);

// All of them draw in a square of 16 x 16, with a pen of a width that suits it.

const QColor kInk(0x30, 0x30, 0x40);
const QColor kRed(0xd0, 0x30, 0x30);
const QColor kBlue(0x38, 0x88, 0xe0);
const QColor kGold(0xf0, 0xb8, 0x28);

void setPen(QPainter *painter, const QColor &colour, double width = 2)
{
    painter->setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
}

void dot(QPainter *painter, const QColor &colour, const QPointF &at, double radius)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawEllipse(at, radius, radius);
}

void exclamation(QPainter *painter)
{
    setPen(painter, kRed, 2.6);
    painter->drawLine(QPointF(8, 2), QPointF(8, 9));
    dot(painter, kRed, {8, 13.2}, 1.5);
}

void question(QPainter *painter)
{
    setPen(painter, kBlue, 2.2);
    QPainterPath path(QPointF(5, 5.2));
    path.cubicTo(5, 1, 11.5, 1, 11.2, 5);
    path.cubicTo(11, 7.4, 8, 7.2, 8, 10);
    painter->drawPath(path);
    dot(painter, kBlue, {8, 13.4}, 1.4);
}

void note(QPainter *painter)
{
    setPen(painter, kInk, 1.6);
    painter->drawLine(QPointF(7.4, 12), QPointF(7.4, 3));
    painter->drawLine(QPointF(7.4, 3), QPointF(11.6, 5.6));
    dot(painter, kInk, {5.6, 12.2}, 2.1);
}

void heart(QPainter *painter)
{
    QPainterPath path(QPointF(8, 13.6));
    path.cubicTo(-1, 7, 4, 0.5, 8, 5);
    path.cubicTo(12, 0.5, 17, 7, 8, 13.6);
    painter->fillPath(path, QColor(0xe8, 0x48, 0x70));
}

void anger(QPainter *painter)
{
    setPen(painter, kRed);
    for (const QPointF &turn : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
        QPainterPath path(QPointF(8 + turn.x() * 6, 8 + turn.y() * 2.2));
        path.quadTo(8 + turn.x() * 2, 8 + turn.y() * 2, 8 + turn.x() * 2.2, 8 + turn.y() * 6);
        painter->drawPath(path);
    }
}

void sweat(QPainter *painter)
{
    QPainterPath path(QPointF(8, 1.5));
    path.cubicTo(8.5, 5, 12.5, 7, 12.2, 10.6);
    path.cubicTo(12, 15, 4, 15, 3.8, 10.6);
    path.cubicTo(3.5, 7, 7.5, 5, 8, 1.5);
    painter->fillPath(path, kBlue);
}

void frustration(QPainter *painter)
{
    setPen(painter, kInk, 1.5);
    QPainterPath path(QPointF(2.5, 9));
    for (const double x : {2.5, 6.0, 9.5}) {
        path.cubicTo(x + 5, 1, x + 5, 15, x + 1.5, 12);
        path.cubicTo(x - 0.5, 9, x + 2, 5, x + 3.5, 8.5);
    }
    painter->drawPath(path);
}

void silence(QPainter *painter)
{
    for (const double x : {3.2, 8.0, 12.8}) {
        dot(painter, kInk, {x, 8.4}, 1.6);
    }
}

void lightBulb(QPainter *painter)
{
    dot(painter, kGold, {8, 6.4}, 4.6);
    setPen(painter, kInk, 1.4);
    painter->drawLine(QPointF(6.2, 12.2), QPointF(9.8, 12.2));
    painter->drawLine(QPointF(6.8, 14.4), QPointF(9.2, 14.4));
}

void sleep(QPainter *painter)
{
    setPen(painter, kBlue, 1.6);
    for (const QRectF &letter : {QRectF(2, 8, 5.4, 5.4), QRectF(8.6, 2.4, 5, 5)}) {
        painter->drawPolyline(
            QPolygonF({letter.topLeft(), letter.topRight(), letter.bottomLeft(), letter.bottomRight()}));
    }
}

constexpr std::array<Draw, 10> kDrawings = {exclamation, question,    note,    heart,     anger,
                                            sweat,       frustration, silence, lightBulb, sleep};

} // namespace

void drawBalloon(QPainter *painter, int balloon, const QRectF &rect)
{
    constexpr double kSquare = 16;
    constexpr double kTip = 5;
    if (balloon < 1 || balloon > int(kDrawings.size())) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / (kSquare + kTip), rect.height() / (kSquare + kTip));
    QPainterPath bubble;
    bubble.addRoundedRect(QRectF(0, 0, kSquare + kTip, kSquare + 1), kTip, kTip);
    QPainterPath tip(QPointF(kSquare / 2 - 1, kSquare));
    tip.lineTo(kSquare / 2 + 2, kSquare + kTip);
    tip.lineTo(kSquare / 2 + kTip, kSquare);
    painter->setPen(QPen(kInk, 1));
    painter->setBrush(QColor(0xff, 0xff, 0xff, 235));
    painter->drawPath(bubble.united(tip));
    painter->translate(kTip / 2, 0.5);
    kDrawings.at(size_t(balloon - 1))(painter);
    painter->restore();
}

} // namespace player
