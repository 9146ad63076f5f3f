#include "TutorialEditor/FreeNumbers.h"

#include <algorithm>
#include <utility>

FreeNumbers::FreeNumbers(QList<int> used, int start)
    : m_used(std::move(used))
    , m_start(start)
{
    std::sort(m_used.begin(), m_used.end());
    m_used.erase(m_used.begin(), std::lower_bound(m_used.begin(), m_used.end(), start));
}

int FreeNumbers::take()
{
    // A number that is handed out stands in sorted order right where the walk stopped, so the walk never has
    // to go back.
    while (m_next < m_used.size() && m_used.at(m_next) <= m_passed + m_start) {
        m_last = m_used.at(m_next);
        ++m_next;
        ++m_passed;
    }
    if (m_next < m_used.size()) {
        m_last = m_passed + m_start;
    } else {
        m_last = m_passed == 0 ? m_start : m_last + 1;
    }
    ++m_passed;
    return m_last;
}
