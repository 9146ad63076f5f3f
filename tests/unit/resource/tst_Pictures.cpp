#include <QDir>
#include <QImage>
#include <QTest>

namespace {

constexpr int kEmptyRows = 10;
/// The last row with anything solid: below it is half a pixel of the rim.
constexpr int kTipRow = 128 - kEmptyRows - 2;

} // namespace

/// The pictures as they lie in the program's resources.
class tst_Pictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indicatorPictureHasItsSizeAndIsTransparentAroundItsShape_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("inside");
        QTest::newRow("arrow") << QSize(128, 128) << QPoint(44, 63);
        QTest::newRow("click") << QSize(48, 56) << QPoint(24, 27);
        QTest::newRow("double_click") << QSize(48, 56) << QPoint(24, 27);
        QTest::newRow("right_click") << QSize(48, 56) << QPoint(24, 27);
        QTest::newRow("eye") << QSize(56, 40) << QPoint(28, 19);
        QTest::newRow("wait") << QSize(48, 56) << QPoint(24, 27);
        QTest::newRow("keyboard") << QSize(56, 32) << QPoint(28, 15);
    }
    void indicatorPictureHasItsSizeAndIsTransparentAroundItsShape()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, inside);
        const QImage picture(
            QStringLiteral(":/resource/png/%1.png").arg(QLatin1String(QTest::currentDataTag())));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.devicePixelRatio(), 1.0);
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(size.width() - 1, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(0, size.height() - 1).alpha(), 0);
        QCOMPARE(picture.pixelColor(size.width() - 1, size.height() - 1).alpha(), 0);
        QVERIFY(picture.pixelColor(inside).alpha() > 200);
    }

    /// Upside down, the window's edge cuts these rows off.
    void arrowsTipLies38FromTheLeftAboveTenEmptyRows()
    {
        const QImage arrow(QStringLiteral(":/resource/png/arrow.png"));
        QVERIFY(arrow.pixelColor(37, kTipRow).alpha() > 160);
        QVERIFY(arrow.pixelColor(38, kTipRow).alpha() > 160);
        for (int x = 0; x < arrow.width(); ++x) {
            if (x < 32 || x > 43) {
                QCOMPARE(arrow.pixelColor(x, kTipRow).alpha(), 0);
            }
            for (int y = arrow.height() - kEmptyRows; y < arrow.height(); ++y) {
                QCOMPARE(arrow.pixelColor(x, y).alpha(), 0);
            }
        }
    }

    void arrowsOutlineClosesInAPoint()
    {
        const QImage arrow(QStringLiteral(":/resource/png/arrow.png"));
        const auto solidPixels = [&arrow](int y) {
            int count = 0;
            for (int x = 0; x < arrow.width(); ++x) {
                count += arrow.pixelColor(x, y).alpha() > 160 ? 1 : 0;
            }
            return count;
        };
        QCOMPARE(solidPixels(kTipRow), 2);
        for (int y = kTipRow; y > kTipRow - 8; --y) {
            const int wider = solidPixels(y - 1) - solidPixels(y);
            QVERIFY2(wider >= 0 && wider <= 2, qPrintable(QStringLiteral("%1 in row %2").arg(wider).arg(y)));
        }
    }

    void everyControlIconIs24Wide()
    {
        const QStringList icons = QDir(QStringLiteral(":/icon")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(icons, QStringList({QStringLiteral("copy.png"), QStringLiteral("insert.png"),
                                     QStringLiteral("paste.png"), QStringLiteral("play.png"),
                                     QStringLiteral("redo.png"), QStringLiteral("save.png"),
                                     QStringLiteral("undo.png")}));
        for (const QString &icon : icons) {
            QCOMPARE(QImage(QStringLiteral(":/icon/") + icon).size(), QSize(24, 24));
        }
    }
};

QTEST_MAIN(tst_Pictures)
#include "tst_Pictures.moc"
