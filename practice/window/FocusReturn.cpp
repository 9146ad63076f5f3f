#include "window/FocusReturn.h"

#include <QApplication>

#include <utility>

namespace {

/// A window manager may turn down what is asked of it before it has seen the other window go.
constexpr int kAgainMs = 100;

} // namespace

FocusReturn::FocusReturn(std::function<QWidget *()> top, QObject *parent)
    : QObject(parent)
    , m_top(std::move(top))
{
    m_again.setInterval(kAgainMs);
    connect(&m_again, &QTimer::timeout, this, &FocusReturn::bringBack);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &FocusReturn::bringBack);
}

void FocusReturn::begin()
{
    m_shown.clear();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *const window : windows) {
        if (window->isVisible()) {
            m_shown.append(window);
        }
    }
    m_since.start();
    m_again.start();
    activateTop();
}

bool FocusReturn::isAstray() const
{
    QWindow *const focused = QGuiApplication::focusWindow();
    const QWidget *const wanted = m_top();
    return focused != nullptr && wanted != nullptr && focused != wanted->windowHandle() &&
           m_shown.contains(focused);
}

void FocusReturn::bringBack()
{
    if (!m_since.isValid() || m_since.elapsed() >= kMs) {
        m_again.stop();
    } else if (isAstray()) {
        activateTop();
    }
}

void FocusReturn::activateTop() const
{
    QWidget *const window = m_top();
    const bool isQuestion = QApplication::activeModalWidget() != nullptr;
    if (window != nullptr && !isQuestion) {
        window->activateWindow();
    }
}
