#include "SmallGame.h"

#include <QTest>

/// The hero and the events on a map.
class tst_MapScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHeroWalksByKeysAndIsBlocked();
    void theHeroFindsAWayToAClickedCell();
    void whoWalksIsFollowedWhereClicked();
    void whoStandsBehindACounterIsAskedAcrossIt_data();
    void whoStandsBehindACounterIsAskedAcrossIt();
    void aTouchBeginsAnEvent();
    void anEventThatComesMeetsTheHero_data();
    void anEventThatComesMeetsTheHero();
    void aPatrolWalksItsRoute();
    void aWandererStaysOnTheFloor();
    void thePageFollowsTheConditions_data();
    void thePageFollowsTheConditions();
    void theViewFollowsAndStopsAtTheEdge();
    void aRunRepeatsFrameByFrame();
    void anEncounterBeginsABattle();
    void theTimerIsShown();
};

namespace {

QJsonArray list(const QByteArray &commands)
{
    return smallGame::json("[" + commands + R"(,{"code":0,"indent":0,"parameters":[]}])").toArray();
}

const QByteArray kSwitch1 = R"({"code":121,"indent":0,"parameters":[1,1,0]})";
const QByteArray kNothing = R"({"code":0,"indent":0,"parameters":[]})";

sample::Play game(const QJsonArray &events)
{
    return sample::Play(smallGame::files(events), smallGame::onMap());
}

QPointF placeOf(sample::Play &play, int event)
{
    for (const player::Sprite &sprite : play.hand().frame().sprites) {
        if (sprite.event == event) {
            return sprite.at;
        }
    }
    return {-1, -1};
}

} // namespace

void tst_MapScene::theHeroWalksByKeysAndIsBlocked()
{
    auto play = game({QJsonValue(), smallGame::event(1, 3, 1, list(kNothing))});
    // A step takes 16 ticks; the event is in the way, and the edge of the map.
    QCOMPARE(
        play.run(QStringLiteral("press right\nwait 20\nexpect at 2 1\npress up\nwait 20\nexpect at 2 0\n"
                                "press up\nwait 20\nexpect at 2 0\npress right\nwait 20\nexpect at 3 0")),
        QString());
    QCOMPARE(play.hand().state().hero.direction, int(player::kRight));
}

void tst_MapScene::theHeroFindsAWayToAClickedCell()
{
    QJsonArray events{QJsonValue()};
    for (int y = 0; y < 5; ++y) {
        events.append(smallGame::event(y + 1, 4, y, list(kNothing)));
    }
    auto play = game(events);
    // Around the wall of events, by its open end.
    QCOMPARE(play.run(QStringLiteral("walk to 7 0\nexpect at 7 0")), QString());
}

void tst_MapScene::whoWalksIsFollowedWhereClicked()
{
    const QJsonValue route = smallGame::json(
        R"({"list":[{"code":1},{"code":1},{"code":1},{"code":4},{"code":4},{"code":4},{"code":0}],"repeat":true})");
    auto play = game({QJsonValue(), smallGame::event(1, 7, 1, list(kSwitch1), 0,
                                                     {{QStringLiteral("moveType"), 3},
                                                      {QStringLiteral("moveFrequency"), 5},
                                                      {QStringLiteral("moveRoute"), route}})});
    player::Input input;
    input.cell = QPoint(7, 1);
    play.hand().tick(input);
    QCOMPARE(play.run(QStringLiteral("wait 400\nexpect switch 1 on")), QString());
    // The keys take over.
    auto other = game({QJsonValue(), smallGame::event(1, 7, 1, list(kSwitch1))});
    other.hand().tick(input);
    player::Input down;
    down.held = {player::GameKey::kDown};
    for (int tick = 0; tick < 20; ++tick) {
        other.hand().tick(down);
    }
    QCOMPARE(other.run(QStringLiteral("wait 400\nexpect switch 1 off")), QString());
}

void tst_MapScene::whoStandsBehindACounterIsAskedAcrossIt_data()
{
    QTest::addColumn<int>("tile");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("a fence") << 21 << true;
    QTest::newRow("a wall") << 17 << false;
    QTest::newRow("nothing") << 0 << false;
}

