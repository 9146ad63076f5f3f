#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Keeps a top-level widget where the program put it.
///
/// Some window managers push a window that reaches beyond the screen back onto it while they map it, and the
/// overlays reach beyond it on purpose; and Qt takes a report of a window that is not in its frame yet for a
/// move to (0, 0). So this object remembers what was asked for, and never what Qt has: the widget is back
/// there before it is shown, and a few pushes after that are answered by a move to it. A window manager that
/// insists has its way until the next show or moveTo. Lives as a child of the widget.
class KeepPlace : public QObject
{
    Q_OBJECT

public:
    /// Pushes that are answered after each show and each moveTo.
    static constexpr int kAnswers = 3;

    /// @p overlay: a top-level widget; it owns the new object. It is asked for where it is now.
    explicit KeepPlace(QWidget *overlay);

    /// Moves @p overlay to @p place, screen pixels; every move of a widget with a KeepPlace goes through
    /// here.
    static void moveTo(QWidget *overlay, const QPoint &place);

    /// Where @p widget was asked to be; its position as Qt has it, if it has no KeepPlace.
    [[nodiscard]] static QPoint placeOf(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] static KeepPlace *of(const QWidget *widget);

    QWidget *const m_overlay;
    QPoint m_wanted;
    int m_answersLeft = 0;
};
