#pragma once

#include "lesson/ControlSpot.h"

/// Something that the person did in the editor, or that the editor did by itself, in the words in which
/// scenario conditions are written: type, target and value are what stands between the commas.
///
/// Examples: {"windowState", "Copying", "close"}, {"list", "2", ""}, {"action", "fileSave", "open"},
/// {"tabView", "tabview", "1"}, {"spinBox", "=", "35 %"}, {"comboBox", "moveType", "1"},
/// {"checked", "directionFix", "1"}, {"popup", "MapPopup", ""}, {"mouseEvent", "Map", "click"},
/// {"radioButton", "RadioButton", "8"}, {"pressed", "0", "0"}, {"menuEvent", "Map", "click"},
/// {"textLength", "name", "4"}. One is more than its condition says: {"mouseEvent", "Map", "drag"} is a click
/// on the way of which the mouse went on to another place.
struct EditorEvent
{
    QString type;
    QString target;
    QString value;
    /// Key of the window in which it happened; empty where no window is concerned.
    QString windowKey;
    /// The control through which it came about, with the mouse or by a key that stands for it; no control
    /// where the editor did it by itself, and from an editor that does not tell. Where it makes no difference
    /// which row, tab or cell it was, the control as a whole.
    ControlSpot cause = {};
    /// Where windowKey is a part: the key of the window that the part stands in. Steps may name either.
    QString around = {};
};
