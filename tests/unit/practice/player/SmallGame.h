#pragma once

#include "SamplePlay.h"

#include <QJsonArray>
#include <QJsonDocument>

/// A game of one small map, for tests of one thing at a time: grass of 10 x 6 cells, the hero at (2, 1), who
/// looks right at event 1, which is asked.
namespace smallGame {

inline QJsonValue json(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    Q_ASSERT(!document.isNull());
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

inline QJsonObject map(int width, int height, const QJsonArray &events)
{
    QJsonArray data;
    for (int cell = 0; cell < 3 * width * height; ++cell) {
        data.append(cell < width * height ? 1 : 0);
    }
    return {{QStringLiteral("width"), width},
            {QStringLiteral("height"), height},
            {QStringLiteral("tilesetId"), 1},
            {QStringLiteral("data"), data},
            {QStringLiteral("events"), events},
            {QStringLiteral("music"), QJsonObject{{QStringLiteral("file"), QStringLiteral("village")}}}};
}

/// An event with one page.
inline QJsonObject event(int id, int x, int y, const QJsonArray &list, int trigger = 0,
                         const QJsonObject &more = {})
{
    QJsonObject page{{QStringLiteral("conditions"), QJsonObject()},
                     {QStringLiteral("image"), QStringLiteral("child")},
                     {QStringLiteral("trigger"), trigger},
                     {QStringLiteral("list"), list}};
    for (auto it = more.begin(); it != more.end(); ++it) {
        page.insert(it.key(), it.value());
    }
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), QString::number(id)},
            {QStringLiteral("x"), x},
            {QStringLiteral("y"), y},
            {QStringLiteral("pages"), QJsonArray{page}}};
}

/// The database: two actors, things to have, a troop; map 2 is empty.
inline player::GameData::Files files(const QJsonArray &events)
{
    const auto list = [](const QByteArray &text) {
        return json("[null," + text + "]");
    };
    player::GameData::Files files;
    files.insert(
        QStringLiteral("data/Actors.json"),
        list(
            R"({"id":1,"name":"Mila","classId":1,"initialLevel":1,"maxLevel":10,"image":"mila","equips":[1,1]},
                         {"id":2,"name":"Toma","classId":1,"initialLevel":2,"maxLevel":10,"image":"toma","equips":[0,0]})"));
    files.insert(QStringLiteral("data/Classes.json"),
                 list(R"({"id":1,"name":"Hero","growth":{"hp":[40,8],"mp":[10,2]},
                          "learnings":[{"level":1,"skillId":1},{"level":3,"skillId":2}],"traits":[]})"));
    files.insert(QStringLiteral("data/Skills.json"), list(R"({"id":1,"name":"Strike","scope":1,"effects":[]},
                                             {"id":2,"name":"Heal","scope":7,"effects":[{"hp":40}]})"));
    files.insert(QStringLiteral("data/Items.json"),
                 list(R"({"id":1,"name":"Herb","price":8,"effects":[{"hp":30}]},
                                            {"id":2,"name":"Key","keyItem":true,"price":0,"effects":[]})"));
    files.insert(QStringLiteral("data/Weapons.json"),
                 list(R"({"id":1,"name":"Stick","price":20,"attack":4,"traits":[]},
                                              {"id":2,"name":"Sword","price":60,"attack":9,"traits":[]})"));
    files.insert(QStringLiteral("data/Armors.json"),
                 list(R"({"id":1,"name":"Cloak","price":12,"defense":2,"traits":[]})"));
    files.insert(
        QStringLiteral("data/Enemies.json"),
        list(R"({"id":1,"name":"Slime","image":"slime","hp":5,"attack":1,"defense":0,"exp":3,"gold":2,
                          "dropItems":[],"actions":[],"traits":[]})"));
    files.insert(QStringLiteral("data/Troops.json"),
                 list(R"({"id":1,"name":"Slime","members":[{"enemyId":1,"x":320,"y":240}],"pages":[]})"));
    files.insert(QStringLiteral("data/States.json"), list(R"({"id":1,"name":"Down","restriction":4},
                                             {"id":2,"name":"Poison","restriction":0,"traits":[]})"));
    files.insert(QStringLiteral("data/Animations.json"), list(R"({"id":1,"name":"Spark","frames":5})"));
    files.insert(QStringLiteral("data/CommonEvents.json"), list(R"({"id":1,"name":"","trigger":0,"switchId":0,
                          "list":[{"code":121,"indent":0,"parameters":[7,7,0]},{"code":0,"indent":0,"parameters":[]}]})"));
    files.insert(QStringLiteral("data/Tilesets.json"), list(R"({"id":1,"name":"Meadow","image":"meadow"})"));
    files.insert(QStringLiteral("data/MapInfos.json"),
                 list(R"({"id":1,"name":"One"},{"id":2,"name":"Two"})"));
    files.insert(QStringLiteral("data/System.json"),
                 json(R"({"partyMembers":[1],"startMapId":1,"startX":2,"startY":1,"switches":[null],
                          "variables":[null],"titleScreen":{"commands":[]}})"));
    files.insert(QStringLiteral("data/Map001.json"), map(10, 6, events));
    files.insert(QStringLiteral("data/Map002.json"), map(30, 20, {QJsonValue()}));
    return files;
}

/// Event 1 has these commands, as JSON without the brackets around them.
inline player::GameData::Files filesWith(const QByteArray &commands)
{
    const QJsonArray list = json("[" + commands + R"(,{"code":0,"indent":0,"parameters":[]}])").toArray();
    return files({QJsonValue(), event(1, 3, 1, list)});
}

inline player::GameSettings onMap()
{
    player::GameSettings settings;
    settings.start = player::StartWith::kMap;
    return settings;
}

} // namespace smallGame
