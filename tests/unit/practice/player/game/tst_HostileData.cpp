#include "SmallGame.h"

#include <QTest>

#include <limits>

/// Data files with anything in any field: the game is played all the same, and says what is wrong with them.
class tst_HostileData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrongIsNamed_data();
    void whatIsWrongIsNamed();
    void entriesOfOneNameAreNamedEach();
    void anyFieldMayHoldAnything_data();
    void anyFieldMayHoldAnything();
    void massesOfEventsBesideTheGameLeaveTimeForIt();
    void aLineThatGoesWrongInManyWaysIsNamedAFewTimes();
    void whatGoesWrongAgainIsNamedOnceAndCounted();
};

namespace {

using Files = player::GameData::Files;
using Path = QVector<QString>;

/// A game in which each file has each field that is read, and which one event leads through.
Files fullGame()
{
    Files files = smallGame::filesWith(
        R"({"code":101,"indent":0,"parameters":["mila",0,0,2,"Pip"]},{"code":401,"indent":0,"parameters":["\\v[1] \\n[1] \\p[1] \\c[2]!"]},
        {"code":122,"indent":0,"parameters":[1,2,1,0,7]},{"code":126,"indent":0,"parameters":[1,0,0,2]},
        {"code":231,"indent":0,"parameters":[3,"lamp",0,0,10,20,100,100,255,0]},
        {"code":232,"indent":0,"parameters":[3,1,0,50,60,50,50,128,1,4,true]},
        {"code":223,"indent":0,"parameters":[40,-20,30,68,4,true]},{"code":225,"indent":0,"parameters":[5,5,4,true]},
        {"code":205,"indent":0,"parameters":[-1,{"list":[{"code":1},{"code":16,"parameters":[1,0]},{"code":19,"parameters":[4]},{"code":0}],
            "repeat":false,"skippable":true,"wait":true}]},
        {"code":207,"indent":0,"parameters":[-1,1,true]},{"code":208,"indent":0,"parameters":[0,3,false]},
        {"code":203,"indent":0,"parameters":[3,1,6,true]},{"code":117,"indent":0,"parameters":[1]},
        {"code":311,"indent":0,"parameters":[0,0,1,0,3,false]},{"code":315,"indent":0,"parameters":[0,0,0,0,9,false]},
        {"code":301,"indent":0,"parameters":[0,1,true,true]})");
    const auto set = [&files](const char *file, const QByteArray &text) {
        QJsonObject object = files.value(QLatin1String(file)).toObject();
        const QJsonObject more = smallGame::json(text).toObject();
        for (auto it = more.begin(); it != more.end(); ++it) {
            object.insert(it.key(), it.value());
        }
        files.insert(QLatin1String(file), object);
    };
    set("data/System.json",
        R"({"gameTitle":"Small","versionId":1,"locale":"","currencyUnit":"G","battleMusic":{"file":"battle"},
        "titleMusic":{"file":"title","volume":90,"pitch":100,"pan":0},
        "titleScreen":{"background":"hills","showTitle":true,"commands":[{"command":"newGame","text":"Go"}]},
        "testBattlers":[{"actorId":1,"level":2,"equips":[1,1]}]})");
    set("data/Map001.json", R"({"displayName":"One","showName":true,"backdrop":"meadow",
        "encounterList":[{"troopId":1,"weight":5}]})");
    QJsonObject map = files.value(QStringLiteral("data/Map001.json")).toObject();
    QJsonArray events = map.value(QLatin1String("events")).toArray();
    events.append(smallGame::event(
        2, 7, 3,
        smallGame::json(R"([{"code":230,"indent":0,"parameters":[5]},{"code":0,"indent":0}])").toArray(), 4,
        smallGame::json(R"({"conditions":{"switchId":0,"variableId":0,"variableValue":0,"selfSwitch":""},
            "moveType":3,"moveSpeed":4,"moveFrequency":2,"directionFix":false,"through":false,"stepAnime":true,
            "moveRoute":{"list":[{"code":1},{"code":15,"parameters":[2]},{"code":4},{"code":0}],"repeat":true,
            "skippable":true,"wait":false}})")
            .toObject()));
    map.insert(QStringLiteral("events"), events);
    files.insert(QStringLiteral("data/Map001.json"), map);
    files.insert(
        QStringLiteral("data/Enemies.json"),
        smallGame::json(
            R"([null,{"id":1,"name":"Slime","image":"slime","hp":9,"mp":5,"attack":3,"defense":1,"exp":30,"gold":2,
        "dropItems":[{"itemId":1,"denominator":1}],"traits":[{"attackRate":120}],
        "actions":[{"skillId":1,"rating":5,"conditionType":1,"conditionValue":1,"onlyOnce":false}]}])"));
    files.insert(QStringLiteral("data/Troops.json"),
                 smallGame::json(
                     R"([null,{"id":1,"name":"Slime","members":[{"enemyId":1,"x":320,"y":240,"hidden":false}],
        "pages":[{"conditions":{"turn":0,"enemyIndex":0,"enemyHp":90,"actorId":1,"actorHp":100,"switchId":0},"span":1,
        "list":[{"code":331,"indent":0,"parameters":[0,1,0,1,true]},{"code":336,"indent":0,"parameters":[0,0,1,-2]},
                {"code":0,"indent":0,"parameters":[]}]}]}])"));
    files.insert(QStringLiteral("data/States.json"),
                 smallGame::json(
                     R"([null,{"id":1,"name":"Down","restriction":4},{"id":2,"name":"Poison","restriction":0,
        "message1":" is ill","message2":"","message3":"","message4":"","removeAtBattleEnd":true,"autoRemovalTiming":2,
        "minTurns":1,"maxTurns":2,"traits":[{"hpEachTurn":-2}]}])"));
    files.insert(
        QStringLiteral("data/Skills.json"),
        smallGame::json(
            R"([null,{"id":1,"name":"Strike","description":"","message1":" strikes","mpCost":1,"scope":1,
        "animationId":1,"effects":[{"hp":-2},{"addState":2},{"element":1}]},{"id":2,"name":"Heal","scope":7,"effects":[{"hp":40}]}])"));
    return files;
}

