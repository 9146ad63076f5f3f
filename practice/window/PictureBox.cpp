#include "window/PictureBox.h"

#include "window/EditorProject.h"
#include "window/MapPainter.h"

#include <QPainter>

#include <utility>

PictureBox::PictureBox(EditorProject *project, MapPainter *painter, QString picture, QWidget *parent)
    : QAbstractButton(parent)
    , m_project(project)
    , m_painter(painter)
    , m_picture(std::move(picture))
{
    connect(project, &EditorProject::changed, this, qOverload<>(&QWidget::update));
}

void PictureBox::paintEvent(QPaintEvent * /*event*/)
{
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    QPainter painter(this);
    if (m_picture == QLatin1String("sampleMap")) {
        const int row = m_project->currentRow(QStringLiteral("sampleMaps"));
        painter.drawPixmap(inner.topLeft(),
                           m_painter->mapPicture(m_project->data().sampleMaps[row], inner.size()));
    } else {
        const int set = m_picture == QLatin1String("tileSet")
                            ? m_project->currentRow(QStringLiteral("tileSets"))
                            : m_project->draft().tileSet;
        painter.drawPixmap(inner.topLeft(), m_painter->tileSetPicture(set, inner.size()));
    }
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
