#include "PaintingFixture.h"
#include "player/view/LogPane.h"

#include <QListWidget>

#include <limits>

using namespace player;

/// What a game could not do, in rows that lead to the place.
class tst_LogPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isHiddenWhileThereIsNothingToTell();
    void placesAreToldByTheirNames_data();
    void placesAreToldByTheirNames();
    void aRowLeadsToItsPlace();
    void whatRepeatsIsOneRowWithACount();
    void keepsNoMoreRowsThanAreRead();

private:
    [[nodiscard]] QListWidget *list() const { return m_pane->findChild<QListWidget *>(); }

    std::unique_ptr<GameData> m_data;
    std::unique_ptr<LogPane> m_pane;
};

void tst_LogPane::init()
{
    m_pane.reset();
    m_data = std::make_unique<GameData>(plainData());
    MapData map = *m_data->maps.find(1);
    MapEvent event;
    event.id = 3;
    event.name = str("Lever");
    map.events.append(event);
    event.id = 4;
    event.name.clear();
    map.events.append(event);
    m_data->maps.insert(map);
    TroopEntry troop;
    troop.id = 2;
    troop.name = str("Bats");
    m_data->troops.insert(troop);
    m_pane = std::make_unique<LogPane>(m_data.get());
}

void tst_LogPane::isHiddenWhileThereIsNothingToTell()
{
    m_pane->add({});
    QVERIFY(m_pane->isHidden());
    m_pane->add({{{}, 0, 0, 0, 0, str("no such thing")}});
    QVERIFY(!m_pane->isHidden());
    QCOMPARE(m_pane->rows(), 1);
    QCOMPARE(list()->item(0)->text(), str("no such thing"));
}

void tst_LogPane::placesAreToldByTheirNames_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const char *file, const QVector<int> &numbers, const char *words) {
        QTest::newRow(name) << str(file) << numbers << str(words);
    };
    row("event", "data/Map001.json", {1, 3, 2, 5}, "Meadow › Lever › page 2 › line 5");
    row("event without a name", "data/Map001.json", {1, 4, 1, 1}, "Meadow › Event 4 › page 1 › line 1");
    row("event that is not there", "data/Map001.json", {1, 9, 0, 0}, "Meadow › Event 9");
    row("map that is not there", "data/Map007.json", {7, 0, 0, 0}, "Map 7");
    row("troop", "data/Troops.json", {0, 2, 1, 4}, "Bats › page 1 › line 4");
    row("common event", "data/CommonEvents.json", {0, 5, 0, 2}, "Common event 5 › line 2");
    row("nowhere", "", {0, 0, 0, 0}, "");
}

void tst_LogPane::placesAreToldByTheirNames()
{
    QFETCH(QString, file);
    QFETCH(QVector<int>, numbers);
    const Problem problem{file, numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3), str("what")};
    QTEST(placeInWords(problem, *m_data), "words");
}

void tst_LogPane::aRowLeadsToItsPlace()
{
    QVector<Problem> told;
    connect(m_pane.get(), &LogPane::placeAsked, this,
            [&told](const Problem &problem) { told.append(problem); });
    const Problem first{str("data/Map001.json"), 1, 3, 2, 5, str("one")};
    const Problem second{str("data/Map001.json"), 1, 4, 1, 1, str("two")};
    m_pane->add({first, second});
    m_pane->resize(600, 120);
    m_pane->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pane.get()));
    const QPoint place = list()->visualItemRect(list()->item(1)).center();
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(told.size(), 1);
    QVERIFY(told.constFirst() == second);
    list()->setCurrentRow(0);
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(told.size(), 2);
    QVERIFY(told.constLast() == first);
}

void tst_LogPane::whatRepeatsIsOneRowWithACount()
{
    Problem lever{str("data/Map001.json"), 1, 3, 2, 5, str("There is no item 9.")};
    const Problem other{str("data/Map001.json"), 1, 3, 2, 6, str("There is no item 9.")};
    m_pane->add({lever, other});
    QCOMPARE(list()->item(0)->text(), str("Meadow › Lever › page 2 › line 5: There is no item 9."));
    lever.times = 4;
    m_pane->add({lever});
    QCOMPARE(m_pane->rows(), 2);
    QCOMPARE(list()->count(), 2);
    QCOMPARE(list()->item(0)->text(), str("(×5) Meadow › Lever › page 2 › line 5: There is no item 9."));
    QCOMPARE(list()->item(0)->toolTip(), list()->item(0)->text());
    QCOMPARE(list()->item(1)->text(), str("Meadow › Lever › page 2 › line 6: There is no item 9."));
    lever.times = std::numeric_limits<int>::max();
    m_pane->add({lever});
    QVERIFY2(list()->item(0)->text().startsWith(str("(×9999+) Meadow")), qPrintable(list()->item(0)->text()));
}

void tst_LogPane::keepsNoMoreRowsThanAreRead()
{
    QVector<Problem> many;
    for (int line = 1; line <= 5 * LogPane::kMostRows; ++line) {
        many.append({{}, 0, 0, 0, line, str("again")});
    }
    m_pane->add(many);
    QCOMPARE(m_pane->rows(), int(LogPane::kMostRows));
    QCOMPARE(list()->count(), int(LogPane::kMostRows));
    // Those that are told are still counted.
    m_pane->add({many.constFirst(), many.constLast()});
    QVERIFY(list()->item(0)->text().startsWith(str("(×2) ")));
    QCOMPARE(list()->count(), int(LogPane::kMostRows));
}

QTEST_MAIN(tst_LogPane)
#include "tst_LogPane.moc"
