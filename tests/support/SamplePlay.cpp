#include "SamplePlay.h"

#include <QFile>
#include <QJsonArray>

namespace sample {

namespace {

/// A value with the texts in place of their numbers.
QJsonValue withTexts(const QJsonValue &value, const QMap<QString, QString> &texts)
{
    if (value.isString()) {
        return texts.value(value.toString(), value.toString());
    }
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            array.replace(i, withTexts(array.at(i), texts));
        }
        return array;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = withTexts(it.value(), texts);
        }
        return object;
    }
    return value;
}

} // namespace

QStringList tileNames()
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data/project.json"));
    QStringList names;
    if (!file.open(QIODevice::ReadOnly)) {
        return names;
    }
    const QJsonArray tabs =
        QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("tileTabs")).toArray();
    for (const QJsonValue &tab : tabs) {
        const QJsonArray tiles = tab.toObject().value(QLatin1String("tiles")).toArray();
        for (const QJsonValue &tile : tiles) {
            names.append(tile.toObject().value(QLatin1String("drawing")).toString());
        }
    }
    return names;
}

player::GameData::Files gameFiles(const Files &files, const QString &locale)
{
    const QMap<QString, QString> texts = locale.isEmpty() ? QMap<QString, QString>() : catalogue(locale);
    player::GameData::Files values;
    for (auto file = files.begin(); file != files.end(); ++file) {
        values.insert(QStringLiteral("data/") + file.key(), withTexts(root(file.value()), texts));
    }
    return values;
}

Play::Play(const player::GameData::Files &files, const player::GameSettings &settings)
    : m_data(player::GameReader::read(files, tileNames()))
    , m_game(player::newGame(m_data, settings))
    , m_runner(std::make_unique<player::ScriptRunner>(m_game.get(),
                                                      [this](const QString &line) { m_said.append(line); }))
{
}

QString Play::run(const QString &script)
{
    QStringList errors;
    const QVector<player::ScriptLine> lines = player::Script::read(script, &errors);
    if (!errors.isEmpty()) {
        return errors.join(QLatin1Char('\n'));
    }
    return m_runner->run(lines) ? QString() : m_said.value(m_said.size() - 1);
}

} // namespace sample
