#include "window/FocusReturn.h"

#include <QApplication>
#include <QWindow>

#include <utility>

FocusReturn::FocusReturn(std::function<QWidget *()> top, QObject *parent)
    : QObject(parent)
    , m_top(std::move(top))
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
        const QWidget *const wanted = m_top();
        const bool isRecent = m_since.isValid() && m_since.elapsed() < kMs;
        const bool isQuestion = QApplication::activeModalWidget() != nullptr;
        if (isRecent && !isQuestion && window != nullptr && wanted != nullptr &&
            window != wanted->windowHandle()) {
            activateTop();
        }
    });
}

void FocusReturn::begin()
{
    m_since.start();
    activateTop();
}

void FocusReturn::activateTop() const
{
    if (QWidget *const window = m_top()) {
        window->activateWindow();
    }
}
