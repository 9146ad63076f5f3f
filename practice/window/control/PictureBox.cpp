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
    painter.drawPixmap(inner.topLeft(), m_draw(inner.size()));
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
