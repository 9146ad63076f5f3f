#include "window/Blink.h"

#include <QApplication>
#include <QPainter>

namespace {

/// Between what it frames and its inner edge.
constexpr int kGap = 2;
constexpr int kLine = 3;
constexpr int kRim = 7;
constexpr double kCorner = 6;

} // namespace

bool Blink::around(const QRect &rect)
{
    const QWidget *const below = QApplication::widgetAt(rect.center());
    if (below == nullptr) {
        return false;
    }
    QWidget *const window = below->window();
    constexpr int margin = kGap + kRim;
    const QRect place(window->mapFromGlobal(rect.topLeft()), rect.size());
    new Blink(window, place.adjusted(-margin, -margin, margin, margin));
    return true;
}

Blink::Blink(QWidget *window, const QRect &place)
    : QWidget(window)
{
    setObjectName(QStringLiteral("blink"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(place);
    connect(&m_timer, &QTimer::timeout, this, &Blink::turn);
    m_timer.start(kRoundMs);
    raise();
    show();
}

void Blink::turn()
{
    ++m_round;
    setVisible(m_round % 2 == 0);
    if (m_round == kRounds) {
        m_timer.stop();
        deleteLater();
    }
}

void Blink::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double inset = kRim / 2.0;
    const QRectF frame = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    // Seen on light and on dark, like the companion's arrow.
    painter.setPen(QPen(Qt::white, kRim));
    painter.drawRoundedRect(frame, kCorner, kCorner);
    painter.setPen(QPen(QColor(0xE8, 0x33, 0x1C), kLine));
    painter.drawRoundedRect(frame, kCorner, kCorner);
}
