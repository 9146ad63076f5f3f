#include "SampleEditor.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson('[' + QByteArray(text) + ']').array().at(0);
}

} // namespace

/// The windows for one entry of a list, and those that choose something, opened from where a person opens
/// them.
class tst_EntryWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTraitIsAdded();
    void anotherKindOfTraitStartsAnew();
    void anEffectIsEdited();
    void cancelAddsNothing_data();
    void cancelAddsNothing();
    void anItemIsDropped();
    void anActionHasACondition();
    void aSkillIsLearned();
    void battleConditionsComeAndGo();
    void theTrialBattleHasAParty();
    void theTitleScreenHasCommands();
    void anEncounterIsAdded();
    void aSwitchIsChosenAndNamed();
    void namesAreGivenWithoutAChoice();
    void aMapHasItsMood();
};

void tst_EntryWindows::aTraitIsAdded()
{
    SampleEditor editor;
    editor.openDatabase(4);
    editor.takeTold();
    editor.click("DatabaseMain", "weaponTraitsAdd");
    QCOMPARE(editor.takeTold(), opened("Traits"));
    editor.clickTab("Traits", "tabs", 1);
    QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,1 in Traits")});
    QVERIFY(editor.isThere("Traits", "state") && !editor.isThere("Traits", "percent"));
    editor.choose("Traits", "stateTrait", 1);
    editor.choose("Traits", "state", 3);
    QCOMPARE(editor.takeTold().constLast(), str("comboBox,state,3 in Traits"));
    editor.click("Traits", "ok");
    QCOMPARE(editor.texts("DatabaseMain", "weaponTraits"), QStringList{str("Attacks cause: #156")});
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Weapons", "/1/traits"), json(R"([{"attackState": 4}])"));
    editor.run("edit.undo");
    QCOMPARE(editor.value("Weapons", "/1/traits"), json("[]"));
}

void tst_EntryWindows::anotherKindOfTraitStartsAnew()
{
    SampleEditor editor;
    editor.openDatabase(1);
    editor.clickRow("DatabaseMain", "classes", 1);
    editor.openRow("DatabaseMain", "classTraits", 0);
    QCOMPARE(editor.find<QSpinBox>("Traits", "percent")->text(), str("120 %"));
    // 120 is no skill.
    editor.clickTab("Traits", "tabs", 2);
    QCOMPARE(editor.find<QComboBox>("Traits", "skill")->currentIndex(), 0);
    editor.click("Traits", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Classes", "/2/traits"), json(R"([{"addSkill": 1}])"));
}

void tst_EntryWindows::anEffectIsEdited()
{
    SampleEditor editor;
    editor.openDatabase(3);
    editor.clickRow("DatabaseMain", "itemEffects", 0);
    QTest::keyClick(editor.find<RowList>("DatabaseMain", "itemEffects"), Qt::Key_Return);
    editor.takeTold();
    editor.click("Effects", "mp");
    QCOMPARE(editor.takeTold(), QStringList{str("radioButton,RadioButton,1 in Effects")});
    QCOMPARE(editor.find<QSpinBox>("Effects", "points")->value(), 10);
    editor.setNumber("Effects", "points", 25);
    editor.click("Effects", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Items", "/1/effects"), json(R"([{"mp": 25}])"));
}

void tst_EntryWindows::cancelAddsNothing_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("window");
    const auto row = [](int tab, const char *button, const char *window) {
        QTest::newRow(window) << tab << QByteArray(button) << QByteArray(window);
    };
    row(1, "learningsAdd", "SkillsToLearn");
    row(2, "skillEffectsAdd", "Effects");
    row(5, "armorTraitsAdd", "Traits");
    row(6, "dropItemsAdd", "DropItem");
    row(6, "actionsAdd", "Action");
}

void tst_EntryWindows::cancelAddsNothing()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, window);
    SampleEditor editor;
    editor.openDatabase(tab);
    editor.click("DatabaseMain", button.constData());
    editor.click(window.constData(), "cancel");
    editor.click("DatabaseMain", "ok");
    QVERIFY(!editor->project()->isModified());
}

