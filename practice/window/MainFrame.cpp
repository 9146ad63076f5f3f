#include "window/MainFrame.h"

#include "window/EditorWindow.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

/// What a window manager puts around a window, at most; how much it is shows only when the window is there.
constexpr QMargins kDecoration(6, 32, 6, 6);

} // namespace

QMargins MainFrame::decoration()
{
    return kDecoration;
}

MainFrame::MainFrame()
    : QWidget(nullptr, Qt::Window)
    , m_menuBar(new QMenuBar(this))
    , m_layout(new QVBoxLayout(this))
{
    EditorWindow::takePixelFont(this);
    // A desktop that shows menus elsewhere would take them out of the window, and their keys with them.
    m_menuBar->setNativeMenuBar(false);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->setMenuBar(m_menuBar);
    // Qt itself has no key for it.
    const auto *key = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(key, &QShortcut::activated, this, &MainFrame::openFirstMenu);
}

void MainFrame::openFirstMenu()
{
    const QList<QAction *> menus = m_menuBar->actions();
    if (menus.isEmpty() || !m_menuBar->isEnabled()) {
        return;
    }
    m_menuBar->setActiveAction(menus.constFirst());
    if (QMenu *const menu = menus.constFirst()->menu()) {
        menu->setActiveAction(menu->actions().value(0));
    }
}

void MainFrame::setContents(EditorWindow *contents)
{
    m_contents = contents;
    m_layout->insertWidget(0, contents, 1);
    resize(contents->size() + QSize(0, heightAbove(contents->width())));
}

void MainFrame::dock(QWidget *strip)
{
    m_strip = strip;
    m_layout->addWidget(strip);
    strip->show();
}

bool MainFrame::isDocked(const QWidget *widget) const
{
    return m_strip != nullptr && (widget == m_strip || m_strip->isAncestorOf(widget));
}

QRect MainFrame::stripOnScreen() const
{
    return m_strip != nullptr && m_strip->isVisible() ? QRect(m_strip->mapToGlobal(QPoint()), m_strip->size())
                                                      : QRect();
}

int MainFrame::heightAbove(int width) const
{
    return m_menuBar->actions().isEmpty()
               ? 0
               : qMax(m_menuBar->heightForWidth(width), m_menuBar->sizeHint().height());
}

int MainFrame::heightBelow() const
{
    if (m_strip == nullptr) {
        return 0;
    }
    return qBound(m_strip->minimumHeight(), m_strip->sizeHint().height(), m_strip->maximumHeight());
}

void MainFrame::fit(const QPoint &place, const QSize &size, const QRect &screen)
{
    const QRect room = screen.marginsRemoved(kDecoration);
    const int width = qMin(size.width(), room.width());
    const int around = heightAbove(width) + heightBelow();
    const QSize whole =
        QSize(width, qMin(size.height() + around, room.height())).expandedTo(minimumSizeHint());
    const QPoint last = room.bottomRight() - QPoint(whole.width() - 1, whole.height() - 1);
    const QPoint wanted = place - QPoint(0, heightAbove(width));
    setGeometry(QRect(
        QPoint(qMax(room.left(), qMin(wanted.x(), last.x())), qMax(room.top(), qMin(wanted.y(), last.y()))),
        whole));
}

void MainFrame::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT closeRequested();
}
