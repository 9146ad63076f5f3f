#pragma once

#include <QLatin1String>

/// The vocabulary of the link: field 0 of a command, and the sub-commands in field 1.
namespace CommandWords {

// From the host editor, in the order in which they are compared.
inline constexpr QLatin1String kStart("start");
inline constexpr QLatin1String kStop("stop");
inline constexpr QLatin1String kContents("contents");
inline constexpr QLatin1String kTutorialList("tutorialList");
inline constexpr QLatin1String kIndicator("indicator");
inline constexpr QLatin1String kState("state");
inline constexpr QLatin1String kLog("log");
inline constexpr QLatin1String kWindowStack("windowStack");
inline constexpr QLatin1String kWindowPosition("windowPosition");
inline constexpr QLatin1String kControlPosition("controlPosition");
inline constexpr QLatin1String kApplicationWindowSize("applicationWindowSize");
inline constexpr QLatin1String kTutorial("tutorial");
inline constexpr QLatin1String kFromServer("fromServer");
inline constexpr QLatin1String kRequestPresetData("requestPresetData");
inline constexpr QLatin1String kShowTooltip("showTooltip");
inline constexpr QLatin1String kHideTooltip("hideTooltip");
/// Ends a playback without a word to the dispatch; whatever came with it is dropped.
inline constexpr QLatin1String kBye("bye");

// Sub-commands of the host editor.
inline constexpr QLatin1String kUpdate("update");
inline constexpr QLatin1String kUpdateXy("updateXy");
inline constexpr QLatin1String kShow("show");
inline constexpr QLatin1String kHide("hide");
inline constexpr QLatin1String kPush("push");
inline constexpr QLatin1String kPop("pop");

// To the host editor, beside "start", "tutorialList" and "indicator".
inline constexpr QLatin1String kAlive("alive");
inline constexpr QLatin1String kTutorialReady("tutorialReady");
inline constexpr QLatin1String kUpdateXyWindowKey("updateXYWindowKey");

} // namespace CommandWords
