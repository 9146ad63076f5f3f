#include <QDir>
#include <QImage>
#include <QTest>

/// The pictures as they lie in the program's resources.
class tst_Pictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indicatorPictureHasItsSizeAndIsTransparentAroundItsShape_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("arrow") << QSize(128, 128);
        QTest::newRow("click") << QSize(48, 56);
        QTest::newRow("double_click") << QSize(48, 56);
        QTest::newRow("right_click") << QSize(48, 56);
        QTest::newRow("eye") << QSize(56, 40);
        QTest::newRow("wait") << QSize(48, 56);
        QTest::newRow("keyboard") << QSize(56, 32);
    }
    void indicatorPictureHasItsSizeAndIsTransparentAroundItsShape()
    {
        QFETCH(QSize, size);
        const QImage picture(
            QStringLiteral(":/resource/png/%1.png").arg(QLatin1String(QTest::currentDataTag())));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.devicePixelRatio(), 1.0);
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(size.width() - 1, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(0, size.height() - 1).alpha(), 0);
        QCOMPARE(picture.pixelColor(size.width() - 1, size.height() - 1).alpha(), 0);
        QVERIFY(picture.pixelColor(size.width() / 2, size.height() / 2 - 1).alpha() > 200);
    }

    void arrowsTipLies38FromTheLeftAtTheBottomEdge()
    {
        const QImage arrow(QStringLiteral(":/resource/png/arrow.png"));
        const int bottom = arrow.height() - 1;
        QVERIFY(arrow.pixelColor(37, bottom).alpha() > 200);
        QVERIFY(arrow.pixelColor(38, bottom).alpha() > 200);
        for (int x = 0; x < arrow.width(); ++x) {
            if (x < 32 || x > 43) {
                QCOMPARE(arrow.pixelColor(x, bottom).alpha(), 0);
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
        const int bottom = arrow.height() - 1;
        QCOMPARE(solidPixels(bottom), 2);
        for (int y = bottom; y > bottom - 8; --y) {
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
