#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

/// Base of the cures that work on the native window of a top-level widget: it hears the events of both, and
/// follows the widget through hiding, showing and re-creation of its native window. Lives as a child of the
/// widget.
class NativeWindowFilter : public QObject
{
    Q_OBJECT

public:
    /// @p overlay: a top-level widget; it owns the new object.
    explicit NativeWindowFilter(QWidget *overlay);

    bool eventFilter(QObject *watched, QEvent *event) final;

protected:
    /// An event of the widget, of the native window that it has at this moment. Nothing keeps it from either.
    virtual void onWidgetEvent(QEvent *event);
    virtual void onWindowEvent(QEvent *event);

    /// A native window came to be, the first or another one. It is not shown yet.
    virtual void onWindowCreated(QWindow *window);

    /// The native window, or null while there is none.
    [[nodiscard]] QWindow *window() const;

    [[nodiscard]] QWidget *overlay() const { return m_overlay; }

private:
    void watchNativeWindow();

    QWidget *const m_overlay;
    QPointer<QWindow> m_window;
};
