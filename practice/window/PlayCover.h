#pragma once

#include "host/Activity.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

/// The window of a game that is tried out, as a lesson sees it: it may lie over what is pointed at.
class PlayCover : public QObject
{
    Q_OBJECT

public:
    explicit PlayCover(QObject *parent = nullptr);

    /// @p window is shown. @p leaveRect gives, in global pixels, where in it a click leaves the game.
    void setWindow(QWidget *window, const std::function<std::optional<QRect>()> &leaveRect);

    [[nodiscard]] Activity activity() const;
    /// Whether the spot is that of activity().end.
    [[nodiscard]] static bool isWayOut(const ControlSpot &spot);
    /// Where the game is left, in global pixels; nothing while none runs or the window has no room for it.
    [[nodiscard]] std::optional<QRect> leaveRect() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The window came up, went away, moved, or came to lie above or below a dialog.
    void changed();

private:
    void onFocusChanged(const QWidget *now);
    void setOnTop(bool isOnTop);
    [[nodiscard]] bool isOn() const { return m_window != nullptr && m_window->isVisible(); }

    QPointer<QWidget> m_window;
    std::function<std::optional<QRect>()> m_leaveRect;
    /// No dialog has come above it.
    bool m_isOnTop = false;
};