QVector<Path> fields(const QJsonValue &value, const Path &path = {})
{
    QVector<Path> all;
    if (!path.isEmpty()) {
        all.append(path);
    }
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            all += fields(array.at(i), path + Path{QString::number(i)});
        }
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        all += fields(it.value(), path + Path{it.key()});
    }
    return all;
}

QJsonValue valueAt(const QJsonValue &value, const Path &path)
{
    QJsonValue found = value;
    for (const QString &key : path) {
        found = found.isArray() ? found.toArray().at(key.toInt()) : found.toObject().value(key);
    }
    return found;
}

QJsonValue with(const QJsonValue &value, const Path &path, const QJsonValue &wild)
{
    if (path.isEmpty()) {
        return wild;
    }
    const QString &key = path.constFirst();
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        array.replace(key.toInt(), with(array.at(key.toInt()), path.mid(1), wild));
        return array;
    }
    QJsonObject object = value.toObject();
    object.insert(key, with(object.value(key), path.mid(1), wild));
    return object;
}

/// What a field holds that it should not: other types, and numbers that nothing has.
QVector<QJsonValue> wildValues(const QJsonValue &usual)
{
    QVector<QJsonValue> values{std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -1};
    if (usual.isDouble()) {
        values += {1e300, QStringLiteral("7"), QJsonValue()};
    } else if (usual.isString()) {
        values += {QStringLiteral("\\n[1]\\v[999999999]\\c[").repeated(200), QJsonArray()};
    } else {
        values += {QJsonValue(), QStringLiteral("text"), QJsonObject{{QStringLiteral("x"), QJsonArray()}},
                   QJsonArray{QJsonArray{}, 3}};
    }
    return values;
}

} // namespace

