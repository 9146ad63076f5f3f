#pragma once

#include <QLatin1String>

/// The vocabulary of the link: field 0 of a command, and the sub-commands in field 1.
namespace CommandWords {

/// A literal with its length, which clang does not count in a constant expression.
template<int Size>
constexpr QLatin1String word(const char (&literal)[Size])
{
    return QLatin1String(literal, Size - 1);
}

// From the host editor, in the order in which they are compared.
inline constexpr QLatin1String kStart = word("start");
inline constexpr QLatin1String kStop = word("stop");
inline constexpr QLatin1String kContents = word("contents");
inline constexpr QLatin1String kTutorialList = word("tutorialList");
inline constexpr QLatin1String kIndicator = word("indicator");
inline constexpr QLatin1String kState = word("state");
inline constexpr QLatin1String kLog = word("log");
inline constexpr QLatin1String kWindowStack = word("windowStack");
inline constexpr QLatin1String kWindowPosition = word("windowPosition");
inline constexpr QLatin1String kControlPosition = word("controlPosition");
inline constexpr QLatin1String kApplicationWindowSize = word("applicationWindowSize");
inline constexpr QLatin1String kTutorial = word("tutorial");
inline constexpr QLatin1String kFromServer = word("fromServer");
inline constexpr QLatin1String kRequestPresetData = word("requestPresetData");
inline constexpr QLatin1String kShowTooltip = word("showTooltip");
inline constexpr QLatin1String kHideTooltip = word("hideTooltip");
/// Ends a playback without a word to the dispatch; whatever came with it is dropped.
inline constexpr QLatin1String kBye = word("bye");

// Sub-commands of the host editor.
inline constexpr QLatin1String kUpdate = word("update");
inline constexpr QLatin1String kUpdateXy = word("updateXy");
inline constexpr QLatin1String kShow = word("show");
inline constexpr QLatin1String kHide = word("hide");
inline constexpr QLatin1String kPush = word("push");
inline constexpr QLatin1String kPop = word("pop");

// To the host editor, beside "start", "tutorialList" and "indicator".
inline constexpr QLatin1String kAlive = word("alive");
inline constexpr QLatin1String kFeedbackPresetData = word("feedbackPresetData");
/// The learner's answers, by the button that was clicked.
inline constexpr QLatin1String kNext = word("next");
inline constexpr QLatin1String kYes = word("yes");
inline constexpr QLatin1String kNo = word("no");
inline constexpr QLatin1String kTutorialReady = word("tutorialReady");
inline constexpr QLatin1String kUpdateXyWindowKey = word("updateXYWindowKey");

} // namespace CommandWords
