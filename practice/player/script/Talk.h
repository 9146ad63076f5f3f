#pragma once

#include <QString>
#include <QStringList>

namespace player {

/// Where a message stands, and how it looks, as commands 101 and 102 have it.
struct Message
{
    QString face;
    int background = 0;
    /// 0 top, 1 middle, 2 bottom.
    int place = 2;
    QString speaker;
    /// With their control characters.
    QStringList lines;
    /// Choices or an input follow at once: the message stays beside them and waits for no key.
    bool asksNext = false;
};

struct Choices
{
    QStringList texts;
    /// The number of the choice that is taken when cancelled; -1 not allowed, -2 a branch of its own.
    int whenCancelled = -1;
    /// -1 for none.
    int first = 0;
    /// 0 left, 1 middle, 2 right.
    int place = 2;
    int background = 0;
};

struct NumberInput
{
    int digits = 1;
    int start = 0;
};

struct ItemInput
{
    bool onlyKeyItems = false;
};

struct ScrollingText
{
    QStringList lines;
    /// 1 to 8.
    int speed = 2;
    bool cannotBeSpedUp = false;
};

/// What is answered when choices, or the choice of an item, are cancelled.
constexpr int kNothingChosen = -1;

} // namespace player
