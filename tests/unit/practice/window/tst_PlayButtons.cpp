#include "SampleEditor.h"

/// The buttons that let the project be played, what is told of it, and the way back to a place in the editor.
class tst_PlayButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theButtonIsGreyUntilSomebodyPlays();
    void theButtonAndItsKeyPlayTheProject();
    void nothingOfTheEditorChanges();
    void aBattleIsTriedWithTheTypedParty();
    void aBattleNeedsEnemies();
    void theEndIsToldOfNoWindow();
    void anEventIsShownWithPageAndCommand();
    void aCommonEventAndATroopAreShown();
    void anEntryOfTheDatabaseIsShown();
    void aPlaceThatIsGoneIsNotShown();
    void whatIsTypedIsNotLostForAPlace();

private:
    void handIn()
    {
        (*m_editor)->setPlayer([this](const PlayRequest &request) { m_played.append(request); });
    }
    [[nodiscard]] int row(const char *window, const char *list) const
    {
        return m_editor->find<RowList>(window, list)->currentRow();
    }

    std::unique_ptr<SampleEditor> m_editor;
    QVector<PlayRequest> m_played;
};

void tst_PlayButtons::init()
{
    m_editor = std::make_unique<SampleEditor>();
    m_played.clear();
}

void tst_PlayButtons::theButtonIsGreyUntilSomebodyPlays()
{
    QVERIFY(!m_editor->find<QAbstractButton>("MainWindow", "play")->isEnabled());
    handIn();
    QVERIFY(m_editor->find<QAbstractButton>("MainWindow", "play")->isEnabled());
    (*m_editor)->setPlayer({});
    QVERIFY(!m_editor->find<QAbstractButton>("MainWindow", "play")->isEnabled());
}

void tst_PlayButtons::theButtonAndItsKeyPlayTheProject()
{
    handIn();
    m_editor->click("MainWindow", "play");
    QCOMPARE(m_played.size(), 1);
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,open in MainWindow")});
    Editor::key(Qt::Key_F5);
    QCOMPARE(m_played.size(), 2);
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,open in MainWindow")});
    QCOMPARE(m_played.constLast().folder, (*m_editor)->projectFolder());
    QCOMPARE(m_played.constLast().troop, 0);
}

void tst_PlayButtons::nothingOfTheEditorChanges()
{
    handIn();
    const EditorState before = (*m_editor)->state();
    const QString data = (*m_editor)->dataMark();
    m_editor->click("MainWindow", "play");
    (*m_editor)->tellPlayed();
    QCOMPARE((*m_editor)->state().toJson(), before.toJson());
    QCOMPARE((*m_editor)->dataMark(), data);
}

void tst_PlayButtons::aBattleIsTriedWithTheTypedParty()
{
    handIn();
    m_editor->openDatabase(7);
    m_editor->clickRow("DatabaseMain", "troops", 1);
    m_editor->click("DatabaseMain", "battleTest");
    m_editor->click("BattleTest", "add");
    m_editor->setNumber("BattleTest", "level", 7);
    m_editor->takeTold();
    m_editor->click("BattleTest", "start");
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,open in BattleTest")});
    QCOMPARE(m_played.size(), 1);
    QCOMPARE(m_played.constFirst().troop, 2);
    QCOMPARE(m_played.constFirst()
                 .files.value(str("data/System.json"))[str("testBattlers")][0][str("level")]
                 .toInt(),
             7);
    // It is still typed only, and the windows are open.
    QVERIFY(!(*m_editor)->project()->isModified());
    QCOMPARE((*m_editor)->openWindows(),
             (QStringList{str("MainWindow"), str("DatabaseMain"), str("BattleTest")}));
}

void tst_PlayButtons::aBattleNeedsEnemies()
{
    handIn();
    m_editor->openDatabase(7);
    m_editor->click("DatabaseMain", "troopsAdd");
    const QAbstractButton *const test = m_editor->find<QAbstractButton>("DatabaseMain", "battleTest");
    QVERIFY(!test->isEnabled());
    m_editor->click("DatabaseMain", "membersAdd");
    QVERIFY(test->isEnabled());
    m_editor->click("DatabaseMain", "membersDelete");
    QVERIFY(!test->isEnabled());
}