void tst_MapScene::whoStandsBehindACounterIsAskedAcrossIt()
{
    QFETCH(int, tile);
    QFETCH(bool, isAsked);
    player::GameData::Files files =
        smallGame::files({QJsonValue(), smallGame::event(1, 4, 1, list(kSwitch1))});
    const QString name = QStringLiteral("data/Map001.json");
    QJsonObject map = files.value(name).toObject();
    QJsonArray data = map.value(QStringLiteral("data")).toArray();
    data[10 * 6 + 10 + 3] = tile; // in the second layer, at (3, 1)
    map.insert(QStringLiteral("data"), data);
    files.insert(name, map);
    sample::Play play(files, smallGame::onMap());
    // Looks there without going there.
    QCOMPARE(
        play.run(QStringLiteral("press down\nwait 20\npress up\nwait 20\n%1act\nwait 5\nexpect switch 1 %2")
                     .arg(tile != 0 ? QStringLiteral("press right\nwait 20\n") : QString(),
                          isAsked ? QStringLiteral("on") : QStringLiteral("off"))),
        QString());
    QCOMPARE(play.hand().state().hero.cell, QPoint(2, 1));
}

void tst_MapScene::aTouchBeginsAnEvent()
{
    auto play = game({QJsonValue(), smallGame::event(1, 3, 1, list(kSwitch1), 1)});
    QCOMPARE(play.run(QStringLiteral("press right\nwait 30\nexpect at 3 1\nexpect switch 1 on")), QString());
}

void tst_MapScene::anEventThatComesMeetsTheHero_data()
{
    QTest::addColumn<bool>("isThrough");
    QTest::newRow("one that is stopped") << false;
    QTest::newRow("one that walks through everything") << true;
}

void tst_MapScene::anEventThatComesMeetsTheHero()
{
    QFETCH(bool, isThrough);
    auto play = game({QJsonValue(), smallGame::event(1, 8, 1, list(kSwitch1), 2,
                                                     {{QStringLiteral("moveType"), 2},
                                                      {QStringLiteral("moveFrequency"), 3},
                                                      {QStringLiteral("through"), isThrough}})});
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on\nexpect at 2 1")), QString());
}

void tst_MapScene::aPatrolWalksItsRoute()
{
    const QJsonValue route =
        smallGame::json(R"({"list":[{"code":1},{"code":3},{"code":4},{"code":2},{"code":0}],"repeat":true})");
    auto play = game({QJsonValue(), smallGame::event(1, 5, 2, list(kNothing), 0,
                                                     {{QStringLiteral("moveType"), 3},
                                                      {QStringLiteral("moveFrequency"), 3},
                                                      {QStringLiteral("moveRoute"), route}})});
    QVector<QPointF> corners;
    for (int tick = 0; tick < 200; ++tick) {
        play.hand().tick();
        const QPointF at = placeOf(play, 1);
        const bool isCell = at == QPointF(at.toPoint());
        if (isCell && (corners.isEmpty() || corners.constLast() != at)) {
            corners.append(at);
        }
    }
    QCOMPARE(corners.mid(0, 5), (QVector<QPointF>{{5, 2}, {5, 3}, {6, 3}, {6, 2}, {5, 2}}));
}

void tst_MapScene::aWandererStaysOnTheFloor()
{
    auto play = game({QJsonValue(), smallGame::event(1, 5, 3, list(kNothing), 0,
                                                     {{QStringLiteral("moveType"), 1},
                                                      {QStringLiteral("moveFrequency"), 3},
                                                      {QStringLiteral("moveSpeed"), 4}})});
    QSet<QString> cells;
    for (int tick = 0; tick < 6000; ++tick) {
        play.hand().tick();
        const QPointF at = placeOf(play, 1);
        QVERIFY(QRectF(0, 0, 9, 5).contains(at));
        QVERIFY(at.toPoint() != QPoint(2, 1) || at != QPointF(2, 1));
        cells.insert(QStringLiteral("%1 %2").arg(qRound(at.x())).arg(qRound(at.y())));
    }
    QVERIFY(cells.size() > 20);
}

void tst_MapScene::thePageFollowsTheConditions_data()
{
    QTest::addColumn<QByteArray>("conditions");
    QTest::addColumn<QString>("change");
    QTest::newRow("switch") << QByteArray(R"({"switchId":5})") << QStringLiteral("set switch 5 on");
    QTest::newRow("variable") << QByteArray(R"({"variableId":5,"variableValue":3})")
                              << QStringLiteral("set variable 5 = 3");
    QTest::newRow("both") << QByteArray(R"({"switchId":5,"variableId":5,"variableValue":-1})")
                          << QStringLiteral("set variable 5 = 0\nset switch 5 on");
}