void tst_HostileData::whatIsWrongIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *path, const QJsonValue &value, const char *problem) {
        QTest::newRow(qPrintable(QLatin1String(path) + QStringLiteral(": ") + QString::fromUtf8(problem)))
            << QString::fromLatin1(path) << value << QString::fromUtf8(problem);
    };
    add("Map001/events/2/x", -1, "data/Map001.json, event 2: The event stands at -1, 3, outside of its map.");
    add("Map001/events/2/y", 2147483647, "data/Map001.json, event 2: The event stands at 7, 2147483647");
    add("Map001/events/2/pages", QJsonArray(), "data/Map001.json, event 2: The event has no pages");
    add("Map001/events/2/pages/0/list", QStringLiteral("x"),
        "event 2, page 1: The page has no list of commands");
    add("Map001/width", 0, "data/Map001.json: The map has 0 x 6 cells");
    add("Map001/height", 10000, "data/Map001.json: The map has 10 x 10000 cells");
    add("Map001/data", QJsonArray(),
        "data/Map001.json: The map has 0 numbers of tiles; 10 x 6 cells in 3 layers need 180.");
    add("Map001/data", QJsonArray({1, 1, 1}), "data/Map001.json: The map has 3 numbers of tiles");
    add("Map001/data", QStringLiteral("x"), "data/Map001.json: The map has 0 numbers of tiles");
    add("Map001/data/13", 777,
        "data/Map001.json: The map has tiles that are not there: 1 in all, the first one at 3, 1 in layer "
        "1.");
    add("Map001/data/129", -1,
        "data/Map001.json: The map has tiles that are not there: 1 in all, the first one at 9, 0 in layer "
        "3.");
    add("Map001/data/0", QStringLiteral("1"),
        "data/Map001.json: The map has tiles that are not there: 1 in all");
    add("Map001/data/0", 1.5, "data/Map001.json: The map has tiles that are not there: 1 in all");
    add("Map001/tilesetId", 77, "data/Map001.json: The map “One” has tile set 77");
    add("Map001/events/2/pages/0/trigger", 9,
        "data/Map001.json, event 2, page 1: The page begins by trigger 9, which there is not");
    add("Map001/events/2/pages/0/moveType", -1,
        "data/Map001.json, event 2, page 1: The page moves in way -1, which there is not");
    add("Map001/events/2/pages/0/moveRoute/list/1/code", 99,
        "data/Map001.json, event 2, page 1: There is no movement 99");
    add("Map001/events/2/pages/0/moveRoute/list/1", QJsonObject{{QStringLiteral("code"), 17}},
        "data/Map001.json, event 2, page 1: There is no switch or variable 0;");
    add("Map001/events/1/pages/0/list/9/parameters/1", 77,
        "data/Map001.json, event 1, page 1, line 10: There is no animation 77");
    add("Skills/1/animationId", 77, "data/Skills.json: The skill “Strike” shows animation 77");
    add("Animations/1/frames", 0, "data/Animations.json: The animation “Spark” has 0 pictures");
    add("Animations/1/frames", 601, "data/Animations.json: The animation “Spark” has 601 pictures");
    add("System/partyMembers", QJsonArray{77}, "data/System.json: Actor 77 of the party is not there.");
    add("System/partyMembers", QStringLiteral("all"), "data/System.json: The party has nobody in it.");
    add("System/startMapId", 9, "The game starts on map 9, and there is none.");
    add("System/startX", -3, "The game starts at -3, 1, outside of its map");
    add("Actors/1/classId", 77, "data/Actors.json: The actor “Mila” has class 77, which is not there");
    add("Actors/1/equips/0", 77, "data/Actors.json: The actor “Mila” begins with weapon 77");
    add("Actors/1/equips/1", -2, "data/Actors.json: The actor “Mila” begins with armor -2");
    add("Classes/1/learnings/0/skillId", 77, "data/Classes.json: The class “Hero” learns skill 77");
    add("Skills/1/effects/1/addState", 77, "data/Skills.json: An effect of “Strike” names state 77");
    add("Items/1/effects/0", QJsonObject{{QStringLiteral("commonEvent"), 77}},
        "data/Items.json: An effect of “Herb” names common event 77");
    add("Items/1/effects/0", QJsonObject{{QStringLiteral("learnSkill"), 77}},
        "data/Items.json: An effect of “Herb” names skill 77");
    add("Enemies/1/dropItems/0/itemId", 77, "data/Enemies.json: The enemy “Slime” drops item 77");
    add("Enemies/1/actions/0/skillId", 77,
        "The actions of “Slime” name skills that the database does not have");
    const auto only = [](const char *name, int value) {
        return QJsonObject{{QLatin1String(name), value}};
    };
    add("Enemies/1/actions/0/skillId", 77, "data/Enemies.json: An action of the enemy “Slime” uses skill 77");
    add("Enemies/1/traits/0", only("addSkill", 1),
        "data/Enemies.json: The trait “addSkill” makes no difference to the enemy “Slime”");
    add("Enemies/1/traits/0", only("sealSkill", 77), "data/Enemies.json: A trait of “Slime” names skill 77");
    add("States/2/traits/0", only("resistState", 77), "data/States.json: A trait of “Poison” names state 77");
    add("Classes/1/traits", QJsonArray{only("luck", 5)},
        "data/Classes.json: “Hero” has the trait “luck”, which there is not.");
    add("Weapons/2/traits", QJsonArray{only("attackState", 77)},
        "data/Weapons.json: A trait of “Sword” names state 77");
    add("Armors/1/traits", QJsonArray{only("addSkill", 77)},
        "data/Armors.json: A trait of “Cloak” names skill 77");
    add("Skills/1/effects/0", only("luck", 5),
        "data/Skills.json: “Strike” has the effect “luck”, which there is not.");
    add("Skills/1/scope", 5, "data/Skills.json: The skill “Strike” has the target 5, which there is not");
    add("System/testBattlers/0/actorId", 77,
        "data/System.json: Actor 77 of the party for trial battles is not there.");
    add("System/titleScreen/commands/0/command", QStringLiteral("dance"),
        "data/System.json: The title screen has the command “dance”, which there is not.");
    add("System/locale", QStringLiteral("ja_JP"), "data/System.json: The game's language is set to ja_JP.");
    add("Troops/1/members/0/enemyId", 77, "The troop “Slime” has a member that is enemy 77");
    add("Troops/1/members", QJsonArray(), "The troop “Slime” has no members");
    add("Troops/1/pages/0/list/1/parameters/2", 77,
        "data/Troops.json, event 1, page 1, line 2: Nobody there can do this");
    add("Map001/encounterList/0/troopId", 77, "data/Map001.json: There is no troop 77; nobody fights.");
    add("Map001/events/1/pages/0/list/15/parameters/1", 77, "event 1, page 1, line 16: There is no troop 77");
    add("Animations", QJsonObject(), "data/Animations.json: The file is no list of entries");
    add("States", QJsonValue(QJsonValue::Undefined), "data/States.json: The file is missing");
}

