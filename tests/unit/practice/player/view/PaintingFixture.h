#pragma once

#include "player/view/FramePainter.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// Tile 1 is green, 2 blue, others yellow; of the pictures there are "red" and "white" of every kind.
inline player::Artwork plainArtwork()
{
    const auto plain = [](const QColor &colour, const QSize &size) {
        QPixmap pixmap(size);
        pixmap.fill(colour);
        return pixmap;
    };
    return {[plain](int tile, int /*tileSet*/, int pixels) {
                return plain(tile == 1 ? Qt::green : tile == 2 ? Qt::blue : Qt::yellow, {pixels, pixels});
            },
            [plain](const QString &folder, const QString &name) {
                const bool isThere = folder != str("facing") && (name == str("red") || name == str("white"));
                return isThere ? plain(QColor(name), {64, 64}) : QPixmap();
            }};
}

/// A map of 40 x 30 cells of tile 1, with tile 2 on the second layer at (0, 0).
inline player::GameData plainData()
{
    player::MapData map;
    map.id = 1;
    map.name = str("Meadow");
    map.size = QSize(40, 30);
    map.tiles.fill(0, map.size.width() * map.size.height() * player::MapData::kLayers);
    std::fill(map.tiles.begin(), map.tiles.begin() + map.size.width() * map.size.height(), 1);
    map.tiles[map.size.width() * map.size.height()] = 2;
    player::GameData data;
    data.maps.insert(map);
    player::AnimationEntry animation;
    animation.id = 1;
    animation.frames = 4;
    data.animations.insert(animation);
    return data;
}

/// Frames drawn on a picture of a size in pixels.
class Painting
{
public:
    explicit Painting(const QSize &size)
        : m_image(size, QImage::Format_RGB32)
    {
    }

    const QImage &draw(const player::Frame &frame)
    {
        m_image.fill(Qt::magenta);
        QPainter painter(&m_image);
        m_painter.paint(&painter, frame, m_data, m_image.size());
        return m_image;
    }
    [[nodiscard]] QColor at(int x, int y) const { return m_image.pixelColor(x, y); }
    /// How many pixels have this colour.
    [[nodiscard]] int count(const QColor &colour) const
    {
        int found = 0;
        for (int y = 0; y < m_image.height(); ++y) {
            for (int x = 0; x < m_image.width(); ++x) {
                found += m_image.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return found;
    }
    player::GameData &data() { return m_data; }
    player::Artwork &artwork() { return m_artwork; }

private:
    QImage m_image;
    player::GameData m_data = plainData();
    player::Artwork m_artwork = plainArtwork();
    player::FramePainter m_painter{&m_artwork};
};
