#include "lesson/description/ControlSpots.h"

#include <QtTest>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

using Requirements = QVector<ControlRequirement>;

ControlRequirement rows(const char *source, const QVector<int> &rows)
{
    return {QString(), {}, str(source), rows};
}

ControlRequirement is(const char *field, const QVector<QJsonValue> &values)
{
    return {str(field), values, QString(), {}};
}

} // namespace

Q_DECLARE_METATYPE(Requirements)

/// Which control stands where, and which controls stand in one place by turns.
class tst_ControlSpots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsTheControlAtAPosition_data();
    void findsTheControlAtAPosition();
    void findsAllThatTakeTurns();
    void findsThoseOfTheEditorAsAWhole();
    void givesThePositionBack_data();
    void givesThePositionBack();
    void knowsNoPlaceOfNoControl();
    void controlsThatExcludeEachOther_data();
    void controlsThatExcludeEachOther();

private:
    DescriptionSet m_windows;
};

void tst_ControlSpots::initTestCase()
{
    QStringList errors;
    m_windows = DescriptionSet::read(str(FIXTURE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
}

void tst_ControlSpots::findsTheControlAtAPosition_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("part");
    const auto row = [](const char *name, const char *window, const QPoint &position, const char *key,
                        const char *control, int part) {
        QTest::newRow(name) << str(window) << position << str(key) << str(control) << part;
    };
    row("a control", "MainWindow", {100, 28}, "MainWindow", "tools", -1);
    row("its first pixel", "MainWindow", {0, 4}, "MainWindow", "tools", -1);
    row("a row", "MainWindow", {45, 165}, "MainWindow", "rows", 3);
    row("a tab", "MainWindow", {75, 210}, "MainWindow", "tabs", 2);
    row("a cell in a part", "MainWindow", {212, 504}, "MapView", "map", ControlSpot::cell(3, 9));
    row("a cell of the part itself", "MapView", {112, 304}, "MapView", "map", ControlSpot::cell(3, 9));
    row("an entry of a context menu", "Menu", {100, 17}, "Menu", "MapPopup/newMap", -1);
    row("beside all controls", "MainWindow", {300, 28}, "", "", -1);
    row("the screen", "", {100, 28}, "", "", -1);
    row("no window", "Cellar", {100, 28}, "", "", -1);
}

void tst_ControlSpots::findsTheControlAtAPosition()
{
    QFETCH(QString, window);
    QFETCH(QPoint, position);
    QFETCH(QString, key);
    QFETCH(QString, control);
    QFETCH(int, part);
    const QVector<ControlSpot> spots = controlsAt(m_windows, window, position);
    if (key.isEmpty()) {
        QVERIFY(spots.isEmpty());
        return;
    }
    QCOMPARE(spots, (QVector<ControlSpot>{{key, control, part}}));
}

void tst_ControlSpots::findsAllThatTakeTurns()
{
    QStringList errors;
    const auto shipped =
        DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    const QVector<ControlSpot> spots = controlsAt(shipped, str("Menu"), {100, 17});
    QVERIFY(spots.contains({str("Menu"), str("MapPopup/mapProperties"), -1}));
    QVERIFY(spots.contains({str("Menu"), str("TilePopup/changeTileSet"), -1}));
}

void tst_ControlSpots::findsThoseOfTheEditorAsAWhole()
{
    QStringList errors;
    const auto shipped =
        DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    const ControlDescription tool = shipped[str("MainWindow")].controls.constFirst();
    QCOMPARE(controlsAt(shipped, str("ApplicationWindow"), tool.geometry.center()),
             (QVector<ControlSpot>{{str("MainWindow"), tool.name, -1}}));
}

void tst_ControlSpots::givesThePositionBack_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("part");
    QTest::addColumn<QPoint>("point");
    QTest::newRow("a control") << str("MainWindow") << str("tools") << -1 << QPoint(100, 28);
    QTest::newRow("a list as a whole") << str("MainWindow") << str("rows") << -1 << QPoint(45, 120);
    QTest::newRow("a row") << str("MainWindow") << str("rows") << 3 << QPoint(45, 165);
    QTest::newRow("a tab") << str("MainWindow") << str("tabs") << 2 << QPoint(75, 210);
    QTest::newRow("a cell") << str("MapView") << str("map") << ControlSpot::cell(3, 9) << QPoint(112, 304);
    QTest::newRow("an entry") << str("Menu") << str("MapPopup/newMap") << -1 << QPoint(100, 17);
}

void tst_ControlSpots::givesThePositionBack()
{
    QFETCH(QString, key);
    QFETCH(QString, control);
    QFETCH(int, part);
    QFETCH(QPoint, point);
    const ControlSpot spot{key, control, part};
    QCOMPARE(pointOf(m_windows, spot), std::optional<QPoint>(point));
    if (part >= 0) {
        QCOMPARE(controlsAt(m_windows, key, point), QVector<ControlSpot>{spot});
    }
}

void tst_ControlSpots::knowsNoPlaceOfNoControl()
{
    QVERIFY(!pointOf(m_windows, {str("MainWindow"), str("axe"), -1}).has_value());
    QVERIFY(!pointOf(m_windows, {str("Cellar"), str("tools"), -1}).has_value());
    QVERIFY(!pointOf(m_windows, {str("Menu"), str("MapPopup/axe"), -1}).has_value());
    QVERIFY(!pointOf(m_windows, {str("Menu"), str("newMap"), -1}).has_value());
    QVERIFY(!pointOf(m_windows, {str("MainWindow"), ControlSpot::dismiss(), -1}).has_value());
}

void tst_ControlSpots::controlsThatExcludeEachOther_data()
{
    QTest::addColumn<Requirements>("left");
    QTest::addColumn<Requirements>("right");
    QTest::addColumn<bool>("exclude");
    using All = Requirements;
    QTest::newRow("always there") << All() << All() << false;
    QTest::newRow("one on a tab") << All{rows("tab", {1})} << All() << false;
    QTest::newRow("tabs") << All{rows("tab", {1, 2})} << All{rows("tab", {0, 3})} << true;
    QTest::newRow("a tab in common") << All{rows("tab", {1, 2})} << All{rows("tab", {2, 3})} << false;
    QTest::newRow("tabs of two rows") << All{rows("tab", {1})} << All{rows("page", {2})} << false;
    QTest::newRow("values") << All{is("kind", {str("hp")})} << All{is("kind", {str("mp")})} << true;
    QTest::newRow("a value in common") << All{is("kind", {str("hp"), 1})} << All{is("kind", {1})} << false;
    QTest::newRow("a value and a tab") << All{is("tab", {1})} << All{rows("tab", {2})} << false;
    QTest::newRow("one of several") << All{rows("tab", {1}), is("kind", {1})}
                                    << All{rows("tab", {1}), is("kind", {2})} << true;
}

void tst_ControlSpots::controlsThatExcludeEachOther()
{
    QFETCH(Requirements, left);
    QFETCH(Requirements, right);
    QTEST(excludeEachOther(left, right), "exclude");
    QTEST(excludeEachOther(right, left), "exclude");
}

QTEST_APPLESS_MAIN(tst_ControlSpots)
#include "tst_ControlSpots.moc"