void tst_HostileData::whatIsWrongIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, problem);
    const QStringList keys = path.split(QLatin1Char('/'));
    const QString file = QStringLiteral("data/%1.json").arg(keys.constFirst());
    Files files = fullGame();
    const Path inside = keys.mid(1).toVector();
    // The place is there in the first place.
    QVERIFY2(!valueAt(files.value(file), inside).isUndefined(), qPrintable(path));
    if (value.isUndefined()) {
        files.remove(file);
    } else {
        files.insert(file, with(files.value(file), inside, value));
    }
    sample::Play usual(fullGame(), smallGame::onMap());
    sample::Play wild(files, smallGame::onMap());
    const QByteArray steps = "press left 2\npress act 2\nwait 20\nencounters on\n" +
                             QByteArray("press down 9\npress up 9\npress act 3\n").repeated(8);
    const QString script =
        QStringLiteral("press right\npress act\nwait 60\npress act 120\n") + QString::fromLatin1(steps);
    QCOMPARE(usual.run(script), QString());
    QCOMPARE(wild.run(script), QString());
    const auto told = [](sample::Play &play) {
        QStringList texts;
        for (const player::Problem &one : play.hand().problems()) {
            texts.append(one.toString());
        }
        return texts.join(QLatin1Char('\n'));
    };
    QVERIFY2(told(wild).contains(problem), qPrintable(told(wild)));
    QVERIFY2(!told(usual).contains(problem), qPrintable(told(usual)));
}

void tst_HostileData::entriesOfOneNameAreNamedEach()
{
    Files files = fullGame();
    const QString file = QStringLiteral("data/Skills.json");
    QJsonObject skill = files.value(file).toArray().at(1).toObject();
    skill.insert(QStringLiteral("animationId"), 77);
    QJsonArray skills{QJsonValue()};
    for (const int id : {1, 2}) {
        skill.insert(QStringLiteral("id"), id);
        skills.append(skill);
    }
    files.insert(file, skills);
    sample::Play play(files, smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("wait 1")), QString());
    QVector<int> named;
    for (const player::Problem &problem : play.hand().problems()) {
        if (problem.text.contains(QStringLiteral("animation 77"))) {
            named.append(problem.entry);
        }
    }
    QCOMPARE(named, (QVector<int>{1, 2}));
}

