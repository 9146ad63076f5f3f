#pragma once

#include <QString>

/// Something that the person did in the editor, or that the editor did by itself, in the words in which
/// scenario conditions are written: type, target and value are what stands between the commas.
///
/// Examples: {"windowState", "Copying", "close"}, {"list", "2", ""}, {"action", "fileSave", "open"},
/// {"tabView", "tabview", "1"}, {"spinBox", "=", "35 %"}, {"comboBox", "moveType", "1"},
/// {"checked", "directionFix", "1"}, {"popup", "MapPopup", ""}, {"mouseEvent", "Map", "click"},
/// {"radioButton", "RadioButton", "8"}, {"pressed", "0", "0"}, {"menuEvent", "Map", "click"}.
struct EditorEvent
{
    QString type;
    QString target;
    QString value;
    /// Key of the window in which it happened; empty where no window is concerned.
    QString windowKey;
};
