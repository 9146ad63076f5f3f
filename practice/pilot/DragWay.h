#pragma once

#include <QPoint>
#include <QString>

/// How far and in which direction a learner drags whom @p hint asks to drag, in pixels: a few cells of the
/// map where the hint says, to the lower right where it says no direction.
[[nodiscard]] QPoint dragWay(const QString &hint);