void tst_EntryWindows::anItemIsDropped()
{
    SampleEditor editor;
    editor.openDatabase(6);
    editor.click("DatabaseMain", "dropItemsAdd");
    editor.takeTold();
    editor.clickRow("DropItem", "items", 4);
    editor.choose("DropItem", "often", 3);
    QCOMPARE(editor.find<QSpinBox>("DropItem", "chance")->value(), 8);
    editor.setNumber("DropItem", "chance", 9);
    const QStringList told = editor.takeTold();
    QVERIFY(told.contains(str("list,4, in DropItem")));
    QVERIFY(told.contains(str("comboBox,often,3 in DropItem")));
    QVERIFY(told.contains(str("spinBox,=,9 in DropItem")));
    editor.click("DropItem", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Enemies", "/1/dropItems/1"), json(R"({"itemId": 5, "denominator": 9})"));
}

void tst_EntryWindows::anActionHasACondition()
{
    SampleEditor editor;
    editor.openDatabase(6);
    editor.clickRow("DatabaseMain", "enemies", 5);
    editor.openRow("DatabaseMain", "actions", 1);
    QVERIFY(!editor.isThere("Action", "hp"));
    editor.choose("Action", "condition", 2);
    QVERIFY(editor.isThere("Action", "hp"));
    editor.setNumber("Action", "hp", 30);
    editor.takeTold();
    editor.click("Action", "onlyOnce");
    QCOMPARE(editor.takeTold(), QStringList{str("checked,onlyOnce,1 in Action")});
    editor.click("Action", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(
        editor.value("Enemies", "/6/actions/1"),
        json(R"({"skillId": 6, "rating": 3, "conditionType": 2, "conditionValue": 30, "onlyOnce": true})"));
}

void tst_EntryWindows::aSkillIsLearned()
{
    SampleEditor editor;
    editor.openDatabase(1);
    editor.clickRow("DatabaseMain", "learnings", 1);
    editor.click("DatabaseMain", "learningsAdd");
    editor.setNumber("SkillsToLearn", "level", 12);
    editor.clickRow("SkillsToLearn", "skills", 3);
    editor.click("SkillsToLearn", "ok");
    QCOMPARE(editor.texts("DatabaseMain", "learnings").constLast(), str("Level 12: #134"));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Classes", "/1/learnings/2"), json(R"({"level": 12, "skillId": 4})"));
}

void tst_EntryWindows::battleConditionsComeAndGo()
{
    SampleEditor editor;
    editor.openDatabase(7);
    editor.clickRow("DatabaseMain", "troops", 5);
    editor.click("DatabaseMain", "troopConditions");
    QCOMPARE(editor.find<QComboBox>("BattleConditions", "enemy")->currentText(), str("2: #143"));
    QVERIFY(!editor.find<QWidget>("BattleConditions", "turn")->isEnabled());
    editor.click("BattleConditions", "turnOn");
    editor.setNumber("BattleConditions", "turn", 7);
    editor.click("BattleConditions", "enemyOn");
    editor.click("BattleConditions", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("Troops", "/6/pages/0/conditions"), json(R"({"enemyIndex": 1, "turn": 7})"));
    QCOMPARE(editor.value("Troops", "/6/pages/1/conditions"), json(R"({"turn": 3})"));
}

void tst_EntryWindows::theTrialBattleHasAParty()
{
    SampleEditor editor;
    editor.openDatabase(7);
    editor.click("DatabaseMain", "battleTest");
    // Of nobody there is nothing to choose.
    QVERIFY(!editor.find<QWidget>("BattleTest", "actor")->isEnabled());
    QVERIFY(!editor.find<QWidget>("BattleTest", "level")->isEnabled());
    editor.click("BattleTest", "add");
    editor.click("BattleTest", "add");
    QVERIFY(editor.find<QWidget>("BattleTest", "actor")->isEnabled());
    editor.choose("BattleTest", "actor", 1);
    editor.setNumber("BattleTest", "level", 6);
    editor.choose("BattleTest", "weapon", 3);
    QCOMPARE(editor.texts("BattleTest", "battlers"), QStringList({str("#1, level 1"), str("#54, level 6")}));
    editor.click("BattleTest", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(
        editor.value("System", "/testBattlers"),
        json(
            R"([{"actorId": 1, "level": 1, "equips": [0, 0]}, {"actorId": 2, "level": 6, "equips": [3, 0]}])"));
}

void tst_EntryWindows::theTitleScreenHasCommands()
{
    SampleEditor editor;
    editor.openDatabase(12);
    editor.click("DatabaseMain", "titleCommands");
    QVERIFY(!editor.find<QWidget>("TitleCommandWindow", "command")->isEnabled());
    editor.click("TitleCommandWindow", "add");
    editor.click("TitleCommandWindow", "add");
    QVERIFY(editor.find<QWidget>("TitleCommandWindow", "command")->isEnabled());
    editor.choose("TitleCommandWindow", "command", 4);
    editor.type("TitleCommandWindow", "text", str("Leave"));
    editor.click("TitleCommandWindow", "up");
    QCOMPARE(editor.texts("TitleCommandWindow", "commands"),
             QStringList({str("Quit  Leave"), str("New game  ")}));
    editor.click("TitleCommandWindow", "ok");
    editor.click("DatabaseMain", "titlePicture");
    editor.openRow("ImageSelector", "titles", 2);
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("System", "/titleScreen"), json(R"({"background": "lamp", "showTitle": false,
                      "commands": [{"command": "quit", "text": "Leave"}, {"command": "newGame", "text": ""}]})"));
}

void tst_EntryWindows::anEncounterIsAdded()
{
    SampleEditor editor;
    editor.clickRow("MapEditTreeBox", "maps", 0);
    editor->open(str("MapProperties"));
    editor.click("MapProperties", "encountersAdd");
    editor.clickRow("Encounter", "troops", 2);
    editor.setNumber("Encounter", "weight", 8);
    editor.click("Encounter", "ok");
    QCOMPARE(editor.texts("MapProperties", "encounters"), QStringList{str("#125 (8)")});
    editor.click("MapProperties", "ok");
    QCOMPARE(editor.value("Map001", "/encounterList"), json(R"([{"troopId": 3, "weight": 8}])"));
}

void tst_EntryWindows::aSwitchIsChosenAndNamed()
{
    SampleEditor editor;
    editor.openDatabase(11);
    editor.click("DatabaseMain", "trigger1");
    editor.click("DatabaseMain", "triggerSwitchChoose");
    QVERIFY(editor.isThere("VariableSelector", "switches") && !editor.isThere("VariableSelector", "tabs"));
    editor.clickRow("VariableSelector", "switches", 2);
    editor.type("VariableSelector", "switchesName", str("Help is asked for"));
    QCOMPARE(editor.texts("VariableSelector", "switches").at(2), str("3: Help is asked for"));
    editor.click("VariableSelector", "ok");
    QCOMPARE(editor.find<QComboBox>("DatabaseMain", "triggerSwitch")->currentText(),
             str("3: Help is asked for"));
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("CommonEvents", "/1/switchId"), QJsonValue(3));
    QCOMPARE(editor.value("CommonEvents", "/1/trigger"), QJsonValue(1));
    QCOMPARE(editor.value("System", "/switches/3"), QJsonValue(str("Help is asked for")));
}

void tst_EntryWindows::namesAreGivenWithoutAChoice()
{
    SampleEditor editor;
    editor.openDatabase(12);
    editor.click("DatabaseMain", "variables");
    editor.clickTab("VariableSelector", "tabs", 1);
    editor.type("VariableSelector", "variablesNewName", str("Levers"));
    editor.click("VariableSelector", "variablesToNameMaximum");
    editor.setNumber("ChangeMaximum", "count", 3);
    editor.click("ChangeMaximum", "ok");
    editor.click("VariableSelector", "ok");
    editor.click("DatabaseMain", "ok");
    QCOMPARE(editor.value("System", "/variables"), json(R"([null, "Levers", "", ""])"));
}

void tst_EntryWindows::aMapHasItsMood()
{
    SampleEditor editor;
    editor.clickRow("MapEditTreeBox", "maps", 1);
    editor->open(str("MapProperties"));
    editor.click("MapProperties", "backdrop");
    editor.clickRow("ImageSelector", "backdrops", 3);
    editor.click("ImageSelector", "ok");
    editor.click("MapProperties", "sound");
    editor.setNumber("AudioSelector", "pitch", 80);
    editor.openRow("AudioSelector", "music", 2);
    editor.click("MapProperties", "ok");
    const QByteArray map = editor->project()->sources().number(str("maps"), editor->project()->files()) == 2
                               ? "Map002"
                               : "Map003";
    QCOMPARE(editor.value(map.constData(), "/backdrop"), QJsonValue(str("forest")));
    QCOMPARE(editor.value(map.constData(), "/music/file"), QJsonValue(str("village")));
    QCOMPARE(editor.value(map.constData(), "/music/pitch"), QJsonValue(80));
}

QTEST_MAIN(tst_EntryWindows)
#include "tst_EntryWindows.moc"
