#include "window/MessagePicture.h"

#include "window/Pictures.h"

#include <QPainter>

namespace {

/// Parts of the picture's height: the window, a line in it, its letters, and the room around them.
constexpr double kWindowPart = 0.32;
constexpr double kLinePart = 0.068;
constexpr double kLetterPart = 0.045;
constexpr double kMarginPart = 0.022;

const QColor kScene(0x2c, 0x3a, 0x4c);
const QColor kFrame(0xe8, 0xe4, 0xd4);

int top(const MessageLook &look, int height, int windowHeight, int margin)
{
    switch (look.place) {
    case MessageLook::Place::kTop:
        return margin + windowHeight / 4;
    case MessageLook::Place::kMiddle:
        return (height - windowHeight) / 2;
    case MessageLook::Place::kBottom:
        break;
    }
    return height - windowHeight - margin;
}

void drawGround(QPainter *painter, const QRect &window, MessageLook::Ground ground)
{
    if (ground == MessageLook::Ground::kWindow) {
        painter->setPen(QPen(kFrame, 2));
        painter->setBrush(QColor(0x14, 0x1c, 0x2c, 230));
        painter->drawRoundedRect(window, 6, 6);
    } else if (ground == MessageLook::Ground::kDim) {
        painter->fillRect(window, QColor(0, 0, 0, 120));
    }
}

} // namespace

QPixmap messagePicture(const MessageLook &look, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(kScene);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int margin = qRound(size.height() * kMarginPart);
    const int height = qRound(size.height() * kWindowPart);
    const int line = qRound(size.height() * kLinePart);
    QFont font = painter.font();
    font.setPixelSize(qRound(size.height() * kLetterPart));
    painter.setFont(font);

    const QRect window(margin, top(look, size.height(), height, margin), size.width() - 2 * margin, height);
    drawGround(&painter, window, look.ground);
    QRect text = window.adjusted(2 * margin, margin, -2 * margin, -margin);
    const QPixmap face = Pictures::load(QStringLiteral("faces"), look.face);
    if (!face.isNull()) {
        const QRect place(text.topLeft(), QSize(text.height(), text.height()));
        painter.drawPixmap(place, face);
        text.setLeft(place.right() + 2 * margin);
    }
    if (!look.speaker.isEmpty()) {
        const int width = painter.fontMetrics().horizontalAdvance(look.speaker) + 4 * margin;
        const QRect box(window.left(), window.top() - line - margin, width, line + margin / 2);
        drawGround(&painter, box, look.ground);
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignCenter, look.speaker);
    }
    painter.setPen(Qt::white);
    for (int i = 0; i < qMin(int(look.lines.size()), MessageLook::kLines); ++i) {
        const QRect row(text.left(), text.top() + i * line, text.width(), line);
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, look.lines.at(i));
    }
    return picture;
}
