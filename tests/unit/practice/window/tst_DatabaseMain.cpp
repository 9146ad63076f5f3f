#include "SampleEditor.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRadioButton>

#include <cctype>

/// The database, used as a person uses it, on the sample project.
class tst_DatabaseMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensFromTheToolBar();
    void fitsASmallScreen();
    void everyTabHasItsEntries_data();
    void everyTabHasItsEntries();
    void okKeepsAndUndoTakesBack();
    void cancelDrops();
    void applyKeepsAndStays();
    void aNameIsTyped();
    void kindsAreRadioButtons();
    void entriesAreCopiedAndDeleted();
    void moreEntriesAreMade();
    void anEntryIsAdded_data();
    void anEntryIsAdded();
    void anAddedTroopHasAPage();
    void aPictureIsChosen();
    void entriesHaveReadableRows_data();
    void entriesHaveReadableRows();
    void aTileSetLooksLikeItsPicture();
    void theGameHasItsParty();
    void musicIsChosenWithItsVolume();
    void aNewActorCanGainLevels();
    void aTroopHasPagesOfCommands();
    void aMemberOfATroopMayAppearLater();
    void aCommonEventHasCommands();
    void theGameStartsAtAPlace();
    void lookingChangesNothing();
};

void tst_DatabaseMain::opensFromTheToolBar()
{
    SampleEditor editor;
    editor.click("MainWindow", "toolDatabase");
    QCOMPARE(editor.takeTold(),
             opened("DatabaseMain") + QStringList{str("action,database,open in MainWindow")});
    editor.click("DatabaseMain", "cancel");
    QCOMPARE(editor.takeTold(), closed("DatabaseMain"));
}

void tst_DatabaseMain::fitsASmallScreen()
{
    SampleEditor editor;
    const QSize size = editor->window(str("DatabaseMain"))->size();
    QVERIFY(size.width() <= 980 && size.height() <= 660);
}

void tst_DatabaseMain::everyTabHasItsEntries_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("count");
    int tab = 0;
    const auto row = [&tab](const char *list, int count) {
        QTest::newRow(list) << tab++ << QByteArray(list) << count;
    };
    row("actors", 3);
    row("classes", 3);
    row("skills", 6);
    row("items", 6);
    row("weapons", 4);
    row("armors", 4);
    row("enemies", 6);
    row("troops", 6);
    row("states", 4);
    row("animations", 4);
    row("tilesets", 6);
    row("commonEvents", 3);
}

void tst_DatabaseMain::everyTabHasItsEntries()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, list);
    QFETCH(int, count);
    SampleEditor editor;
    editor.openDatabase(tab);
    QVERIFY(editor.takeTold().contains(str("tabView,tabview,%1 in DatabaseMain").arg(tab)));
    QVERIFY(editor.isThere("DatabaseMain", list.constData()));
    QCOMPARE(editor.texts("DatabaseMain", list.constData()).size(), count);
    editor.clickRow("DatabaseMain", list.constData(), count - 1);
    QCOMPARE(editor.takeTold(), QStringList{str("list,%1, in DatabaseMain").arg(count - 1)});
}

void tst_DatabaseMain::okKeepsAndUndoTakesBack()
{
    SampleEditor editor;
    editor.openDatabase(3);
    editor.clickRow("DatabaseMain", "items", 2);
    editor.takeTold();
    editor.setNumber("DatabaseMain", "itemPrice", 5);
    QCOMPARE(editor.takeTold(), QStringList{str("spinBox,=,5 in DatabaseMain")});
    QCOMPARE(editor.value("Items", "/3/price"), QJsonValue(3));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Items", "/3/price"), QJsonValue(5));
    editor.click("MainWindow", "editUndo");
    QCOMPARE(editor.value("Items", "/3/price"), QJsonValue(3));
}

