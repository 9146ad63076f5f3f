#include "project/DataRootsJson.h"

#include <QJsonArray>

namespace {

const QLatin1String kFiles("files");
const QLatin1String kGone("gone");

} // namespace

QJsonObject DataRootsJson::save(const DataRoots &roots)
{
    QJsonObject files;
    QJsonArray gone;
    for (auto root = roots.begin(); root != roots.end(); ++root) {
        if (root.value().isUndefined()) {
            gone.append(root.key());
        } else {
            files.insert(root.key(), root.value());
        }
    }
    return {{kFiles, files}, {kGone, gone}};
}

DataRoots DataRootsJson::load(const QJsonObject &json)
{
    DataRoots roots;
    const QJsonObject files = json.value(kFiles).toObject();
    for (auto file = files.begin(); file != files.end(); ++file) {
        roots.insert(file.key(), file.value());
    }
    const QJsonArray gone = json.value(kGone).toArray();
    for (const QJsonValue &name : gone) {
        roots.insert(name.toString(), QJsonValue(QJsonValue::Undefined));
    }
    return roots;
}
