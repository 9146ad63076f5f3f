#pragma once

#include <QPoint>
#include <QStringList>

#include <array>

/// The words and numbers of lessons that are not conditions.
namespace LessonWords {

/// "x" and "y" of an item that points nowhere.
constexpr int kNoPosition = -9999;

/// "jump" and "jumpNo" of an item that goes on with the next.
constexpr int kNoJump = -1;

/// From the top left corner of the bubble's window to the spot that its arrow points at, in pixels: an item
/// that points at a place in a window has that place less this as its position. Upright, the tip is on it
/// while the arrow rests and up to 16 rows above while it hops; upside down, 33 to 49 rows below.
constexpr QPoint kTip{38, 132};

/// The names of icons; the number of an icon in the link is its place here.
constexpr std::array<const char *, 6> kIcons = {"click", "doubleClick", "rightClick",
                                                "eye",   "wait",        "keyboard"};

/// The languages of a lesson, English first.
QStringList locales();

/// The number of the icon with this name in the link: 0 to 5, or 6, which shows none.
int iconKind(const QString &name);

/// The step of the sample data that an item's command asks for: "step2" for "presetData,step2". Empty for any
/// other text; no command has another form.
QString presetStep(const QString &command);

/// Whether a hint asks to press a mouse button and to let go of it elsewhere: no other field of an item
/// tells. It is so in every language when the hint has the language's word for it.
bool saysDrag(const QString &hint);

/// The number that a hint asks to type, such as "6" or "-20": the first one in it. Empty when there is none.
QString numberToType(const QString &hint);

/// How often a hint asks to click: 5 for "Click “Up” five times." 1 where it does not say. Words of its
/// language for two to ten, or figures.
int timesToClick(const QString &hint);

} // namespace LessonWords
