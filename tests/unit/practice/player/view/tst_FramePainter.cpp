#include "PaintingFixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace player;

namespace {

constexpr QSize kOnce(640, 360);

Frame mapFrame()
{
    Frame frame;
    frame.map = 1;
    return frame;
}

Sprite spriteAt(double x, double y)
{
    Sprite sprite;
    sprite.image = str("red");
    sprite.at = QPointF(x, y);
    return sprite;
}

} // namespace

/// What a frame says stands on the screen, pixel by pixel.
class tst_FramePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMapFillsTheScreenWithoutASeam_data();
    void theMapFillsTheScreenWithoutASeam();
    void whatIsLeftIsBlack();
    void theViewFollowsItsOrigin();
    void aMapSmallerThanTheScreenHasBlackAround();
    void spritesStandOnTheirCells();
    void spritesOutOfSightAreNotDrawn();
    void aMissingPictureIsABoxAndAProblemOnce();
    void tintsShiftTheColours();
    void greyTakesTheColoursAway();
    void panelsAreNotTinted();
    void nothingShinesThroughAPanelOnAnother();
    void panelsByThemselvesDoNotStandInTheDark_data();
    void panelsByThemselvesDoNotStandInTheDark();
    void fadesAndFlashesCoverAll();
    void shakingMovesTheWorld();
    void picturesStandAndBlend();
    void everyPictureThatCanBeChosenIsThere();
    void battlersStandOnTheirFeet();
    void aSelectedBattlerIsMarked();
    void weatherFalls_data();
    void weatherFalls();
    void balloonsAreAllDifferent();
    void animationsMove();
    void animationsGoOverThePanels();
    void anAnimationMayGoOverAllOfTheScreen();
};

void tst_FramePainter::theMapFillsTheScreenWithoutASeam_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("once") << kOnce;
    QTest::newRow("one and a half") << QSize(960, 540);
    QTest::newRow("twice") << QSize(1280, 720);
    QTest::newRow("as the person likes it") << QSize(1001, 733);
    QTest::newRow("tiny") << QSize(40, 25);
}

void tst_FramePainter::theMapFillsTheScreenWithoutASeam()
{
    QFETCH(QSize, size);
    Painting painting(size);
    Frame frame = mapFrame();
    frame.origin = QPointF(3.37, 2.81);
    painting.draw(frame);
    const ScreenScale scale = ScreenScale::fit(size);
    QCOMPARE(painting.count(Qt::green), scale.size().width() * scale.size().height());
    QCOMPARE(painting.count(Qt::magenta), 0);
}

void tst_FramePainter::whatIsLeftIsBlack()
{
    Painting painting({800, 360});
    painting.draw(mapFrame());
    QCOMPARE(painting.at(0, 0), QColor(Qt::black));
    QCOMPARE(painting.at(79, 359), QColor(Qt::black));
    QCOMPARE(painting.at(80, 0), QColor(Qt::blue));
    QCOMPARE(painting.at(719, 359), QColor(Qt::green));
    QCOMPARE(painting.at(720, 359), QColor(Qt::black));
}

void tst_FramePainter::theViewFollowsItsOrigin()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::blue), 32 * 32);
    frame.origin = QPointF(0.5, 0);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::blue), 16 * 32);
    // Farther than what is kept of the map, and back.
    frame.origin = QPointF(18, 17);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::blue), 0);
    frame.origin = QPointF();
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::blue), 32 * 32);
}

void tst_FramePainter::aMapSmallerThanTheScreenHasBlackAround()
{
    Painting painting(kOnce);
    MapData small = *painting.data().maps.find(1);
    small.id = 2;
    small.size = QSize(10, 8);
    small.tiles.fill(2, 10 * 8 * MapData::kLayers);
    painting.data().maps.insert(small);
    Frame frame = mapFrame();
    frame.map = 2;
    frame.origin = QPointF(-5, -1.5);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::blue), 320 * 256);
    QCOMPARE(painting.at(160, 48), QColor(Qt::blue));
    QCOMPARE(painting.at(159, 48), QColor(Qt::black));
}

