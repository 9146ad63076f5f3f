#include "player/view/KeyLine.h"

#include <QPainter>

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
    m_hints = {{{QStringLiteral("←"), QStringLiteral("↑"), QStringLiteral("↓"), QStringLiteral("→")}, walk},
               {{QStringLiteral("Enter")}, act},
               {{QStringLiteral("X")}, menu},
               {{QStringLiteral("Esc")}, leave},
               {{QStringLiteral("F5")}, anew}};
    QStringList words;
    for (const Hint &hint : qAsConst(m_hints)) {
        words.append(hint.caps.join(QLatin1Char(' ')) + QStringLiteral(": ") + hint.meaning);
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
    for (const QString &cap : hint.caps) {
        width += metrics.horizontalAdvance(cap) + 2 * kInCap + kBetweenCaps;
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

void KeyLine::paintEvent(QPaintEvent * /*event*/)
{
    const QFont font = letters(lettersWithin(width()));
    const QFontMetrics metrics(font);
    const int told = toldWithin(width());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    // Seen on light and dark desktops alike.
    QColor edge = palette().color(QPalette::ButtonText);
    edge.setAlpha(kEdgeOpacity);
    int left = kMargin + (width() - widthOf(told, metrics)) / 2;
    const auto room = [this, &left](int width) {
        return QRect(left, kAround / 2, width, height() - kAround);
    };
    for (int number = 0; number < told; ++number) {
        const Hint &hint = m_hints.at(number);
        for (const QString &cap : hint.caps) {
            const QRect rect = room(metrics.horizontalAdvance(cap) + 2 * kInCap);
            painter.setPen(edge);
            painter.setBrush(palette().color(QPalette::Button));
            painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
            painter.setPen(palette().color(QPalette::ButtonText));
            painter.drawText(rect, Qt::AlignCenter, cap);
            left += rect.width() + kBetweenCaps;
        }
        left += kBehindCaps - kBetweenCaps;
        const QRect rect = room(metrics.horizontalAdvance(hint.meaning));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, hint.meaning);
        left += rect.width() + kBetweenHints;
    }
}

} // namespace player
