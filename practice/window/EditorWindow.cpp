#include "window/EditorWindow.h"

#include "window/ControlFactory.h"
#include "window/EditorProject.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace {

/// Sizes in the descriptions are made for this font, whatever the desktop's own is.
constexpr int kFontPixels = 12;

} // namespace

QString EditorWindowContext::text(const LocalText &texts) const
{
    return texts.value(locale);
}

EditorWindow::EditorWindow(const QString &key, const QSize &size, const QVector<ControlDescription> &controls,
                           const EditorWindowContext &context, QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_project(context.project)
{
    setObjectName(key);
    setFixedSize(size);
    QFont pixelFont = font();
    pixelFont.setPixelSize(kFontPixels);
    setFont(pixelFont);
    for (const ControlDescription &description : controls) {
        QWidget *control = makeControl(description, context, this);
        control->setObjectName(description.name);
        control->setGeometry(description.geometry);
        m_controls.append(control);
    }
}

QVector<QPair<QString, QPoint>> EditorWindow::controlPlaces() const
{
    QVector<QPair<QString, QPoint>> places;
    places.reserve(m_controls.size());
    for (const QWidget *control : m_controls)
        places.append({control->objectName(), control->pos()});
    return places;
}

void EditorWindow::report(const QString &type, const QString &target, const QString &value)
{
    Q_EMIT happened(type, target, value);
}

void EditorWindow::act(const ControlAction &action, const QPoint &screenPosition)
{
    if (action.isEmpty())
        return;
    if (!action.run.isEmpty())
        m_project->run(action.run);
    Q_EMIT asked(action, screenPosition);
}

void EditorWindow::setDefaultButton(QPushButton *button)
{
    m_defaultButton = button;
    button->setDefault(true);
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT closeRequested();
}

void EditorWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_defaultButton != nullptr)
        m_defaultButton->click();
    else if (event->key() == Qt::Key_Escape && windowFlags().testFlag(Qt::Dialog))
        Q_EMIT closeRequested();
    else
        QWidget::keyPressEvent(event);
}

void EditorWindow::paintEvent(QPaintEvent * /*event*/)
{
    if (!windowFlags().testFlag(Qt::FramelessWindowHint))
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