void tst_FramePainter::spritesStandOnTheirCells()
{
    Painting painting({1280, 720});
    Frame frame = mapFrame();
    frame.origin = QPointF(1, 1);
    frame.sprites.append(spriteAt(3.5, 2));
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::red), 64 * 64);
    QCOMPARE(painting.at(160, 64), QColor(Qt::red));
    QCOMPARE(painting.at(159, 64), QColor(Qt::green));
    frame.sprites[0].height = 16;
    painting.draw(frame);
    QCOMPARE(painting.at(160, 32), QColor(Qt::red));
    QCOMPARE(painting.at(160, 96), QColor(Qt::green));
    frame.sprites[0].opacity = 0;
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::red), 0);
}

void tst_FramePainter::spritesOutOfSightAreNotDrawn()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    Sprite lost = spriteAt(30, 25);
    lost.image = str("nobody");
    frame.sprites.append(lost);
    painting.draw(frame);
    QCOMPARE(painting.artwork().takeProblems().size(), 0);
}

void tst_FramePainter::aMissingPictureIsABoxAndAProblemOnce()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.sprites.append(spriteAt(3, 2));
    frame.sprites[0].image = str("nobody");
    frame.sprites[0].event = 4;
    painting.draw(frame);
    QVERIFY(painting.at(96 + 8, 64 + 16) != QColor(Qt::green));
    painting.draw(frame);
    const QVector<Problem> problems = painting.artwork().takeProblems();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.constFirst().file, str("data/Map001.json"));
    QCOMPARE(problems.constFirst().map, 1);
    QCOMPARE(problems.constFirst().event, 4);
    QVERIFY2(problems.constFirst().text.contains(str("nobody")), qPrintable(problems.constFirst().text));
    painting.draw(frame);
    QCOMPARE(painting.artwork().takeProblems().size(), 0);
}

void tst_FramePainter::tintsShiftTheColours()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.tintRed = 40;
    frame.tintGreen = -100;
    frame.tintBlue = 300;
    painting.draw(frame);
    QCOMPARE(painting.at(300, 200), QColor(40, 155, 255));
}

void tst_FramePainter::greyTakesTheColoursAway()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.tintGrey = 255;
    painting.draw(frame);
    const QColor grey = painting.at(300, 200);
    QCOMPARE(grey.red(), grey.green());
    QCOMPARE(grey.green(), grey.blue());
    QCOMPARE(grey.red(), qGray(0, 255, 0));
}

void tst_FramePainter::panelsByThemselvesDoNotStandInTheDark_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("title") << str("title") << false;
    QTest::newRow("menu") << str("menu") << false;
    QTest::newRow("the end") << str("gameOver") << true;
    QTest::newRow("nothing") << QString() << true;
}

void tst_FramePainter::panelsByThemselvesDoNotStandInTheDark()
{
    QFETCH(QString, role);
    QFETCH(bool, isDark);
    Painting painting(kOnce);
    Frame frame;
    if (!role.isEmpty()) {
        Panel panel;
        panel.role = role;
        panel.rect = QRect(200, 100, 200, 100);
        frame.panels.append(panel);
    }
    painting.draw(frame);
    QCOMPARE(painting.at(20, 340) == QColor(Qt::black), isDark);
}

void tst_FramePainter::panelsAreNotTinted()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    Panel panel;
    panel.role = str("message");
    panel.rect = QRect(100, 200, 400, 120);
    panel.face = str("red");
    frame.panels.append(panel);
    frame.tintRed = -255;
    frame.fade = 1;
    painting.draw(frame);
    QCOMPARE(painting.at(112 + 40, 212 + 40), QColor(Qt::red));
    QCOMPARE(painting.at(50, 50), QColor(Qt::black));
}

void tst_FramePainter::fadesAndFlashesCoverAll()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.fade = 0.5;
    painting.draw(frame);
    QVERIFY(qAbs(painting.at(300, 200).green() - 128) <= 1);
    frame.fade = 1;
    frame.fadeColour = Qt::white;
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::white), 640 * 360);
    frame.fade = 0;
    frame.flash = QColor(255, 0, 0, 255);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::red), 640 * 360);
}

