#pragma once

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/IndicatorUpdate.h"
#include "Tutorial/overlay/Placement.h"

#include <QPoint>
#include <QString>

/// Everything that decides what the indicator's windows show and where they stand. It knows no window: the
/// indicator changes it, the windows read it. Coordinates are screen pixels.
struct IndicatorState
{
    Placement placement;
    int offsetX = IndicatorUpdate::kNoTarget; ///< the target as it was last told, also one that is none
    int offsetY = IndicatorUpdate::kNoTarget;
    QString windowKey;
    QString hint; ///< plain text
    int hintHeight = BubbleGeometry::kFirstHintHeight;
    int iconKind = IndicatorUpdate::kNoIcon;
    bool arrowVisible = true;
    bool nextWindowEnabled = false;  ///< the step wants Next
    bool yesNoWindowEnabled = false; ///< the step wants Yes and No
    bool updateTextEditSize = false; ///< the next tick measures the hint
    bool repaintAll = false;         ///< the next paint erases the whole window first

    /// Takes a new target; x and y both kNoTarget turn the arrow off and leave the target as it was.
    void setTarget(const QPoint &target, const QString &key, bool arrow);

    /// Takes a new hint. Of one longer than any screen the front is kept.
    void setHint(const QString &text);

    /// The first half of a tick: turns the arrow where that is due and says where the windows go next.
    /// @p hostRight and @p arrowWidth as for stepPlacement.
    PlacementStep turn(qint64 hostRight, int arrowWidth);

    /// The second half: the windows are at @p place from now on. Whether they have to be moved for that;
    /// after a hint was @p measured they are moved where they stand, since the buttons are below the hint.
    bool moveTo(const QPoint &place, bool measured);

    /// Where the buttons belong now.
    [[nodiscard]] ButtonPlaces buttonPlaces(int arrowWidth) const;
};