void tst_DatabaseMain::cancelDrops()
{
    SampleEditor editor;
    editor.openDatabase(6);
    editor.setNumber("DatabaseMain", "enemyHp", 99);
    editor.click("DatabaseMain", "cancel");
    QCOMPARE(editor.value("Enemies", "/1/hp"), QJsonValue(15));
    QVERIFY(!editor->project()->isModified());
}

void tst_DatabaseMain::applyKeepsAndStays()
{
    SampleEditor editor;
    editor.openDatabase(4);
    editor.setNumber("DatabaseMain", "weaponAttack", 9);
    editor.click("DatabaseMain", "apply");
    QCOMPARE(editor.value("Weapons", "/1/attack"), QJsonValue(9));
    QVERIFY(editor->openWindows().contains(str("DatabaseMain")));
    editor.setNumber("DatabaseMain", "weaponAttack", 11);
    editor.click("DatabaseMain", "cancel");
    QCOMPARE(editor.value("Weapons", "/1/attack"), QJsonValue(9));
}

void tst_DatabaseMain::aNameIsTyped()
{
    SampleEditor editor;
    editor.openDatabase(0);
    editor.clickRow("DatabaseMain", "actors", 1);
    editor.type("DatabaseMain", "actorName", str("Tom"));
    QCOMPARE(editor.texts("DatabaseMain", "actors").at(1), str("2: Tom"));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Actors", "/2/name"), QJsonValue(str("Tom")));
}

void tst_DatabaseMain::kindsAreRadioButtons()
{
    SampleEditor editor;
    editor.openDatabase(3);
    QVERIFY(editor.find<QRadioButton>("DatabaseMain", "itemRegular")->isChecked());
    editor.takeTold();
    editor.click("DatabaseMain", "itemKey");
    QCOMPARE(editor.takeTold(), QStringList{str("radioButton,RadioButton,1 in DatabaseMain")});
    editor.click("DatabaseMain", "itemConsumable");
    QCOMPARE(editor.takeTold(), QStringList{str("checked,itemConsumable,0 in DatabaseMain")});
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Items", "/1/keyItem"), QJsonValue(true));
    QCOMPARE(editor.value("Items", "/1/consumable"), QJsonValue(false));
}

void tst_DatabaseMain::entriesAreCopiedAndDeleted()
{
    SampleEditor editor;
    editor.openDatabase(5);
    editor.click("DatabaseMain", "armorsCopy");
    editor.clickRow("DatabaseMain", "armors", 3);
    editor.click("DatabaseMain", "armorsPaste");
    QTest::keyClick(editor.find<RowList>("DatabaseMain", "armors"), Qt::Key_Up);
    QTest::keyClick(editor.find<RowList>("DatabaseMain", "armors"), Qt::Key_Delete);
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Armors", "/4/name"), editor.value("Armors", "/1/name"));
    QCOMPARE(editor.value("Armors", "/4/id"), QJsonValue(4));
    QCOMPARE(editor.value("Armors", "/3/name"), QJsonValue(QString()));
    QCOMPARE(editor.value("Armors", "/3/id"), QJsonValue(3));
}

void tst_DatabaseMain::moreEntriesAreMade()
{
    SampleEditor editor;
    editor.openDatabase(3);
    editor.click("DatabaseMain", "itemsMaximum");
    QCOMPARE(editor.find<QSpinBox>("ChangeMaximum", "count")->value(), 6);
    editor.setNumber("ChangeMaximum", "count", 8);
    editor.click("ChangeMaximum", "ok");
    QCOMPARE(editor.texts("DatabaseMain", "items").size(), 8);
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Items", "").toArray().size(), 9);
    QCOMPARE(editor.value("Items", "/8/id"), QJsonValue(8));
    QCOMPARE(editor.value("Items", "/8/effects"), QJsonValue(QJsonArray()));
}

void tst_DatabaseMain::anEntryIsAdded_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("list");
    const QByteArrayList lists{"actors",  "classes", "skills", "items",      "weapons",  "armors",
                               "enemies", "troops",  "states", "animations", "tilesets", "commonEvents"};
    for (int tab = 0; tab < lists.size(); ++tab) {
        QTest::newRow(lists.at(tab).constData()) << tab << lists.at(tab);
    }
}