void tst_FramePainter::shakingMovesTheWorld()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.sprites.append(spriteAt(3, 2));
    frame.shake = QPoint(5, 0);
    painting.draw(frame);
    QCOMPARE(painting.at(100, 70), QColor(Qt::green));
    QCOMPARE(painting.at(101, 70), QColor(Qt::red));
    QCOMPARE(painting.count(Qt::magenta), 0);
}

void tst_FramePainter::picturesStandAndBlend()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    ShownPicture picture;
    picture.name = str("red");
    // A drawing of 64 x 64, of which 480 would fill the width of 640.
    picture.scale = QSizeF(200, 100);
    picture.at = QPointF(100, 100);
    frame.pictures.append(picture);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::red), 170 * 85);
    QCOMPARE(painting.at(100, 100), QColor(Qt::red));
    QCOMPARE(painting.at(99, 100), QColor(Qt::green));
    frame.pictures[0].isCentred = true;
    painting.draw(frame);
    QCOMPARE(painting.at(16, 60), QColor(Qt::red));
    frame.pictures[0].blending = 1;
    painting.draw(frame);
    QCOMPARE(painting.at(100, 100), QColor(Qt::yellow));
    frame.pictures[0].blending = 2;
    painting.draw(frame);
    QCOMPARE(painting.at(100, 100), QColor(Qt::black));
    frame.pictures[0].opacity = 0;
    painting.draw(frame);
    QCOMPARE(painting.at(100, 100), QColor(Qt::green));
}

void tst_FramePainter::everyPictureThatCanBeChosenIsThere()
{
    const QString practice = QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/");
    QFile file(practice + str("descriptions/choices/pictures.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray choices =
        QJsonDocument::fromJson(file.readAll()).object().value(str("choices")).toArray();
    QVERIFY(choices.size() > 5);
    Artwork artwork([](int, int, int) { return QPixmap(); },
                    [practice](const QString &folder, const QString &name) {
                        return QPixmap(practice + str("pictures/") + folder + QLatin1Char('/') + name +
                                       str(".png"));
                    });
    FramePainter painter(&artwork);
    const GameData data = plainData();
    for (const QJsonValue &choice : choices) {
        Frame frame;
        ShownPicture picture;
        picture.name = choice.toObject().value(str("value")).toString();
        frame.pictures.append(picture);
        QImage image(kOnce, QImage::Format_RGB32);
        QPainter device(&image);
        painter.paint(&device, frame, data, kOnce);
        device.end();
        const QVector<Problem> problems = artwork.takeProblems();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.value(0).text));
    }
    QCOMPARE(artwork.shownSize(str("hills")), kOnce);
}

void tst_FramePainter::battlersStandOnTheirFeet()
{
    Painting painting(kOnce);
    Frame frame;
    frame.backdrop = str("white");
    FrameBattler battler;
    battler.image = str("red");
    battler.at = QPoint(320, 300);
    frame.battlers.append(battler);
    painting.draw(frame);
    QCOMPARE(painting.count(Qt::red), 128 * 128);
    QCOMPARE(painting.at(320, 299), QColor(Qt::red));
    QCOMPARE(painting.at(320, 300), QColor(Qt::white));
    QCOMPARE(painting.at(0, 0), QColor(Qt::white));
    frame.battlers[0].flashes = true;
    painting.draw(frame);
    QVERIFY(painting.at(320, 299).green() > 100);
}

void tst_FramePainter::aSelectedBattlerIsMarked()
{
    Painting painting(kOnce);
    Frame frame;
    FrameBattler battler;
    battler.image = str("red");
    battler.at = QPoint(320, 300);
    frame.battlers.append(battler);
    const QImage plain = painting.draw(frame);
    frame.battlers[0].isSelected = true;
    const QImage marked = painting.draw(frame);
    QVERIFY(plain != marked);
    frame.battlers[0].isSelected = false;
    frame.battlers[0].popup = str("12");
    QVERIFY(painting.draw(frame) != plain);
}

