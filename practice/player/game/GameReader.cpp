#include "player/game/GameReader.h"

#include "player/game/DatabaseReader.h"
#include "player/game/MapReader.h"
#include "player/game/References.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QJsonDocument>

namespace player {

namespace {

/// The same for the same values, however their files are laid out.
QString hashOf(const GameData::Files &files)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (auto file = files.begin(); file != files.end(); ++file) {
        hash.addData(file.key().toUtf8());
        hash.addData(QJsonDocument(QJsonArray{file.value()}).toJson(QJsonDocument::Compact));
    }
    return QString::fromLatin1(hash.result().toHex());
}

void checkStart(GameData *data)
{
    const auto tell = [data](const QString &text) {
        Problem problem;
        problem.file = QStringLiteral("data/System.json");
        problem.text = text;
        data->problems.append(problem);
    };
    const SystemEntry &system = data->system;
    const MapData *map = data->maps.find(system.startMap);
    if (map == nullptr) {
        tell(QCoreApplication::translate("TestPlay", "The game starts on map %1, and there is none.")
                 .arg(system.startMap));
    } else if (!map->size.isEmpty() && !map->contains(system.startCell)) {
        tell(QCoreApplication::translate("TestPlay",
                                         "The game starts at %1, %2, outside of its map; it starts at its "
                                         "edge.")
                 .arg(system.startCell.x())
                 .arg(system.startCell.y()));
    }
    if (system.party.isEmpty()) {
        tell(QCoreApplication::translate("TestPlay", "The party has nobody in it."));
    }
    for (const int actor : system.party) {
        if (data->actors.find(actor) == nullptr) {
            tell(QCoreApplication::translate("TestPlay", "Actor %1 of the party is not there.").arg(actor));
        }
    }
}

} // namespace

std::shared_ptr<const GameData> GameReader::read(const GameData::Files &files, const QStringList &tiles)
{
    auto data = std::make_shared<GameData>();
    DatabaseReader::read(files, data.get());
    MapReader::read(files, tiles, data.get());
    checkStart(data.get());
    References::check(data.get());
    data->fingerprint = hashOf(files);
    return data;
}

} // namespace player
