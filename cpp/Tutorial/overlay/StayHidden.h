#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

/// Sees to it that a top-level widget which is hidden again before it was mapped is never mapped.
///
/// An X11 window manager maps a window some time after it was asked to. One that is asked to withdraw it in
/// between may overlook that: the window stays on the screen although the widget is hidden, and may even take
/// the focus. So the native window goes with the hide in that case; the next show makes a new one. Lives as a
/// child of the widget.
class StayHidden : public QObject
{
    Q_OBJECT

public:
    /// @p overlay: a top-level widget, hidden as yet; it owns the new object.
    explicit StayHidden(QWidget *overlay);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchNativeWindow();

    QWidget *const m_overlay;
    QPointer<QWindow> m_window;
    bool m_mapped = false;
};
