#include "SampleEvents.h"
#include "SampleGame.h"
#include "SampleTest.h"

/// The finished sample project can be played from its opening to its end.
class tst_SampleGame : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void ends();
    void playsEachStepWithoutAHitch();
    void noticesWhatKeepsItFromItsEnd_data();
    void noticesWhatKeepsItFromItsEnd();
    void noticesWhatGoesWrong_data();
    void noticesWhatGoesWrong();
};

namespace {

sample::Game played(const sample::Files &files)
{
    sample::Game game(files);
    game.play();
    return game;
}

const QJsonArray kNothing = {QJsonObject{{QStringLiteral("code"), 0}}};

} // namespace

void tst_SampleGame::ends()
{
    constexpr int kWarden = 6;
    constexpr int kLamp = 6;
    const sample::Game game = played(m_last);
    QCOMPARE(game.errors(), QStringList());
    QVERIFY(game.hasEnded());
    QCOMPARE(game.switches(), (QSet<int>{1, 2, 3, 4, 5, 6}));
    QCOMPARE(game.party(), (QSet<int>{1, 2, 3}));
    QCOMPARE(game.troopsFought(), QSet<int>{kWarden});
    QCOMPARE(game.items(kLamp), 0);
}

void tst_SampleGame::playsEachStepWithoutAHitch()
{
    for (int step = sample::kFirstStep; step <= sample::kLastStep; ++step) {
        const sample::Game game = played(sample::readStep(step));
        QVERIFY2(game.errors().isEmpty(),
                 qPrintable(sample::stepName(step) + game.errors().join(QLatin1Char(' '))));
        QVERIFY2(game.switches().contains(1), qPrintable(sample::stepName(step)));
        QVERIFY2(game.hasEnded() == (step == sample::kLastStep), qPrintable(sample::stepName(step)));
    }
}

void tst_SampleGame::noticesWhatKeepsItFromItsEnd_data()
{
    addChangeColumns();
    addChange("lever turns nothing on", "Map007.json", "events/6/pages/0/list", kNothing);
    addChange("warden turns nothing on", "Map008.json", "events/3/pages/0/list", kNothing);
    addChange("lever among rocks", "Map007.json", "events/6/y", 2);
    addChange("scene waits for another switch", "Map006.json", "events/4/pages/0/conditions/switchId", 9);
    addChange("scene without the ending", "Map006.json", "events/4/pages/0/list/12", kNothing.at(0));
}

void tst_SampleGame::noticesWhatKeepsItFromItsEnd()
{
    QVERIFY(!played(lastWithChange()).hasEnded());
}

void tst_SampleGame::noticesWhatGoesWrong_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("error");
    const QString scene = QStringLiteral("events/4/pages/0/list/");
    QTest::newRow("scene that begins for ever")
        << QStringLiteral("events/4/pages/0/list") << QJsonValue(kNothing)
        << "Map006.json event 4: begins for ever";
    QTest::newRow("route into the player")
        << QStringLiteral("events/3/x") << QJsonValue(10) << "Map006.json event 4: walks into something";
    QTest::newRow("lamp given twice")
        << scene + QStringLiteral("10/parameters/3") << QJsonValue(2) << "item 6 is given and not there";
}

void tst_SampleGame::noticesWhatGoesWrong()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, error);
    const sample::Files files = sample::changed(m_last, QStringLiteral("Map006.json"), path, value);
    QCOMPARE(played(files).errors(), QStringList{error});
}

QTEST_GUILESS_MAIN(tst_SampleGame)
#include "tst_SampleGame.moc"