void tst_MapScene::thePageFollowsTheConditions()
{
    QFETCH(QByteArray, conditions);
    QFETCH(QString, change);
    QJsonObject event = smallGame::event(1, 3, 1, list(kSwitch1));
    QJsonArray pages = event.value(QLatin1String("pages")).toArray();
    QJsonObject second = pages.at(0).toObject();
    second.insert(QStringLiteral("conditions"), smallGame::json(conditions));
    second.insert(QStringLiteral("image"), QString());
    second.insert(QStringLiteral("list"), list(R"({"code":121,"indent":0,"parameters":[2,2,0]})"));
    pages.append(second);
    event.insert(QStringLiteral("pages"), pages);
    auto play = game({QJsonValue(), event});
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nexpect switch 1 on\nexpect switch 2 off\n") + change +
                      QStringLiteral("\nwait 2")),
             QString());
    // Without a picture, the event can be stood on.
    QCOMPARE(play.run(QStringLiteral("walk to 3 1\nact\nexpect switch 2 on")), QString());
    QCOMPARE(placeOf(play, 1), QPointF(-1, -1));
}

void tst_MapScene::theViewFollowsAndStopsAtTheEdge()
{
    auto play = game({QJsonValue()});
    // A small map stands in the middle.
    QCOMPARE(play.hand().frame().origin, QPointF(-5, -2.625));
    QCOMPARE(play.run(QStringLiteral("place 2 15 10\nwait 1")), QString());
    QCOMPARE(play.hand().frame().origin, QPointF(5.5, 4.875));
    QCOMPARE(play.run(QStringLiteral("place 2 0 0\nwait 1")), QString());
    QCOMPARE(play.hand().frame().origin, QPointF(0, 0));
    QCOMPARE(play.run(QStringLiteral("place 2 29 19\nwait 1")), QString());
    QCOMPARE(play.hand().frame().origin, QPointF(10, 8.75));
}

void tst_MapScene::aRunRepeatsFrameByFrame()
{
    QJsonArray events{QJsonValue()};
    for (int id = 1; id <= 8; ++id) {
        events.append(
            smallGame::event(id, id, 4, list(kNothing), 0,
                             {{QStringLiteral("moveType"), 1}, {QStringLiteral("moveFrequency"), 3}}));
    }
    const auto played = [&events](quint64 seed) {
        player::GameSettings settings = smallGame::onMap();
        settings.seed = seed;
        sample::Play play(smallGame::files(events), settings);
        QStringList frames;
        for (int tick = 0; tick < 600; ++tick) {
            player::Input input;
            if (tick % 50 == 0) {
                input.cell = QPoint(tick / 50 % 10, tick / 100);
            }
            play.hand().tick(input);
            QString frame;
            for (const player::Sprite &sprite : play.hand().frame().sprites) {
                frame += QStringLiteral("%1:%2,%3,%4 ")
                             .arg(sprite.event)
                             .arg(sprite.at.x())
                             .arg(sprite.at.y())
                             .arg(sprite.step);
            }
            frames.append(frame);
        }
        return frames;
    };
    const QStringList once = played(3);
    QCOMPARE(played(3), once);
    QVERIFY(played(4) != once);
}

void tst_MapScene::anEncounterBeginsABattle()
{
    auto files = smallGame::files({QJsonValue()});
    QJsonObject map = files.value(QStringLiteral("data/Map001.json")).toObject();
    map.insert(QStringLiteral("encounterList"), smallGame::json(R"([{"troopId":1,"weight":3}])"));
    files.insert(QStringLiteral("data/Map001.json"), map);
    sample::Play play(files, smallGame::onMap());
    int steps = 0;
    while (!play.hand().isBattle() && steps < 100) {
        QCOMPARE(play.run(steps % 2 == 0 ? QStringLiteral("press right\nwait 18")
                                         : QStringLiteral("press left\nwait 18")),
                 QString());
        ++steps;
    }
    QVERIFY2(steps >= 12 && steps <= 37, qPrintable(QString::number(steps)));
    QCOMPARE(play.run(QStringLiteral("fight\nexpect exp 1 = 3\nexpect music village")), QString());
}

void tst_MapScene::theTimerIsShown()
{
    auto play = sample::Play(smallGame::filesWith(R"({"code":124,"indent":0,"parameters":[0,75]})"),
                             smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nwait 3")), QString());
    QCOMPARE(play.hand().frame().timer, QStringLiteral("1:15"));
    QCOMPARE(play.run(QStringLiteral("wait 120")), QString());
    QCOMPARE(play.hand().frame().timer, QStringLiteral("1:13"));
    QCOMPARE(play.run(QStringLiteral("wait 6000")), QString());
    QCOMPARE(play.hand().frame().timer, QStringLiteral("0:00"));
}

QTEST_GUILESS_MAIN(tst_MapScene)
#include "tst_MapScene.moc"