void tst_PlayButtons::theEndIsToldOfNoWindow()
{
    (*m_editor)->tellPlayed();
    QCOMPARE(m_editor->takeTold(), QStringList{str("action,play,close in ")});
}

void tst_PlayButtons::anEventIsShownWithPageAndCommand()
{
    // The Elder: his second page, and a command behind a message of several lines.
    const QJsonValue map = m_editor->value("Map001", "");
    const QJsonArray events = map[str("events")].toArray();
    int number = 0;
    for (int id = 1; id < events.size() && number == 0; ++id) {
        if (events.at(id)[str("pages")].toArray().size() > 1) {
            number = id;
        }
    }
    QVERIFY(number > 0);
    EventPlace place;
    place.map = 1;
    place.event = number;
    place.page = 2;
    place.line = 1;
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE((*m_editor)->openWindows(), (QStringList{str("MainWindow"), str("EventEditorMain")}));
    QCOMPARE(m_editor->find<QTabBar>("EventEditorMain", "pages")->currentIndex(), 1);
    QCOMPARE(row("EventEditorMain", "commands"), 0);
    QCOMPARE(m_editor->find<QLineEdit>("EventEditorMain", "name")->text(),
             events.at(number)[str("name")].toString());
    m_editor->click("EventEditorMain", "cancel");
    // The map has the event marked.
    const QPoint cell(events.at(number)[str("x")].toInt(), events.at(number)[str("y")].toInt());
    QCOMPARE(m_editor->map()->markedCell(), cell);
    QVERIFY(!(*m_editor)->project()->isModified());
}

void tst_PlayButtons::aCommonEventAndATroopAreShown()
{
    EventPlace place;
    place.in = EventPlace::In::kCommonEvents;
    place.event = 2;
    place.line = 1;
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE(m_editor->find<QTabBar>("DatabaseMain", "tabs")->currentIndex(), 11);
    QCOMPARE(row("DatabaseMain", "commonEvents"), 1);
    QCOMPARE(row("DatabaseMain", "commonEventCommands"), 0);
    m_editor->click("DatabaseMain", "cancel");
    place.in = EventPlace::In::kTroops;
    place.event = 1;
    place.page = 1;
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE(m_editor->find<QTabBar>("DatabaseMain", "tabs")->currentIndex(), 7);
    QCOMPARE(row("DatabaseMain", "troops"), 0);
}

void tst_PlayButtons::anEntryOfTheDatabaseIsShown()
{
    EventPlace place;
    place.in = EventPlace::In::kDatabase;
    place.list = str("data/Skills");
    place.event = 2;
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE(m_editor->find<QTabBar>("DatabaseMain", "tabs")->currentIndex(), 2);
    QCOMPARE(row("DatabaseMain", "skills"), 1);
    m_editor->click("DatabaseMain", "cancel");
    // What concerns no entry leads to its tab.
    place.list = str("data/System");
    place.event = 0;
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE(m_editor->find<QTabBar>("DatabaseMain", "tabs")->currentIndex(), 12);
    m_editor->click("DatabaseMain", "cancel");
    place.list = str("data/Nowhere");
    QVERIFY(!(*m_editor)->showPlace(place));
    place.list = str("data/Items");
    place.event = 9999;
    QVERIFY(!(*m_editor)->showPlace(place));
}

void tst_PlayButtons::aPlaceThatIsGoneIsNotShown()
{
    EventPlace place;
    place.map = 99;
    place.event = 1;
    QVERIFY(!(*m_editor)->showPlace(place));
    place.in = EventPlace::In::kTroops;
    place.event = 9999;
    QVERIFY(!(*m_editor)->showPlace(place));
    place = {EventPlace::In::kMap, 2, 9999, 1, 1};
    // Of an event that is gone, the map is there to see.
    QVERIFY((*m_editor)->showPlace(place));
    QCOMPARE((*m_editor)->openWindows(), QStringList{str("MainWindow")});
}

void tst_PlayButtons::whatIsTypedIsNotLostForAPlace()
{
    m_editor->openDatabase(0);
    EventPlace place;
    place.map = 1;
    place.event = 1;
    QVERIFY(!(*m_editor)->showPlace(place));
    QCOMPARE((*m_editor)->openWindows(), (QStringList{str("MainWindow"), str("DatabaseMain")}));
}

QTEST_MAIN(tst_PlayButtons)
#include "tst_PlayButtons.moc"