void tst_HostileData::anyFieldMayHoldAnything_data()
{
    QTest::addColumn<QString>("file");
    const Files files = fullGame();
    for (auto file = files.begin(); file != files.end(); ++file) {
        QTest::newRow(qPrintable(file.key())) << file.key();
    }
}

void tst_HostileData::anyFieldMayHoldAnything()
{
    QFETCH(QString, file);
    const Files files = fullGame();
    const QJsonValue whole = files.value(file);
    int played = 0;
    const QVector<Path> all = fields(whole);
    for (const Path &path : all) {
        // What one of the cells of a map holds, any may.
        if (path.size() == 2 && path.constFirst() == QLatin1String("data") && path.constLast().toInt() > 1) {
            continue;
        }
        const QVector<QJsonValue> values = wildValues(valueAt(whole, path));
        for (const QJsonValue &value : values) {
            Files wild = files;
            wild.insert(file, with(whole, path, value));
            sample::Play play(wild, smallGame::onMap());
            QCOMPARE(play.run(QStringLiteral("press right\npress act\nwait 60\npress act 60\npress "
                                             "menu\npress act 2\npress cancel 3")),
                     QString());
            const QString place = QStringList(path.toList()).join(QLatin1Char('/'));
            for (const player::Problem &problem : play.hand().problems()) {
                QVERIFY2(!problem.text.isEmpty() && !problem.file.isEmpty(), qPrintable(place));
            }
            ++played;
        }
    }
    QVERIFY(played > 5);
}

void tst_HostileData::massesOfEventsBesideTheGameLeaveTimeForIt()
{
    constexpr int kEvents = 3000;
    constexpr int kSecondsOfGame = 2;
    const QJsonArray endless = smallGame::json(R"([{"code":112,"indent":0,"parameters":[]},
        {"code":122,"indent":1,"parameters":[1,1,1,0,1]},{"code":0,"indent":1,"parameters":[]},
        {"code":413,"indent":0,"parameters":[]},{"code":0,"indent":0,"parameters":[]}])")
                                   .toArray();
    QJsonArray events{QJsonValue()};
    for (int id = 1; id <= kEvents; ++id) {
        events.append(smallGame::event(id, 5, 5, endless, 4));
    }
    sample::Play play(smallGame::files(events), smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("press down 4\nwait %1").arg(kSecondsOfGame * 60)), QString());
    // All of them got on, and the hero walked meanwhile.
    QVERIFY(play.hand().state().variable(1) > kEvents);
    QVERIFY(play.hand().state().hero.cell.y() > 1);
}

void tst_HostileData::aLineThatGoesWrongInManyWaysIsNamedAFewTimes()
{
    sample::Play play(smallGame::filesWith(R"({"code":112,"indent":0,"parameters":[]},
        {"code":122,"indent":1,"parameters":[1,1,1,0,1000]},{"code":311,"indent":1,"parameters":[1,1,0,0,1,false]},
        {"code":0,"indent":1,"parameters":[]},{"code":413,"indent":0,"parameters":[]})"),
                      smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nwait 120")), QString());
    QVERIFY(play.hand().state().variable(1) > 100000);
    int told = 0;
    for (const player::Problem &problem : play.hand().problems()) {
        told += problem.line == 3 ? 1 : 0;
    }
    QCOMPARE(told, 5);
}

void tst_HostileData::whatGoesWrongAgainIsNamedOnceAndCounted()
{
    sample::Play play(smallGame::filesWith(R"({"code":311,"indent":0,"parameters":[0,77,0,0,1,false]},
        {"code":122,"indent":0,"parameters":[1,1,1,0,1]})"),
                      smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nwait 30\nask 3 1\nwait 30\nask 3 1\nwait 30")), QString());
    QCOMPARE(play.hand().state().variable(1), 3);
    QCOMPARE(play.hand().problems().size(), 1);
    QCOMPARE(play.hand().problems().constFirst().line, 1);
    QCOMPARE(play.hand().problems().constFirst().times, 3);
}

QTEST_GUILESS_MAIN(tst_HostileData)
#include "tst_HostileData.moc"
