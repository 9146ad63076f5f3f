#include "window/InputBlock.h"

#include "window/EditorWindow.h"
#include "window/MainFrame.h"

#include <QApplication>
#include <QEvent>
#include <QMenuBar>
#include <QTimer>
#include <QWindow>

namespace {

/// So long a window manager may take until it has given the keyboard to another window.
constexpr int kHandOverMs = 3000;

} // namespace

InputBlock::InputBlock(MainFrame *frame, QObject *parent)
    : QObject(parent)
    , m_frame(frame)
{
    qApp->installEventFilter(this);
    // When a dialog opens or closes, many a window manager gives the keyboard to the main window, past the
    // dialog that is on top now. Later than that it is the person who goes there, to use the strip.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
        const bool isRecent = m_topSince.isValid() && m_topSince.elapsed() < kHandOverMs;
        if (m_top != nullptr && isRecent && window == m_frame->windowHandle()) {
            // It may be on its way to yet another one, such as a game that begins.
            QTimer::singleShot(0, this, &InputBlock::handKeyboardOn);
        }
    });
}

void InputBlock::handKeyboardOn()
{
    const bool isQuestion = QApplication::activeModalWidget() != nullptr;
    if (m_top != nullptr && !isQuestion && QGuiApplication::focusWindow() == m_frame->windowHandle()) {
        m_top->activateWindow();
    }
}

void InputBlock::setTop(QWidget *window)
{
    m_top = window != nullptr && window->isWindow() ? window : nullptr;
    m_topSince.start();
    // Its keys go with it.
    m_frame->menuBar()->setEnabled(m_top == nullptr);
}

bool InputBlock::blocks(const QWidget *widget) const
{
    if (m_top == nullptr) {
        return false;
    }
    const QWidget *const window = widget->window();
    if (window == m_frame) {
        return !m_frame->isDocked(widget);
    }
    // Other windows are context menus and questions, which stand above the one on top.
    return window != m_top && window->windowType() == Qt::Dialog &&
           qobject_cast<const EditorWindow *>(window) != nullptr;
}

bool InputBlock::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        if (auto *widget = qobject_cast<QWidget *>(watched); widget != nullptr && blocks(widget)) {
            m_top->raise();
            m_top->activateWindow();
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        if (auto *widget = qobject_cast<QWidget *>(watched); widget != nullptr && blocks(widget)) {
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
