#include "ScriptedPlay.h"

#include "player/game/GameReader.h"
#include "player/run/ScriptRunner.h"
#include "player/scene/NewGame.h"
#include "project/ProjectFolder.h"
#include "project/StartData.h"
#include "window/TileDrawing.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <memory>
#include <optional>

// Outside of any namespace, as the macro needs it: the files are compiled into a static library.
static void initDescriptionsOfScriptedPlay()
{
    Q_INIT_RESOURCE(descriptions);
}

namespace {

/// The project's files; nothing, with a text for the person, when one is no JSON.
std::optional<player::GameData::Files> filesOf(const QString &folder, QString *error)
{
    const auto texts = ProjectFolder::read(folder, error);
    if (!texts) {
        return std::nullopt;
    }
    player::GameData::Files files;
    for (auto text = texts->begin(); text != texts->end(); ++text) {
        QJsonParseError problem;
        const QJsonDocument json = QJsonDocument::fromJson(text.value(), &problem);
        if (json.isNull()) {
            *error = QStringLiteral("%1 in %2 is no JSON: %3, at byte %4")
                         .arg(text.key(), folder, problem.errorString())
                         .arg(problem.offset);
            return std::nullopt;
        }
        files.insert(text.key(), json.isArray() ? QJsonValue(json.array()) : QJsonValue(json.object()));
    }
    return files;
}

/// The names of the tiles' drawings, which are the same in every language.
QStringList tileNames(QStringList *errors)
{
    initDescriptionsOfScriptedPlay();
    const StartData start = StartData::read(QStringLiteral(":/descriptions/data"), tileDrawings(),
                                            QStringLiteral("en_US"), errors);
    QStringList names;
    for (const StartData::Tile &tile : start.tiles) {
        names.append(tile.drawing);
    }
    return names;
}

QVector<player::ScriptLine> linesOf(const QString &script, QStringList *errors)
{
    QFile file(script);
    if (!file.open(QIODevice::ReadOnly)) {
        errors->append(QStringLiteral("%1 cannot be read: %2").arg(script, file.errorString()));
        return {};
    }
    const QVector<player::ScriptLine> lines = player::Script::read(QString::fromUtf8(file.readAll()), errors);
    *errors += player::ScriptRunner::unknown(lines);
    return lines;
}

} // namespace

ScriptedPlay ScriptedPlay::run(const QString &folder, const QString &script, const Say &say)
{
    QStringList errors;
    const QVector<player::ScriptLine> lines = linesOf(script, &errors);
    const QStringList tiles = tileNames(&errors);
    if (!errors.isEmpty()) {
        return {End::kUnreadable, errors.join(QLatin1Char('\n'))};
    }
    QString error;
    const auto files = filesOf(folder, &error);
    if (!files) {
        return {End::kUnreadable, error};
    }
    // What a script saves is nobody's.
    const QTemporaryDir saves;
    player::GameSettings settings;
    settings.saveFolder = saves.path();
    const std::unique_ptr<player::Game> game =
        player::newGame(player::GameReader::read(*files, tiles), settings);
    QString last;
    player::ScriptRunner runner(game.get(), [&last, &say](const QString &line) {
        last = line;
        if (say) {
            say(line);
        }
    });
    const bool isAsExpected = runner.run(lines);
    if (say) {
        for (const player::Problem &problem : runner.hand().problems()) {
            say(QStringLiteral("problem: ") + problem.toString());
        }
    }
    return isAsExpected ? ScriptedPlay() : ScriptedPlay{End::kOtherwise, last};
}
