#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <functional>

/// Brings the focus back to the window in which a person works, and sees to it that it stays there: when a
/// window of the companion that had it goes away, some window managers give it to another one of ours.
class FocusReturn : public QObject
{
    Q_OBJECT

public:
    /// @p top gives the window that is to have the focus at the moment of the call; nullptr for none.
    explicit FocusReturn(std::function<QWidget *()> top, QObject *parent = nullptr);

    /// For so long the focus may go astray after it was brought back: on a busy machine what took it away
    /// goes late.
    static constexpr int kMs = 3000;

    /// Only a window that is shown now can have it by mistake; one that comes later, such as a game, wants
    /// it.
    void begin();

private:
    /// Whether another one of the windows that were there at the beginning has it.
    [[nodiscard]] bool isAstray() const;
    void bringBack();
    void activateTop() const;

    std::function<QWidget *()> m_top;
    QElapsedTimer m_since;
    /// Those of the beginning; a window that has gone may have its address taken by one that comes later.
    QVector<QPointer<QWindow>> m_shown;
    QTimer m_again;
};