void tst_FramePainter::weatherFalls_data()
{
    QTest::addColumn<int>("weather");
    QTest::newRow("rain") << 1;
    QTest::newRow("storm") << 2;
    QTest::newRow("snow") << 3;
}

void tst_FramePainter::weatherFalls()
{
    QFETCH(int, weather);
    Painting painting(kOnce);
    Frame frame = mapFrame();
    const QImage fine = painting.draw(frame);
    frame.weather = weather;
    frame.weatherPower = 9;
    const QImage first = painting.draw(frame);
    QVERIFY(first != fine);
    // The same tick looks the same, the next one does not.
    QCOMPARE(painting.draw(frame), first);
    ++frame.tick;
    QVERIFY(painting.draw(frame) != first);
    frame.weatherPower = 0;
    QCOMPARE(painting.draw(frame), fine);
}

void tst_FramePainter::balloonsAreAllDifferent()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.sprites.append(spriteAt(5, 5));
    QVector<QImage> seen;
    for (int balloon = 0; balloon <= 10; ++balloon) {
        frame.sprites[0].balloon = balloon;
        const QImage picture = painting.draw(frame);
        QVERIFY2(!seen.contains(picture), qPrintable(QString::number(balloon)));
        seen.append(picture);
    }
    frame.sprites[0].balloon = 11;
    QCOMPARE(painting.draw(frame), seen.constFirst());
}

void tst_FramePainter::animationsMove()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.sprites.append(spriteAt(5, 5));
    const QImage none = painting.draw(frame);
    frame.sprites[0].animation = 1;
    frame.sprites[0].animationFrame = 1;
    const QImage first = painting.draw(frame);
    QVERIFY(first != none);
    frame.sprites[0].animationFrame = 2;
    QVERIFY(painting.draw(frame) != first);
    // One that the database does not have.
    frame.sprites[0].animation = 77;
    QCOMPARE(painting.draw(frame), none);
}

void tst_FramePainter::nothingShinesThroughAPanelOnAnother()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    Panel below;
    below.rect = QRect(100, 100, 440, 160);
    Panel above;
    above.rect = QRect(200, 120, 240, 72);
    frame.panels = {below, above};
    const QRect inside = above.rect.adjusted(4, 4, -4, -4);
    const QImage empty = painting.draw(frame);
    frame.panels[0].lines = QVector<PanelLine>(4, PanelLine(QString(30, QLatin1Char('W'))));
    const QImage written = painting.draw(frame);
    QVERIFY(written != empty);
    QCOMPARE(written.copy(inside), empty.copy(inside));
}

void tst_FramePainter::animationsGoOverThePanels()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    Panel panel;
    panel.rect = QRect(200, 200, 400, 100);
    frame.panels.append(panel);
    const QImage none = painting.draw(frame);
    frame.animations.append({1, 1, QRect(220, 220, 60, 60)});
    const QImage seen = painting.draw(frame);
    QVERIFY(seen != none);
    QVERIFY(seen.copy(220, 220, 60, 60) != none.copy(220, 220, 60, 60));
    QCOMPARE(seen.copy(0, 0, 640, 190), none.copy(0, 0, 640, 190));
}

void tst_FramePainter::anAnimationMayGoOverAllOfTheScreen()
{
    Painting painting(kOnce);
    Frame frame = mapFrame();
    frame.sprites.append(spriteAt(15, 9));
    frame.sprites[0].animation = 1;
    frame.sprites[0].animationFrame = 2;
    const QRect upper(0, 0, 640, 120);
    const QImage small = painting.draw(frame).copy(upper);
    AnimationEntry entry = *painting.data().animations.find(1);
    entry.isOnScreen = true;
    painting.data().animations.insert(entry);
    QVERIFY(painting.draw(frame).copy(upper) != small);
}

QTEST_MAIN(tst_FramePainter)
#include "tst_FramePainter.moc"
