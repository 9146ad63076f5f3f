#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Keeps a top-level widget where the program put it when it is shown.
///
/// Some window managers push a window that reaches beyond the screen back onto it while they map it, and the
/// overlays reach beyond it on purpose. The first such push after each show is answered by one move to the
/// place that was asked for; a window manager that insists has its way. Lives as a child of the widget.
class KeepPlace : public QObject
{
    Q_OBJECT

public:
    /// @p overlay: a top-level widget; it owns the new object.
    explicit KeepPlace(QWidget *overlay);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const m_overlay;
    QPoint m_wanted;
    bool m_mayAnswer = false;
};
