#include "player/scene/SaveFiles.h"

#include "player/game/GameData.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace player {

namespace {

/// A saved game is some KiB; what is larger is none, and is not read.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

} // namespace

QString SaveFiles::path(int slot) const
{
    return QDir(m_folder).filePath(QStringLiteral("save%1.json").arg(slot + 1, 2, 10, QLatin1Char('0')));
}

bool SaveFiles::hasAny() const
{
    for (int slot = 0; canSave() && slot < kSlots; ++slot) {
        if (QFile::exists(path(slot))) {
            return true;
        }
    }
    return false;
}

SaveSlot SaveFiles::read(int slot, const GameData &data) const
{
    SaveSlot found;
    QFile file(path(slot));
    if (!canSave() || !file.exists()) {
        return found;
    }
    found.isEmpty = false;
    found.when = QFileInfo(file).lastModified();
    if (file.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) {
        //: %1 is a file's path.
        found.error =
            tr("This saved game cannot be read: “%1”.").arg(QDir::toNativeSeparators(file.fileName()));
        return found;
    }
    const QJsonDocument json = QJsonDocument::fromJson(file.readAll());
    if (!json.isObject()) {
        found.error = tr("This saved game is damaged and cannot be loaded.");
        return found;
    }
    found.state = GameState::fromJson(json.object(), data, &found.error, &found.warning);
    return found;
}

bool SaveFiles::write(int slot, const GameState &state, const GameData &data, QString *error) const
{
    if (!canSave()) {
        *error = tr("There is no place to save: save the project in the editor first.");
        return false;
    }
    QDir().mkpath(m_folder);
    QSaveFile file(path(slot));
    const QByteArray bytes = QJsonDocument(state.toJson(data)).toJson(QJsonDocument::Indented);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        //: %1 is the system's reason.
        *error = tr("The game could not be saved (%1). What was saved before is still there.")
                     .arg(file.errorString());
        return false;
    }
    return true;
}

} // namespace player
