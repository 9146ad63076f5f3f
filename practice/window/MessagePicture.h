#pragma once

#include <QPixmap>
#include <QStringList>

/// A message as the player of the game sees it.
struct MessageLook
{
    enum class Ground { kWindow, kDim, kNone };
    enum class Place { kTop, kMiddle, kBottom };

    /// Lines that fit into the window; what comes behind them is said after a key.
    static constexpr int kLines = 4;

    /// Name of the speaker's picture, and what the speaker is called; empty for nobody.
    QString face;
    QString speaker;
    QStringList lines;
    Ground ground = Ground::kWindow;
    Place place = Place::kBottom;
};

/// Draws the message on a dark scene of this size, in pixels.
[[nodiscard]] QPixmap messagePicture(const MessageLook &look, const QSize &size);
