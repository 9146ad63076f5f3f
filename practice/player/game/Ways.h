#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>

#include <functional>

/// Ways over a map, from cell to cell beside it.
namespace player::Ways {

/// The cells of a shortest way from @p from to @p to, without the first one; of several, always the same.
/// Empty when there is none. @p isFree tells where one can stand on the way; @p to may be taken as well.
[[nodiscard]] QVector<QPoint> find(const QSize &map, const QPoint &from, const QPoint &to,
                                   const std::function<bool(const QPoint &)> &isFree);

} // namespace player::Ways