void tst_DatabaseMain::anEntryIsAdded()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, list);
    SampleEditor editor;
    editor.openDatabase(tab);
    const int before = int(editor.texts("DatabaseMain", list.constData()).size());
    editor.click("DatabaseMain", (list + "Add").constData());
    QCOMPARE(editor.texts("DatabaseMain", list.constData()).size(), before + 1);
    QCOMPARE(editor.find<RowList>("DatabaseMain", list.constData())->currentRow(), before);
    editor.click("DatabaseMain", "ok");
    QByteArray file = list;
    file[0] = char(std::toupper(file.at(0)));
    const QByteArray entry = '/' + QByteArray::number(before + 1);
    QCOMPARE(editor.value(file.constData(), (entry + "/id").constData()), QJsonValue(before + 1));
    QCOMPARE(editor.value(file.constData(), (entry + "/name").constData()), QJsonValue(QString()));
}

void tst_DatabaseMain::anAddedTroopHasAPage()
{
    SampleEditor editor;
    editor.openDatabase(7);
    editor.click("DatabaseMain", "troopsAdd");
    // Of nobody there is nothing to choose.
    QVERIFY(!editor.find<QWidget>("DatabaseMain", "memberEnemy")->isEnabled());
    QVERIFY(!editor.find<QWidget>("DatabaseMain", "memberX")->isEnabled());
    editor.click("DatabaseMain", "membersAdd");
    QVERIFY(editor.find<QWidget>("DatabaseMain", "memberEnemy")->isEnabled());
    editor.openRow("DatabaseMain", "troopCommands", 0);
    QCOMPARE(editor->openWindows().last(), str("EventCommandSelect"));
    editor->close(str("EventCommandSelect"));
    QVERIFY(editor.find<QWidget>("DatabaseMain", "troopSpan")->isEnabled());
    editor.click("DatabaseMain", "troopPagesDelete");
    QVERIFY(!editor.find<QWidget>("DatabaseMain", "troopSpan")->isEnabled());
}

void tst_DatabaseMain::aPictureIsChosen()
{
    SampleEditor editor;
    editor.openDatabase(6);
    editor.clickRow("DatabaseMain", "enemies", 1);
    editor.click("DatabaseMain", "enemyPicture");
    // The bat is among the animals.
    QCOMPARE(editor.find<QTabBar>("ImageSelector", "enemyTabs")->currentIndex(), 1);
    QCOMPARE(editor.find<RowList>("ImageSelector", "animals")->currentRow(), 0);
    editor.takeTold();
    editor.clickTab("ImageSelector", "enemyTabs", 0);
    QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,0 in ImageSelector")});
    editor.clickRow("ImageSelector", "monsters", 3);
    QCOMPARE(editor.takeTold(), QStringList{str("list,3, in ImageSelector")});
    editor.click("ImageSelector", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Enemies", "/2/image"), QJsonValue(str("ghost")));
}

void tst_DatabaseMain::entriesHaveReadableRows_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](int tab, const char *list, int number, const char *rows, const QStringList &texts) {
        QTest::newRow(rows) << tab << QByteArray(list) << number << QByteArray(rows) << texts;
    };
    row(1, "classes", 0, "learnings", {str("Level 1: #15"), str("Level 4: #131")});
    row(1, "classes", 1, "classTraits", {str("Defense: 120 %")});
    row(2, "skills", 3, "skillEffects", {str("Adds: #140")});
    row(3, "items", 0, "itemEffects", {str("HP: 30")});
    row(6, "enemies", 5, "dropItems", {str("#35: 1 in 1")});
    row(6, "enemies", 5, "actions", {str("#15 (priority 5)"), str("#150 (priority 3)")});
    row(6, "enemies", 5, "enemyTraits", {str("Resists: #111")});
    row(7, "troops", 5, "members", {str("1: #121"), str("2: #143"), str("3: #121")});
    row(8, "states", 1, "stateTraits", {str("HP each turn: -3")});
}

