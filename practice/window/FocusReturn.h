#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>

#include <functional>

/// Brings the focus back to the window in which a person works, and sees to it that it stays there: when a
/// window of the companion that had it goes away, some window managers give it to another one of ours.
class FocusReturn : public QObject
{
    Q_OBJECT

public:
    /// @p top gives the window that is to have the focus at the moment of the call; nullptr for none.
    explicit FocusReturn(std::function<QWidget *()> top, QObject *parent = nullptr);

    /// For so long the focus may go astray after it was brought back.
    static constexpr int kMs = 1000;

    void begin();

private:
    void activateTop() const;

    std::function<QWidget *()> m_top;
    QElapsedTimer m_since;
};
