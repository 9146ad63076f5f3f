#include "SmallGame.h"

#include <QTest>

/// What lies over the screen: fades, tint, flash, shaking, weather and pictures.
class tst_ScreenCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFadeTakesItsTime();
    void aTintGoesToItsColour();
    void aFlashFades();
    void theScreenShakesForAWhile();
    void weatherBeginsAndEnds();
    void aPictureMoves();
    void theMapScrolls();
    void whoIsTransparentIsNotSeen();
    void musicFadesOutInItsTime();
};

namespace {

/// A game whose event runs these commands, and then turns on switch 1; it has begun.
sample::Play begun(const QByteArray &commands)
{
    sample::Play play(smallGame::filesWith(commands + R"(,{"code":121,"indent":0,"parameters":[1,1,0]})"),
                      smallGame::onMap());
    const QString failure = play.run(QStringLiteral("ask 3 1"));
    if (!failure.isEmpty()) {
        qFatal("%s", qPrintable(failure));
    }
    return play;
}

const player::Screen &screen(sample::Play &play)
{
    return play.hand().state().screen;
}

} // namespace

void tst_ScreenCommands::aFadeTakesItsTime()
{
    auto play =
        begun(R"({"code":221,"indent":0,"parameters":[20]},{"code":222,"indent":0,"parameters":[20]})");
    QCOMPARE(play.run(QStringLiteral("wait 11")), QString());
    QCOMPARE(play.hand().frame().fade, 0.5);
    QCOMPARE(play.run(QStringLiteral("wait 10")), QString());
    QCOMPARE(play.hand().frame().fade, 1.0);
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QCOMPARE(play.hand().frame().fade, 0.0);
}

void tst_ScreenCommands::aTintGoesToItsColour()
{
    auto play = begun(R"({"code":223,"indent":0,"parameters":[40,-20,300,68,20,true]})");
    QCOMPARE(play.run(QStringLiteral("wait 11")), QString());
    QCOMPARE(play.hand().frame().tintRed, 20);
    QVERIFY(!play.hand().state().isOn(1));
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    const player::Frame &frame = play.hand().frame();
    QCOMPARE(frame.tintRed, 40);
    QCOMPARE(frame.tintGreen, -20);
    QCOMPARE(frame.tintBlue, 255);
    QCOMPARE(frame.tintGrey, 68);
}

void tst_ScreenCommands::aFlashFades()
{
    auto play = begun(R"({"code":224,"indent":0,"parameters":[255,128,0,200,20,true]})");
    QCOMPARE(play.run(QStringLiteral("wait 11")), QString());
    QCOMPARE(play.hand().frame().flash, QColor(255, 128, 0, 100));
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QCOMPARE(play.hand().frame().flash.alpha(), 0);
}

void tst_ScreenCommands::theScreenShakesForAWhile()
{
    auto play = begun(R"({"code":225,"indent":0,"parameters":[5,5,20,true]})");
    bool hasMoved = false;
    for (int tick = 0; tick < 15; ++tick) {
        play.hand().tick();
        hasMoved = hasMoved || !play.hand().frame().shake.isNull();
    }
    QVERIFY(hasMoved);
    QVERIFY(!play.hand().state().isOn(1));
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QVERIFY(play.hand().frame().shake.isNull());
}

void tst_ScreenCommands::weatherBeginsAndEnds()
{
    auto play =
        begun(R"({"code":226,"indent":0,"parameters":[3,6,10,true]},{"code":230,"indent":0,"parameters":[10]},
                         {"code":226,"indent":0,"parameters":[0,5,10,true]})");
    QCOMPARE(play.run(QStringLiteral("wait 15")), QString());
    QCOMPARE(play.hand().frame().weather, 3);
    QCOMPARE(play.hand().frame().weatherPower, 6.0);
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QCOMPARE(play.hand().frame().weather, 0);
}

void tst_ScreenCommands::aPictureMoves()
{
    auto play = begun(R"({"code":122,"indent":0,"parameters":[5,5,0,0,100]},
                         {"code":231,"indent":0,"parameters":[3,"lamp",1,1,5,5,100,100,255,0]},
                         {"code":232,"indent":0,"parameters":[3,0,0,200,50,50,200,0,2,20,true]})");
    QCOMPARE(play.run(QStringLiteral("wait 11")), QString());
    QCOMPARE(play.hand().frame().pictures.size(), 1);
    const player::ShownPicture half = play.hand().frame().pictures.constFirst();
    QCOMPARE(half.number, 3);
    QCOMPARE(half.name, QStringLiteral("lamp"));
    QCOMPARE(half.at, QPointF(150, 75));
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    const player::ShownPicture moved = play.hand().frame().pictures.constFirst();
    QCOMPARE(moved.at, QPointF(200, 50));
    QCOMPARE(moved.scale, QSizeF(50, 200));
    QCOMPARE(moved.opacity, 0.0);
    QCOMPARE(moved.blending, 2);
    QCOMPARE(screen(play).pictures.size(), 1);
}

void tst_ScreenCommands::theMapScrolls()
{
    auto play = begun(
        R"({"code":201,"indent":0,"parameters":[0,2,15,10,1,2]},{"code":230,"indent":0,"parameters":[10]},
                         {"code":203,"indent":0,"parameters":[3,4,6,true]})");
    QCOMPARE(play.run(QStringLiteral("expect map 2\nwait 2")), QString());
    const QPointF before = play.hand().frame().origin;
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QCOMPARE(play.hand().frame().origin, before + QPointF(4, 0));
}

void tst_ScreenCommands::whoIsTransparentIsNotSeen()
{
    auto play =
        begun(R"({"code":206,"indent":0,"parameters":[0,0]},{"code":206,"indent":0,"parameters":[-1,0]},
                         {"code":230,"indent":0,"parameters":[10]},{"code":206,"indent":0,"parameters":[-1,1]})");
    QCOMPARE(play.hand().frame().sprites.size(), 2);
    QCOMPARE(play.run(QStringLiteral("wait 4")), QString());
    QCOMPARE(play.hand().frame().sprites.size(), 0);
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QCOMPARE(play.hand().frame().sprites.size(), 1);
    QCOMPARE(play.hand().frame().sprites.constFirst().event, -1);
}

void tst_ScreenCommands::musicFadesOutInItsTime()
{
    auto play = begun(R"({"code":242,"indent":0,"parameters":[2]})");
    QCOMPARE(play.run(QStringLiteral("expect switch 1 on")), QString());
    QVERIFY(play.hand().frame().music.file.isEmpty());
    QCOMPARE(play.hand().frame().musicFadeTicks, 120);
}

QTEST_GUILESS_MAIN(tst_ScreenCommands)
#include "tst_ScreenCommands.moc"
