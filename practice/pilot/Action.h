#pragma once

#include <QPoint>
#include <QString>

/// One thing that the pilot does with its hand.
struct Action
{
    enum class Kind {
        /// With the mouse, at place.
        kClick,
        kDoubleClick,
        kRightClick,
        /// The left button goes down at place, is carried there while it is down, and comes up there.
        kPress,
        kCarry,
        kRelease,
        /// A click at place inside of the companion's button window.
        kPressButton,
        /// The pointer comes to rest at place.
        kRest,
        /// With the keyboard.
        kSelectAll,
        kType,
        kEnter,
        /// In the window that has the keyboard, wherever the step points.
        kEscape,
        /// The row of the list that has dropped down, and Enter.
        kChoose,
        /// The row that text, a hint, quotes, where a list has dropped down; nothing where none has.
        kChooseQuoted,
    };

    Kind kind = Kind::kClick;
    /// In global screen pixels; for kPressButton in pixels from the button's top left corner.
    QPoint place;
    /// The button's window id.
    quint32 window = 0;
    /// What kType types; the hint of kChooseQuoted.
    QString text;
    /// What kChoose takes, counted from 0.
    int row = 0;

    /// Whether it is done with the keyboard, and the window with the focus gets it.
    [[nodiscard]] bool isOfKeyboard() const
    {
        return kind == Kind::kSelectAll || kind == Kind::kType || kind == Kind::kEnter ||
               kind == Kind::kEscape || kind == Kind::kChoose || kind == Kind::kChooseQuoted;
    }

    /// As a message says it, such as "a click at (10, 20)".
    [[nodiscard]] QString inWords() const;

    [[nodiscard]] bool operator==(const Action &other) const
    {
        return kind == other.kind && place == other.place && window == other.window && text == other.text &&
               row == other.row;
    }
};
