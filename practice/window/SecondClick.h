#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>

class QPushButton;

/// Keeps the second click of a double click from doing harm. It does not reach what comes to light when the
/// first one has closed a window or a context menu, or opened one: who double-clicks OK does not mean to
/// paint on the map below, nor who double-clicks a picture to close the window that comes up there. And it
/// does nothing to a button or check box: who double-clicks Add does not mean to add two.
class SecondClick : public QObject
{
    Q_OBJECT

public:
    explicit SecondClick(QObject *parent = nullptr);

    /// Something closes or opens through a control. A click in the same place does nothing for as long as a
    /// double click may take.
    void begin();
    /// Whether the second click is just now on the frame of a window, where it comes as a wish to close it.
    [[nodiscard]] bool isOnFrame() const;
    /// Something else has happened since, so a click is a new one.
    void end() { m_since.invalidate(); }

    /// The button is for clicking it again and again, as fast as one can. Tool buttons are, unless they have
    /// two states.
    static void setRepeats(QPushButton *button, bool repeats);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isSecond(const QPoint &screenPosition) const;

    /// Where the mouse button was let go last, in pixels of the screen, and whether no key was pressed since.
    QPoint m_released;
    bool m_isByMouse = false;
    /// Where it was when begin() was called, and since when.
    QPoint m_place;
    QElapsedTimer m_since;
    /// A press was dropped, and its release has not come.
    bool m_holds = false;
};
