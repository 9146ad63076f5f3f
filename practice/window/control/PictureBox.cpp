#include "window/control/PictureBox.h"

#include <QPainter>

#include <utility>

PictureBox::PictureBox(Draw draw, QWidget *parent)
    : QAbstractButton(parent)
    , m_draw(std::move(draw))
{
}

void PictureBox::paintEvent(QPaintEvent * /*event*/)
{
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    QPainter painter(this);
    const QPixmap picture = m_draw(inner.size());
    if (!picture.isNull()) {
        const QSize size = picture.size() / picture.devicePixelRatio();
        painter.drawPixmap(inner.topLeft() +
                               QPoint(inner.width() - size.width(), inner.height() - size.height()) / 2,
                           picture);
    }
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
