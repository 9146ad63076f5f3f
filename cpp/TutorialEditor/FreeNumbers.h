#pragma once

#include <QList>

/// Hands out free numbers one after another: what nextFreeNumber gives when each result joins the used
/// numbers before the next search. The whole row of searches costs one sort and one walk.
class FreeNumbers
{
public:
    FreeNumbers(QList<int> used, int start);

    /// The next free number, which is used from now on.
    int take();

private:
    QList<int> m_used; // ascending, none below m_start
    int m_start;
    int m_next = 0;   // first entry of m_used that the walk has not passed
    int m_passed = 0; // used numbers that the walk has passed, the handed out ones among them
    int m_last = 0;   // the last of these
};
