#include "Tutorial/overlay/OverlayButton.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr qreal kRadius = 6.0;
constexpr int kTop = 4;
constexpr int kSide = 3; // as far as the panel of a hint is from the edge of its text edit
constexpr int kYesWidth = 52;
constexpr int kNoLeft = 7; // the window of No begins 56 pixels right of that of Yes: 8 between the bodies
constexpr QMargins kCaptionRoom(5, 3, 5, 3);
constexpr int kSmallestCaption = 6; // pixels

struct Colors
{
    QColor fill;
    QColor hover;
    QColor pressed;
    QColor line;
    QColor caption;
};

const QColor kHalo(255, 255, 255, 230); // sets the button off from dark windows
const Colors kPrimary{{38, 104, 178}, {28, 84, 148}, {16, 54, 100}, {16, 54, 100}, {255, 255, 255}};
const Colors kSecondary{{255, 255, 255}, {223, 236, 250}, {188, 214, 241}, {38, 104, 178}, {24, 74, 133}};

bool isNo(const QWidget *button)
{
    return button->objectName() == QLatin1String("noButton");
}

bool isYes(const QWidget *button)
{
    return button->objectName() == QLatin1String("yesButton");
}

const QColor &fillOf(const Colors &colors, QStyle::State state)
{
    if (state.testFlag(QStyle::State_Sunken)) {
        return colors.pressed;
    }
    return state.testFlag(QStyle::State_MouseOver) ? colors.hover : colors.fill;
}

void drawRound(QPainter *painter, const QRectF &rect, qreal radius, const QPen &pen, const QBrush &brush)
{
    const qreal half = pen.style() == Qt::NoPen ? 0.0 : pen.widthF() / 2.0;
    painter->setPen(pen);
    painter->setBrush(brush);
    painter->drawRoundedRect(rect.adjusted(half, half, -half, -half), radius, radius);
}

QFont fitted(QFont font, const QString &caption, const QSize &room)
{
    for (int size = QFontInfo(font).pixelSize(); size >= kSmallestCaption; --size) {
        const QRect ink = QFontMetrics(font).boundingRect(QRect(), Qt::AlignCenter, caption);
        if (ink.width() <= room.width() && ink.height() <= room.height()) {
            break;
        }
        font.setPixelSize(size - 1);
    }
    return font;
}

} // namespace

namespace OverlayButton {

bool isOne(const QWidget *widget)
{
    return widget != nullptr && widget->windowType() == Qt::Tool &&
           qobject_cast<const QPushButton *>(widget) != nullptr;
}

QRect body(const QWidget *button)
{
    const QRect window = button->rect();
    const int left = isNo(button) ? kNoLeft : kSide;
    const int width = isNo(button) || isYes(button) ? kYesWidth : window.width() - 2 * kSide;
    return {left, kTop, width, window.height() - kTop};
}

void draw(QPainter *painter, const QStyleOptionButton &option, const QWidget *button)
{
    const Colors &colors = isNo(button) ? kSecondary : kPrimary;
    const QRect whole = body(button);
    const QRectF inner = QRectF(whole).adjusted(1.0, 1.0, -1.0, -1.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawRound(painter, whole, kRadius, Qt::NoPen, kHalo);
    drawRound(painter, inner, kRadius - 1.0, QPen(colors.line, 1.0), fillOf(colors, option.state));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        drawRound(painter, inner.adjusted(2.0, 2.0, -2.0, -2.0), kRadius - 3.0, QPen(colors.caption, 1.0),
                  Qt::NoBrush);
    }
    const QRect room = whole.marginsRemoved(kCaptionRoom);
    painter->setFont(fitted(painter->font(), option.text, room.size()));
    painter->setPen(colors.caption);
    const bool pressed = option.state.testFlag(QStyle::State_Sunken);
    // Clipped at the room, a caption that is too large would look like one that fits.
    painter->drawText(pressed ? room.translated(0, 1) : room,
                      Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, option.text);
    painter->restore();
}

} // namespace OverlayButton
