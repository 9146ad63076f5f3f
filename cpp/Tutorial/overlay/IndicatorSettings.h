#pragma once

#include "Tutorial/overlay/IndicatorState.h"

#include <QPoint>
#include <QVariantMap>

/// What a rebuilt indicator takes over from the one before: its state, and where its windows were asked to
/// be.
struct IndicatorSettings
{
    IndicatorState state;
    bool tooltip = false; ///< there is a bubble
    QPoint textEdit;      ///< where the hint is in the bubble's window; not in the map of one without bubble
    QPoint tooltipPlace;  ///< of the windows' top left, in screen pixels
    QPoint nextButton;
    QPoint yesButton;
    QPoint noButton;

    /// As a map with one entry for each number, flag and text. It stays inside the process.
    [[nodiscard]] QVariantMap toMap() const;
    /// What is missing in @p map or does not convert reads as 0, false or empty text.
    [[nodiscard]] static IndicatorSettings fromMap(const QVariantMap &map);
};
