#include "player/view/KeyLine.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace player {

namespace {

constexpr int kLargest = 12;
constexpr int kSmallest = 9;
constexpr int kMargin = 8;
/// Within a cap, beside its letters.
constexpr int kInCap = 4;
constexpr int kBetweenCaps = 3;
/// Between the caps and what they do, and between two of these.
constexpr int kBehindCaps = 5;
constexpr int kBetweenHints = 14;
constexpr int kAround = 4;
constexpr int kEdgeOpacity = 110;

} // namespace

KeyLine::KeyLine(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("keyLine"));
    // A small window is not kept large by it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    //: Below a game, behind the arrow keys: what they do. There is room for some 20 letters.
    const QString walk = tr("Walk, choose");
    //: Below a game, behind the enter key: what it does. There is room for some 20 letters.
    const QString act = tr("Talk, confirm");
    //: Below a game, behind the X key: what it does. There is room for some 20 letters.
    const QString menu = tr("Menu, cancel");
    //: Below a game, behind the escape key: what it does. There is room for some 30 letters.
    const QString leave = tr("Cancel, to the editor");
    //: Below a game, behind the F5 key: what it does. There is room for some 20 letters.
    const QString anew = tr("Begin anew");
    m_hints = {{{{Qt::Key_Left, QStringLiteral("←")},
                 {Qt::Key_Up, QStringLiteral("↑")},
                 {Qt::Key_Down, QStringLiteral("↓")},
                 {Qt::Key_Right, QStringLiteral("→")}},
                walk},
               {{{Qt::Key_Return, QStringLiteral("Enter")}}, act},
               {{{Qt::Key_X, QStringLiteral("X")}}, menu},
               {{{Qt::Key_Escape, QStringLiteral("Esc")}}, leave},
               {{{Qt::Key_F5, QStringLiteral("F5")}}, anew}};
    QStringList words;
    for (const Hint &hint : qAsConst(m_hints)) {
        QStringList caps;
        for (const Cap &cap : hint.caps) {
            caps.append(cap.text);
        }
        words.append(caps.join(QLatin1Char(' ')) + QStringLiteral(": ") + hint.meaning);
    }
    setAccessibleName(words.join(QStringLiteral("; ")));
}

QSize KeyLine::sizeHint() const
{
    const QFontMetrics metrics(letters(kLargest));
    return {widthOf(count(), metrics), metrics.height() + 2 * kAround + 2};
}

QFont KeyLine::letters(int pixels) const
{
    QFont small = font();
    small.setPixelSize(pixels);
    return small;
}

int KeyLine::widthOf(const Hint &hint, const QFontMetrics &metrics) const
{
    int width = kBehindCaps + metrics.horizontalAdvance(hint.meaning) - kBetweenCaps;
    for (const Cap &cap : hint.caps) {
        width += metrics.horizontalAdvance(cap.text) + 2 * kInCap + kBetweenCaps;
    }
    return width;
}

int KeyLine::widthOf(int hints, const QFontMetrics &metrics) const
{
    int width = 2 * kMargin + qMax(0, hints - 1) * kBetweenHints;
    for (int hint = 0; hint < hints; ++hint) {
        width += widthOf(m_hints.at(hint), metrics);
    }
    return width;
}

int KeyLine::lettersWithin(int width) const
{
    int pixels = kLargest;
    while (pixels > kSmallest && widthOf(count(), QFontMetrics(letters(pixels))) > width) {
        --pixels;
    }
    return pixels;
}

int KeyLine::toldWithin(int width) const
{
    const QFontMetrics metrics(letters(lettersWithin(width)));
    int told = count();
    while (told > 0 && widthOf(told, metrics) > width) {
        --told;
    }
    return told;
}

QVector<KeyLine::Piece> KeyLine::pieces() const
{
    const QFontMetrics metrics(letters(lettersWithin(width())));
    const int told = toldWithin(width());
    int left = kMargin + (width() - widthOf(told, metrics)) / 2;
    QVector<Piece> pieces;
    const auto add = [&](const QString &text, int around, std::optional<Qt::Key> key) {
        const QRect rect(left, kAround / 2, metrics.horizontalAdvance(text) + 2 * around, height() - kAround);
        pieces.append({rect, text, key});
        left += rect.width();
    };
    for (int number = 0; number < told; ++number) {
        const Hint &hint = m_hints.at(number);
        for (const Cap &cap : hint.caps) {
            add(cap.text, kInCap, cap.key);
            left += kBetweenCaps;
        }
        left += kBehindCaps - kBetweenCaps;
        add(hint.meaning, 0, {});
        left += kBetweenHints;
    }
    return pieces;
}

QRect KeyLine::capOf(Qt::Key key) const
{
    const QVector<Piece> told = pieces();
    const auto cap =
        std::find_if(told.cbegin(), told.cend(), [key](const Piece &piece) { return piece.key == key; });
    return cap != told.cend() ? cap->rect : QRect();
}

void KeyLine::mousePressEvent(QMouseEvent *event)
{
    const QVector<Piece> told = pieces();
    const auto cap = std::find_if(told.cbegin(), told.cend(), [event](const Piece &piece) {
        return piece.key && piece.rect.contains(event->pos());
    });
    if (cap != told.cend() && event->button() == Qt::LeftButton) {
        Q_EMIT pressed(*cap->key);
    }
}

void KeyLine::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(letters(lettersWithin(width())));
    // Seen on light and dark desktops alike.
    QColor edge = palette().color(QPalette::ButtonText);
    edge.setAlpha(kEdgeOpacity);
    const QVector<Piece> told = pieces();
    for (const Piece &piece : told) {
        if (!piece.key) {
            painter.setPen(palette().color(QPalette::WindowText));
            painter.drawText(piece.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, piece.text);
            continue;
        }
        painter.setPen(edge);
        painter.setBrush(palette().color(QPalette::Button));
        painter.drawRoundedRect(QRectF(piece.rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(piece.rect, Qt::AlignCenter, piece.text);
    }
}

} // namespace player
