#include "window/control/CurveBox.h"

#include <QJsonArray>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kLevels = 99;
constexpr int kMargin = 4;

} // namespace

CurveBox::CurveBox(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
}

void CurveBox::setPair(const QJsonValue &pair)
{
    m_base = pair.toArray().at(0).toInt();
    m_growth = pair.toArray().at(1).toInt();
    update();
}

void CurveBox::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    const QFontMetrics metrics = fontMetrics();
    const QRect area = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int highest = std::max({valueAt(1), valueAt(kLevels), 1});
    const int lowest = std::min({valueAt(1), valueAt(kLevels), 0});
    const auto heightOf = [&area, highest, lowest](int value) {
        return area.bottom() - (value - lowest) * (area.height() - 1) / (highest - lowest);
    };
    QVector<QPoint> points{QPoint(area.left(), heightOf(0))};
    for (int level = 1; level <= kLevels; ++level) {
        points.append(
            {area.left() + (level - 1) * (area.width() - 1) / (kLevels - 1), heightOf(valueAt(level))});
    }
    points.append({area.right(), heightOf(0)});
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(fill);
    fill.setAlphaF(0.35);
    painter.setBrush(fill);
    painter.drawPolygon(QPolygon(points));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(area.adjusted(0, 0, 0, -metrics.height()), Qt::AlignLeft | Qt::AlignTop,
                     QStringLiteral("1: %1").arg(valueAt(1)));
    painter.drawText(
        area, Qt::AlignHCenter | Qt::AlignTop,
        QStringLiteral("%1: %2").arg(QString::number(kLevels), QString::number(valueAt(kLevels))));
}
