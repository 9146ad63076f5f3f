#include "TestPlayRun.h"

#include "PracticeTranslator.h"
#include "player/game/GameReader.h"
#include "player/run/ScriptRunner.h"
#include "player/scene/NewGame.h"
#include "project/ProjectFolder.h"
#include "project/StartData.h"
#include "window/TileDrawing.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>
#include <optional>

// Outside of any namespace, as the macro needs it: the files are compiled into a static library.
static void initDescriptionsOfTestPlay()
{
    Q_INIT_RESOURCE(descriptions);
}

namespace {

constexpr int kAsExpected = 0;
constexpr int kOtherwise = 1;
constexpr int kUnreadable = 2;

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toUtf8().constData());
}

int complain(const QString &text)
{
    std::fprintf(stderr, "PracticeEditor: %s\n", text.toUtf8().constData());
    return kUnreadable;
}

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

QStringList tileNames(const QString &locale, QStringList *errors)
{
    initDescriptionsOfTestPlay();
    const StartData start =
        StartData::read(QStringLiteral(":/descriptions/data"), tileDrawings(), locale, errors);
    QStringList names;
    for (const StartData::Tile &tile : start.tiles) {
        names.append(tile.drawing);
    }
    return names;
}

} // namespace

void TestPlayOptions::addTo(QCommandLineParser *parser) const
{
    parser->addOptions({testPlay, script});
}

int TestPlayOptions::run(const QCommandLineParser &parser, const QString &locale) const
{
    if (!parser.isSet(script)) {
        return complain(QStringLiteral("--test-play needs a script: add --script FILE"));
    }
    QFile file(parser.value(script));
    if (!file.open(QIODevice::ReadOnly)) {
        return complain(QStringLiteral("%1 cannot be read: %2").arg(file.fileName(), file.errorString()));
    }
    QStringList errors;
    const QVector<player::ScriptLine> lines =
        player::Script::read(QString::fromUtf8(file.readAll()), &errors);
    const QStringList tiles = tileNames(locale, &errors);
    if (!errors.isEmpty()) {
        return complain(errors.join(QLatin1Char('\n')));
    }
    const PracticeTranslator translator(locale);
    QString error;
    const auto files = filesOf(parser.value(testPlay), &error);
    if (!files) {
        return complain(error);
    }
    // What a script saves is nobody's.
    const QTemporaryDir saves;
    player::GameSettings settings;
    settings.saveFolder = saves.path();
    const std::unique_ptr<player::Game> game =
        player::newGame(player::GameReader::read(*files, tiles), settings);
    player::ScriptRunner runner(game.get(), &say);
    const bool isAsExpected = runner.run(lines);
    for (const player::Problem &problem : runner.hand().problems()) {
        say(QStringLiteral("problem: ") + problem.toString());
    }
    return isAsExpected ? kAsExpected : kOtherwise;
}
