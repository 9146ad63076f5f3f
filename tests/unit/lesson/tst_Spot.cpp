#include "lesson/description/DescriptionSet.h"
#include "lesson/description/Spot.h"

#include <QTest>

class tst_Spot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pointsIntoAControl_data();
    void pointsIntoAControl();
    void leavesRoomForTheArrow();
    void refusesWordsThatNameNoSpot_data();
    void refusesWordsThatNameNoSpot();

private:
    DescriptionSet m_windows;
};

void tst_Spot::init()
{
    QStringList errors;
    m_windows = DescriptionSet::read(QStringLiteral(FIXTURE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
}

void tst_Spot::pointsIntoAControl_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QPoint>("point");
    const auto row = [](const char *window, const char *words, const QPoint &point) {
        QTest::addRow("%s %s", window, words)
            << QString::fromLatin1(window) << QString::fromLatin1(words) << point;
    };
    row("MainWindow", "tools", QPoint(100, 28));
    row("MainWindow", "rows row 0", QPoint(45, 75));
    row("MainWindow", "rows row 3", QPoint(45, 165));
    row("MainWindow", "tabs tab 0", QPoint(15, 210));
    row("MainWindow", "tabs tab 2", QPoint(75, 210));
    row("MapView", "map", QPoint(160, 160));
    row("MapView", "map cell 0 0", QPoint(16, 16));
    row("MapView", "map cell 3 9", QPoint(112, 304));
    row("MainWindow", "map cell 3 9", QPoint(212, 504)); // a part, seen from its window
    row("Menu", "MapPopup/newMap", QPoint(100, 17));
}

void tst_Spot::pointsIntoAControl()
{
    QFETCH(QString, window);
    QFETCH(QString, words);
    const Spot spot(m_windows.controlsIn(window), words.split(QLatin1Char(' ')));
    QCOMPARE(spot.problem(), QString());
    QTEST(spot.point(), "point");
}

void tst_Spot::leavesRoomForTheArrow()
{
    const Spot spot(m_windows.controlsIn(QStringLiteral("MainWindow")), {QStringLiteral("tools")});
    QCOMPARE(spot.position(), QPoint(100 - 38, 28 - 132));
}

void tst_Spot::refusesWordsThatNameNoSpot_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *window, const char *words, const char *problem) {
        QTest::addRow("%s %s", window, words)
            << QString::fromLatin1(window) << QString::fromLatin1(words) << QString::fromLatin1(problem);
    };
    const char *const known =
        "\"%1\" has no \"%2\"; there are row N in lists, tab N in tab rows and cell COLUMN ROW in maps";
    const auto rowUnknown = [&](const char *window, const char *control, const char *place) {
        row(window, qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(control), QLatin1String(place))),
            qPrintable(QString::fromLatin1(known).arg(QLatin1String(control), QLatin1String(place))));
    };
    row("MainWindow", "toolbar", "the window has no control \"toolbar\"");
    row("NoWindow", "tools", "the window has no control \"tools\"");
    row("MapView", "tools", "the window has no control \"tools\"");
    row("MainWindow", "rows row two", "\"two\" is not a number from 0");
    row("MainWindow", "rows row -1", "\"-1\" is not a number from 0");
    row("MainWindow", "rows row 4", "\"rows\" ends before that");
    row("MainWindow", "tabs tab 3", "\"tabs\" ends before that");
    row("MapView", "map cell 10 0", "\"map\" ends before that");
    rowUnknown("MainWindow", "tools", "row 1");
    rowUnknown("MainWindow", "rows", "tab 1");
    rowUnknown("MainWindow", "rows", "row");
    rowUnknown("MapView", "map", "cell 1");
    rowUnknown("MapView", "map", "middle");
}

void tst_Spot::refusesWordsThatNameNoSpot()
{
    QFETCH(QString, window);
    QFETCH(QString, words);
    const Spot spot(m_windows.controlsIn(window), words.split(QLatin1Char(' ')));
    QTEST(spot.problem(), "problem");
}

QTEST_APPLESS_MAIN(tst_Spot)
#include "tst_Spot.moc"
