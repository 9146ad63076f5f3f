#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

/// Makes clicks pass through a top-level widget that carries Qt::WindowTransparentForInput.
///
/// Some X11 window managers copy a window's empty input shape to their frame only when the shape changes
/// after mapping, so the flag alone leaves a frame that eats the clicks. Each time the window becomes
/// exposed, the flag is taken away and given back, which makes Qt announce the shape again. Lives as a child
/// of the widget and follows it through hiding, showing and re-creation of its native window.
class ClickThrough : public QObject
{
    Q_OBJECT

public:
    /// @p overlay: a top-level widget; it owns the new object.
    explicit ClickThrough(QWidget *overlay);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Announces the empty input shape of @p window anew.
    virtual void announceInputShape(QWindow *window);

private:
    void watchNativeWindow();

    QWidget *const m_overlay;
    QPointer<QWindow> m_window;
};
