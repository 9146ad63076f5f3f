#include "window/WindowAccess.h"

#include "window/EditorWindow.h"

#include <QAccessibleWidget>

namespace {

bool isDialog(const QWidget *widget)
{
    return widget->windowType() == Qt::Dialog;
}

class WindowAccess : public QAccessibleWidget
{
public:
    explicit WindowAccess(EditorWindow *window)
        : QAccessibleWidget(window, isDialog(window) ? QAccessible::Dialog : QAccessible::Client)
        , m_window(window)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = isDialog(m_window) && m_window->isVisible() && !m_window->isBlocked();
        state.disabled = state.disabled || m_window->isBlocked();
        return state;
    }

private:
    EditorWindow *m_window;
};

QAccessibleInterface *accessOf(const QString & /*className*/, QObject *object)
{
    auto *window = qobject_cast<EditorWindow *>(object);
    return window != nullptr ? new WindowAccess(window) : nullptr;
}

} // namespace

void makeWindowsAccessible()
{
    // Once is enough: a factory that is there already is not added again.
    QAccessible::installFactory(accessOf);
}

void tellOfBlocking(EditorWindow *window)
{
    QAccessible::State changed;
    changed.disabled = true;
    changed.modal = isDialog(window);
    QAccessibleStateChangeEvent event(window, changed);
    QAccessible::updateAccessibility(&event);
}
