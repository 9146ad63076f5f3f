#include "project/ChoiceSets.h"
#include "window/MapPainter.h"
#include "window/Pictures.h"
#include "window/TileDrawing.h"
#include "window/ToolIcon.h"

#include <QDir>
#include <QImage>
#include <QTest>

namespace {

QStringList sourcesIn(const QString &folder)
{
    const QDir directory(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/pictures/%1/svg").arg(folder));
    QStringList names;
    const QStringList files = directory.entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        names.append(QFileInfo(file).completeBaseName());
    }
    return names;
}

QImage tile(const char *drawing, int pixels)
{
    return drawTile(QString::fromLatin1(drawing), pixels).toImage();
}

/// The strongest ink of a picture, 0 to 255.
int strongestAlpha(const QImage &picture)
{
    int strongest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            strongest = qMax(strongest, picture.pixelColor(x, y).alpha());
        }
    }
    return strongest;
}

} // namespace

class tst_Drawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceIsADrawing();
    void everyDrawingCanBeChosen_data();
    void everyDrawingCanBeChosen();
    void whoTurnsIsACharacter();
    void aTileIsDrawnInEverySize_data();
    void aTileIsDrawnInEverySize();
    void linesAreOnePixelWideAtFullSize();
    void anObjectLeavesTheGroundVisible();
    void aDisabledIconIsPale();
    void anUnknownNameHasNoPicture();
    void aTileSetThatIsNotThereHasNoTint();
};

void tst_Drawings::everySourceIsADrawing()
{
    QVERIFY(!sourcesIn(QStringLiteral("tiles")).isEmpty());
    QCOMPARE(tileDrawings(), sourcesIn(QStringLiteral("tiles")));
    QVERIFY(!sourcesIn(QStringLiteral("icons")).isEmpty());
    QCOMPARE(toolIcons(), sourcesIn(QStringLiteral("icons")));
}

void tst_Drawings::everyDrawingCanBeChosen_data()
{
    QTest::addColumn<QString>("folder");
    for (const char *folder : {"characters", "faces", "enemies", "backdrops", "titles", "pictures"}) {
        QTest::newRow(folder) << QString::fromLatin1(folder);
    }
}

void tst_Drawings::everyDrawingCanBeChosen()
{
    QFETCH(QString, folder);
    QStringList errors;
    const auto sets = ChoiceSets::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/choices"),
                                       QStringLiteral("en_US"), &errors);
    QCOMPARE(errors, QStringList());
    QStringList names;
    const QVector<Choice> choices = sets.choices(folder);
    for (const Choice &choice : choices) {
        names.append(choice.value.toString());
    }
    // The first is none.
    QCOMPARE(names.takeFirst(), QString());
    names.sort();
    QCOMPARE(names, Pictures::namesIn(folder));
    QCOMPARE(names, sourcesIn(folder));
}

void tst_Drawings::whoTurnsIsACharacter()
{
    const QString folder = QStringLiteral("facing");
    const QStringList turned = Pictures::namesIn(folder);
    QCOMPARE(turned, sourcesIn(folder));
    const QStringList characters = Pictures::namesIn(QStringLiteral("characters"));
    for (const QString &name : turned) {
        const QString character = name.section(QLatin1Char('-'), 0, 0);
        QVERIFY2(characters.contains(character), qPrintable(name));
        QCOMPARE(Pictures::load(folder, name).size(),
                 Pictures::load(QStringLiteral("characters"), character).size());
        // Whoever turns has both pictures.
        QVERIFY2(turned.contains(character + QStringLiteral("-left")) &&
                     turned.contains(character + QStringLiteral("-up")),
                 qPrintable(name));
    }
}

void tst_Drawings::aTileIsDrawnInEverySize_data()
{
    QTest::addColumn<int>("pixels");
    for (const int pixels : {8, 13, 16, 22, 32, 36, 64}) {
        QTest::addRow("%d pixels", pixels) << pixels;
    }
}

void tst_Drawings::aTileIsDrawnInEverySize()
{
    QFETCH(int, pixels);
    const QStringList drawings = tileDrawings();
    for (const QString &drawing : drawings) {
        const QImage picture = drawTile(drawing, pixels).toImage();
        QCOMPARE(picture.size(), QSize(pixels, pixels));
        QVERIFY2(strongestAlpha(picture) > 200, qPrintable(drawing));
    }
}

void tst_Drawings::linesAreOnePixelWideAtFullSize()
{
    const QImage wall = tile("wall", 32);
    const QColor brick(0xd9, 0xc3, 0xa0);
    const QColor joint(0xb5, 0x9a, 0x72);
    for (int y = 0; y < 32; ++y) {
        QCOMPARE(wall.pixelColor(4, y), y % 8 == 0 ? joint : brick);
    }
}

void tst_Drawings::anObjectLeavesTheGroundVisible()
{
    const QImage tree = tile("tree", 32);
    QCOMPARE(tree.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(tree.pixelColor(31, 31).alpha(), 0);
    QCOMPARE(tree.pixelColor(16, 16).alpha(), 255);
}

void tst_Drawings::aDisabledIconIsPale()
{
    const QSize size(24, 24);
    const QStringList names = toolIcons();
    for (const QString &name : names) {
        const QIcon icon = toolIcon(name);
        QVERIFY2(strongestAlpha(icon.pixmap(size).toImage()) > 200, qPrintable(name));
        const int pale = strongestAlpha(icon.pixmap(size, QIcon::Disabled).toImage());
        QVERIFY2(pale > 60 && pale < 100, qPrintable(QStringLiteral("%1: %2").arg(name).arg(pale)));
    }
}

void tst_Drawings::anUnknownNameHasNoPicture()
{
    QVERIFY(toolIcon(QStringLiteral("none")).isNull());
    const QImage picture = tile("none", 32);
    QCOMPARE(picture.size(), QSize(32, 32));
    QCOMPARE(strongestAlpha(picture), 0);
}

void tst_Drawings::aTileSetThatIsNotThereHasNoTint()
{
    StartData start;
    start.tiles.append({QStringLiteral("grass"), QStringLiteral("g"), QString()});
    start.tileSets.append({QString(), QString(), QColor(255, 0, 0, 200)});
    MapPainter painter(&start);
    const QImage plain = tile("grass", 32);
    QVERIFY(painter.tile(0, 0, 32).toImage() != plain);
    for (const int set : {1, 7, 1 << 16, 1 << 30}) {
        const QImage drawn = painter.tile(0, set, 32).toImage();
        QCOMPARE(drawn.pixelColor(16, 16), plain.pixelColor(16, 16));
    }
}

QTEST_MAIN(tst_Drawings)
#include "tst_Drawings.moc"
