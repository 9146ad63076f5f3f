#pragma once

#include "player/game/Problem.h"

#include <QCoreApplication>
#include <QHash>
#include <QPixmap>
#include <QSet>
#include <QVector>

#include <functional>

namespace player {

/// The drawings of a game, each made once in the size in which it is shown, and kept.
class Artwork
{
    Q_DECLARE_TR_FUNCTIONS(player::Artwork)

public:
    /// Draws tile @p tile, from 1, of the tile set with the number @p tileSet, so many pixels wide and high.
    using TileArt = std::function<QPixmap(int tile, int tileSet, int pixels)>;
    /// Loads the picture with a name of a folder, in the size that it has; null where there is none.
    using PictureArt = std::function<QPixmap(const QString &folder, const QString &name)>;

    Artwork(TileArt tiles, PictureArt pictures);

    [[nodiscard]] QPixmap tile(int tile, int tileSet, int pixels);
    /// The picture in a size of the device's pixels. One that is missing is a plain box, and a problem, once;
    /// an empty name is nothing to draw.
    [[nodiscard]] QPixmap picture(const QString &folder, const QString &name, const QSize &size,
                                  bool isMirrored = false);
    /// In the size that it has; null where there is none.
    [[nodiscard]] QPixmap source(const QString &folder, const QString &name);
    /// How large a picture that an event shows is at 100 percent, in game pixels: a drawing of 480 x 270
    /// pixels fills the screen.
    [[nodiscard]] QSize shownSize(const QString &name);

    /// Where the pictures that are drawn from now on are asked for, told with those that are missing; none
    /// for Problem().
    void setPlace(const Problem &place) { m_place = place; }

    /// Drops what was made for another size.
    void forgetSizes();

    /// What was missing since the last call.
    [[nodiscard]] QVector<Problem> takeProblems();

private:
    TileArt m_tileArt;
    PictureArt m_pictureArt;
    QHash<quint64, QPixmap> m_tiles;
    QHash<QString, QPixmap> m_sources;
    QHash<QString, QPixmap> m_pictures;
    QSet<QString> m_missing;
    QVector<Problem> m_problems;
    Problem m_place;
};

} // namespace player
