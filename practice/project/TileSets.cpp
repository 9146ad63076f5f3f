#include "project/TileSets.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

QJsonArray entries(const DataLayer &layer)
{
    return layer.file(QStringLiteral("data/Tilesets.json")).toArray();
}

} // namespace

int TileSets::lookOf(int number, const DataLayer &layer, const StartData &start)
{
    const QString image = entries(layer).at(number)[QLatin1String("image")].toString();
    const auto isIt = [&image](const StartData::TileSet &tileSet) {
        return tileSet.image == image;
    };
    const auto found = std::find_if(start.tileSets.cbegin(), start.tileSets.cend(), isIt);
    return found != start.tileSets.cend() ? int(found - start.tileSets.cbegin()) : qMax(0, number - 1);
}

QVector<Row> TileSets::rows(const DataLayer &layer, const StartData &start)
{
    QVector<Row> rows;
    const QJsonArray all = entries(layer);
    for (int number = 1; number < all.size(); ++number) {
        if (all.at(number).isObject()) {
            rows.append({all.at(number)[QLatin1String("name")].toString(), number});
        }
    }
    if (rows.isEmpty()) {
        for (const StartData::TileSet &set : start.tileSets) {
            rows.append({set.name, int(rows.size()) + 1});
        }
    }
    return rows;
}
