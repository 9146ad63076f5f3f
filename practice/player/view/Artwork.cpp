#include "player/view/Artwork.h"

#include "player/scene/Frame.h"

#include <QPainter>
#include <QTransform>

#include <utility>

namespace player {

namespace {

QPixmap plainBox(const QSize &size)
{
    QPixmap box(size);
    box.fill(QColor(0x80, 0x80, 0x88, 160));
    QPainter painter(&box);
    painter.setPen(QPen(QColor(0xf0, 0xf0, 0xf0), qMax(1, size.height() / 16)));
    painter.drawRect(box.rect().adjusted(0, 0, -1, -1));
    painter.drawLine(box.rect().topLeft(), box.rect().bottomRight());
    painter.drawLine(box.rect().topRight(), box.rect().bottomLeft());
    return box;
}

} // namespace

Artwork::Artwork(TileArt tiles, PictureArt pictures)
    : m_tileArt(std::move(tiles))
    , m_pictureArt(std::move(pictures))
{
}

QPixmap Artwork::tile(int tile, int tileSet, int pixels)
{
    const quint64 key =
        (quint64(quint32(tile)) << 32U) | (quint64(quint16(tileSet)) << 16U) | quint16(pixels);
    auto kept = m_tiles.find(key);
    if (kept == m_tiles.end()) {
        kept = m_tiles.insert(key, m_tileArt(tile, tileSet, pixels));
    }
    return *kept;
}

QPixmap Artwork::source(const QString &folder, const QString &name)
{
    const QString key = folder + QLatin1Char('/') + name;
    auto kept = m_sources.find(key);
    if (kept == m_sources.end()) {
        kept = m_sources.insert(key, m_pictureArt(folder, name));
    }
    return *kept;
}

QSize Artwork::shownSize(const QString &name)
{
    constexpr QSize kScreen(Frame::kWidth, Frame::kHeight);
    constexpr int kDrawnWidth = 480;
    const QPixmap drawn = source(QStringLiteral("pictures"), name);
    return drawn.isNull() ? kScreen / 4 : drawn.size() * kScreen.width() / kDrawnWidth;
}

QPixmap Artwork::picture(const QString &folder, const QString &name, const QSize &size, bool isMirrored)
{
    if (name.isEmpty() || size.isEmpty()) {
        return {};
    }
    const QString key = QStringLiteral("%1/%2/%3x%4/%5")
                            .arg(folder, name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(int(isMirrored));
    const auto kept = m_pictures.constFind(key);
    if (kept != m_pictures.constEnd()) {
        return *kept;
    }
    const QPixmap whole = source(folder, name);
    if (whole.isNull() && !m_missing.contains(folder + QLatin1Char('/') + name)) {
        m_missing.insert(folder + QLatin1Char('/') + name);
        Problem problem = m_place;
        //: %1 is the name of a picture in the project.
        problem.text =
            tr("There is no picture “%1”: a plain box is shown. Choose another picture in its place.")
                .arg(name);
        m_problems.append(problem);
    }
    QPixmap made =
        whole.isNull() ? plainBox(size) : whole.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (isMirrored) {
        made = made.transformed(QTransform::fromScale(-1, 1));
    }
    m_pictures.insert(key, made);
    return made;
}

void Artwork::forgetSizes()
{
    m_tiles.clear();
    m_pictures.clear();
}

QVector<Problem> Artwork::takeProblems()
{
    return std::exchange(m_problems, {});
}

} // namespace player
