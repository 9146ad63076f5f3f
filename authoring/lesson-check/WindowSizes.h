#pragma once

#include "lesson-check/Finding.h"

#include <QHash>
#include <QSize>

/// The windows that a lesson may point into, from the practice editor's descriptions, and their sizes in
/// pixels.
class WindowSizes
{
public:
    WindowSizes() = default;

    /// Reads every description in the folder @p path. What is wrong with one is appended to @p findings,
    /// under the name of the folder @p shownPath.
    WindowSizes(const QString &path, const QString &shownPath, Findings &findings);

    [[nodiscard]] bool isKnown(const QString &windowKey) const { return m_sizes.contains(windowKey); }

    /// Size of the window's contents; empty for a window that is not known.
    [[nodiscard]] QSize size(const QString &windowKey) const { return m_sizes.value(windowKey); }

private:
    QHash<QString, QSize> m_sizes;
};
