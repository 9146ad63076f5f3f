#pragma once

#include <array>

/// Words of a scenario that both ends of the link know.
namespace ScenarioWords {

/// First word of an item's command that asks for the lesson's sample data.
inline constexpr const char *kPresetData = "presetData";

/// Condition types.
inline constexpr std::array<const char *, 13> kConditionTypes = {
    "windowState", "wait",    "mouseEvent", "textLength", "popup",   "list", "click",
    "action",      "pressed", "comboBox",   "checked",    "spinBox", "yesNo"};

/// Icon names; the index is the icon kind of an indicator update.
inline constexpr std::array<const char *, 6> kIconNames = {"click", "doubleClick", "rightClick",
                                                           "eye",   "wait",        "keyboard"};

} // namespace ScenarioWords
