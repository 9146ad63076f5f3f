#pragma once

#include "host/Way.h"
#include "host/WindowTrail.h"

#include <functional>
#include <optional>

/// Finds the shortest way from the windows that are open to those that a step needs: breadth first over what
/// is open, each edge being one use of a control. It knows nothing but what the ways say.
class WayBack
{
public:
    using IsThere = std::function<bool(const OpenWindows &)>;

    explicit WayBack(Ways ways);

    /// The first control to use on the shortest way from @p open to where @p isThere says so; of several that
    /// are as short, the one that stands first among the ways. Of a control that does several things, the way
    /// that tells best what it is for. Nothing when no way leads there, and when it is reached already.
    [[nodiscard]] std::optional<Way> first(const OpenWindows &open, const IsThere &isThere) const;

private:
    /// One use of a control: the ways that are the same use.
    struct Use
    {
        QVector<int> ways;
        /// Which of them tells best what it is for.
        int main = 0;
    };

    /// Whether the way is one or the other with those of the use, as a double click on a row that opens
    /// another window for another row.
    [[nodiscard]] bool isAnother(const Way &way, const Use &use) const;
    [[nodiscard]] std::optional<OpenWindows> after(const Use &use, const OpenWindows &open) const;

    Ways m_ways;
    QVector<Use> m_uses;
};
