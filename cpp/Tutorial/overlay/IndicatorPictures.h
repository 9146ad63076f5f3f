#pragma once

#include <QPixmap>

#include <array>

/// The pictures that the bubble's window draws. One that cannot be loaded is null, with a width and height of
/// 0.
struct IndicatorPictures
{
    QPixmap arrow;
    std::array<QPixmap, 6> icons; ///< in the order of their kinds

    /// The program's own. Needs a QGuiApplication.
    [[nodiscard]] static IndicatorPictures load();

    /// The icon of this kind, or null for a kind that has none.
    [[nodiscard]] const QPixmap *icon(int kind) const;
};
