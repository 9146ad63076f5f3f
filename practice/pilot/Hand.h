#pragma once

struct Action;

/// What the pilot acts with.
class Hand
{
public:
    Hand() = default;
    virtual ~Hand() = default;

    Hand(const Hand &) = delete;
    Hand &operator=(const Hand &) = delete;
    Hand(Hand &&) = delete;
    Hand &operator=(Hand &&) = delete;

    enum class Result {
        kDone,
        /// It came to nothing, or to something else than was meant: the window was gone, or two clicks were
        /// too far apart to be a double click. To be planned again.
        kMissed,
        /// It can never be done: the keyboard has no key for a character.
        kImpossible,
    };

    [[nodiscard]] virtual Result perform(const Action &action) = 0;
};