void tst_DatabaseMain::entriesHaveReadableRows()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, list);
    QFETCH(int, row);
    QFETCH(QByteArray, rows);
    QFETCH(QStringList, texts);
    SampleEditor editor;
    editor.openDatabase(tab);
    editor.clickRow("DatabaseMain", list.constData(), row);
    QCOMPARE(editor.texts("DatabaseMain", rows.constData()), texts);
}

void tst_DatabaseMain::aTileSetLooksLikeItsPicture()
{
    SampleEditor editor;
    editor.clickRow("MapEditTreeBox", "maps", 0);
    QCOMPARE(editor.shownMap()->tileSet, 0);
    editor.openDatabase(10);
    editor.choose("DatabaseMain", "tilesetImage", 2);
    editor.type("DatabaseMain", "tilesetName", str("Snow"));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Tilesets", "/1/image"), QJsonValue(str("winter")));
    QCOMPARE(editor.shownMap()->tileSet, 2);
    QCOMPARE(editor.rows("tileSets").constFirst().text, str("Snow"));
}

void tst_DatabaseMain::theGameHasItsParty()
{
    SampleEditor editor;
    editor.openDatabase(12);
    editor.click("DatabaseMain", "partyDelete");
    QVERIFY(!editor.find<QWidget>("DatabaseMain", "partyMember")->isEnabled());
    editor.click("DatabaseMain", "partyAdd");
    QVERIFY(editor.find<QWidget>("DatabaseMain", "partyMember")->isEnabled());
    editor.click("DatabaseMain", "partyAdd");
    editor.choose("DatabaseMain", "partyMember", 2);
    QCOMPARE(editor.texts("DatabaseMain", "party"), QStringList({str("#1"), str("#100")}));
    editor.click("DatabaseMain", "partyUp");
    editor.click("DatabaseMain", "showTitle");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("System", "/partyMembers"), QJsonValue(QJsonArray({3, 1})));
    QCOMPARE(editor.value("System", "/titleScreen/showTitle"), QJsonValue(true));
    QCOMPARE(editor.value("System", "/terms"), QJsonValue(QJsonValue::Null));
}

void tst_DatabaseMain::aNewActorCanGainLevels()
{
    SampleEditor editor;
    editor.openDatabase(0);
    editor.click("DatabaseMain", "actorsAdd");
    QCOMPARE(editor.find<QSpinBox>("DatabaseMain", "actorMaxLevel")->value(), 50);
    QVERIFY(!editor.find<QComboBox>("DatabaseMain", "actorClass")->currentText().isEmpty());
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Actors", "/4/id"), QJsonValue(4));
    QCOMPARE(editor.value("Actors", "/4/classId"), QJsonValue(1));
}

void tst_DatabaseMain::musicIsChosenWithItsVolume()
{
    SampleEditor editor;
    editor.openDatabase(12);
    editor.click("DatabaseMain", "battleMusicChoose");
    QCOMPARE(editor.find<RowList>("AudioSelector", "music")->currentItem()->text(), str("Battle"));
    QVERIFY(!editor.isThere("AudioSelector", "sounds"));
    QCOMPARE(editor.find<QSpinBox>("AudioSelector", "pitch")->value(), 100);
    editor.clickRow("AudioSelector", "music", 9);
    editor.takeTold();
    editor.setNumber("AudioSelector", "volume", 35);
    QCOMPARE(editor.takeTold(), QStringList{str("spinBox,=,35 % in AudioSelector")});
    editor.click("AudioSelector", "ok");
    editor.click("DatabaseMain", "ok");
    // What was not touched is not made.
    QCOMPARE(editor.value("System", "/battleMusic"),
             QJsonValue(QJsonObject{{str("file"), str("boss")}, {str("volume"), 35}}));
}

