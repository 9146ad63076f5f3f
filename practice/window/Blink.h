#pragma once

#include <QTimer>
#include <QWidget>

/// A ring that blinks for a moment around a place in one of the editor's windows, to show it to the person.
/// It takes no clicks, and goes by itself.
class Blink : public QWidget
{
    Q_OBJECT

public:
    /// Shows one around @p rect, in global screen pixels. False when none of our windows is there.
    static bool around(const QRect &rect);

    static constexpr int kRoundMs = 350;
    static constexpr int kRounds = 8;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// @p place: in the window.
    Blink(QWidget *window, const QRect &place);

    void turn();

    QTimer m_timer;
    int m_round = 0;
};