void tst_DatabaseMain::aTroopHasPagesOfCommands()
{
    SampleEditor editor;
    editor.openDatabase(7);
    editor.clickRow("DatabaseMain", "troops", 5);
    QCOMPARE(editor.find<QTabBar>("DatabaseMain", "troopPages")->count(), 2);
    QCOMPARE(editor.texts("DatabaseMain", "troopCommands").size(), 3);
    editor.takeTold();
    editor.clickTab("DatabaseMain", "troopPages", 1);
    QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,1 in DatabaseMain")});
    QCOMPARE(editor.texts("DatabaseMain", "troopCommands").size(), 2);
    editor.click("DatabaseMain", "troopPagesAdd");
    QCOMPARE(editor.find<QTabBar>("DatabaseMain", "troopPages")->tabText(2), str("3"));
    editor.clickRow("DatabaseMain", "troopCommands", 0);
    editor.takeTold();
    editor.openRow("DatabaseMain", "troopCommands", 0);
    QVERIFY(editor.takeTold().contains(str("windowState,EventCommandSelect,open in EventCommandSelect")));
    editor->close(str("EventCommandSelect"));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Troops", "/6/pages").toArray().size(), 3);
    QCOMPARE(editor.value("Troops", "/6/pages/2/list").toArray().size(), 1);
}

void tst_DatabaseMain::aMemberOfATroopMayAppearLater()
{
    SampleEditor editor;
    editor.openDatabase(7);
    editor.clickRow("DatabaseMain", "troops", 5);
    editor.clickRow("DatabaseMain", "members", 2);
    editor.takeTold();
    editor.click("DatabaseMain", "memberHidden");
    QCOMPARE(editor.takeTold(), QStringList{str("checked,memberHidden,1 in DatabaseMain")});
    editor.click("DatabaseMain", "ok");
    QVERIFY(editor.value("Troops", "/6/members/0/hidden").isUndefined());
    QCOMPARE(editor.value("Troops", "/6/members/2/hidden"), QJsonValue(true));
}

void tst_DatabaseMain::aCommonEventHasCommands()
{
    SampleEditor editor;
    editor.openDatabase(11);
    editor.clickRow("DatabaseMain", "commonEvents", 1);
    // A message with its line in one row, a wait, and the end.
    QCOMPARE(editor.texts("DatabaseMain", "commonEventCommands").size(), 3);
    editor.clickRow("DatabaseMain", "commonEventCommands", 1);
    QTest::keyClick(editor.find<RowList>("DatabaseMain", "commonEventCommands"), Qt::Key_Delete);
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("CommonEvents", "/2/list").toArray().size(), 3);
}

void tst_DatabaseMain::theGameStartsAtAPlace()
{
    SampleEditor editor;
    editor.openDatabase(12);
    editor.click("DatabaseMain", "startChoose");
    QVERIFY(editor->openWindows().contains(str("Location")));
    editor.setNumber("Location", "x", 7);
    editor.click("Location", "ok");
    editor.click("DatabaseMain", "ok");
    QVERIFY(editor.takeTold().contains(str("action,database,close in DatabaseMain")));
    QCOMPARE(editor.value("System", "/startX"), QJsonValue(7));
    QCOMPARE(editor.value("System", "/startY"), QJsonValue(11));
    QCOMPARE(editor.value("System", "/startMapId"), QJsonValue(1));
}

void tst_DatabaseMain::lookingChangesNothing()
{
    SampleEditor editor;
    editor.click("MainWindow", "toolDatabase");
    for (int tab = 0; tab < 13; ++tab) {
        editor.clickTab("DatabaseMain", "tabs", tab);
        const auto lists = editor->window(str("DatabaseMain"))->findChildren<RowList *>();
        for (RowList *list : lists) {
            for (int row = 0; list->isVisible() && row < list->count(); ++row) {
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                                  list->visualItemRect(list->item(row)).center());
            }
        }
    }
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor->project()->files().changedFiles(), QStringList());
}

QTEST_MAIN(tst_DatabaseMain)
#include "tst_DatabaseMain.moc"
