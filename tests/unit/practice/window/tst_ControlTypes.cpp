#include "ControlBench.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

/// What each type of control reads of its description, and how a description alone binds it to data files.
class tst_ControlTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeIsMade_data();
    void everyTypeIsMade();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void aLineOfTextIsThatOfTheSelectedEntry();
    void numbersAndStatesAreThoseOfTheFile();
    void aListShowsADataFile();
    void aListWithAFieldChoosesANumber();
    void hiddenControlsWaitUntilTheyAreSeen();
    void typingIsOneStep();
    void whatAClosedWindowSaysIsNotMeant();
};

void tst_ControlTypes::everyTypeIsMade_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::newRow("button") << QByteArray(R"("label": TEXT, "default": true)");
    QTest::newRow("checkBox") << QByteArray(R"("label": TEXT, "field": "map.showName")");
    QTest::newRow("comboBox") << QByteArray(R"("field": "data/Map{maps}/tilesetId", "source": "tileSets")");
    QTest::newRow("curve") << QByteArray(R"("field": "data/Classes/{classes}/growth/hp")");
    QTest::newRow("entry") << QByteArray(R"("label": TEXT, "click": {"run": "map.delete"})");
    QTest::newRow("label") << QByteArray(R"("label": TEXT)");
    QTest::newRow("lineEdit") << QByteArray(R"("field": "newProject.name")");
    QTest::newRow("list") << QByteArray(R"("source": "maps", "rowHeight": 20)");
    QTest::newRow("map") << QByteArray(R"("target": "Map")");
    QTest::newRow("mapCell") << QByteArray(
        R"("target": "Place", "map": "place/map", "x": "place/x", "y": "place/y")");
    QTest::newRow("picture") << QByteArray(R"("picture": "sampleMap", "source": "sampleMaps")");
    QTest::newRow("progress") << QByteArray(R"("click": {"close": true})");
    QTest::newRow("radioButton") << QByteArray(
        R"("label": TEXT, "field": "data/Items/{items}/scope", "value": 7, "index": 2)");
    QTest::newRow("spinBox") << QByteArray(R"("field": "data/Map{maps}/width", "range": [1, 9])");
    QTest::newRow("tabs") << QByteArray(R"("source": "tileTab", "tabs": [TEXT, TEXT], "tabWidth": 40)");
    QTest::newRow("textEdit") << QByteArray(R"("field": "data/Map{maps}/note")");
    QTest::newRow("toolButton") << QByteArray(
        R"("label": TEXT, "icon": "save", "needs": "project", "action": "x", "actionState": "")");
}

void tst_ControlTypes::everyTypeIsMade()
{
    QFETCH(QByteArray, own);
    Bench bench;
    const QByteArray type = QTest::currentDataTag();
    QVERIFY(controlTypes().contains(QString::fromLatin1(type)));
    const QWidget *control = bench.make("\"type\": \"" + type + "\", " + own);
    QVERIFY2(control != nullptr, qPrintable(bench.errors.join(QLatin1Char('\n'))));
    QCOMPARE(control->parentWidget(), &bench.window);
    // And each has a row above.
    QCOMPARE(controlTypes().size(), 17);
}

void tst_ControlTypes::tellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *control, const char *error) {
        QTest::newRow(name) << QByteArray(control) << str(error);
    };
    row("unknown type", R"("type": "buton")",
        "type: \"buton\" is unknown; use one of: button, checkBox, comboBox, curve, entry, label, lineEdit, "
        "list, "
        "map, mapCell, picture, progress, radioButton, spinBox, tabs, textEdit, toolButton");
    row("misspelt field", R"("type": "button", "label": TEXT, "defualt": true)",
        "defualt: is not a field that is known here; remove it or correct its name");
    row("a field of another type", R"("type": "button", "label": TEXT, "tabWidth": 9)",
        "tabWidth: is no field of a control of this type; remove it or correct its name");
    row("text for a flag", R"("type": "button", "label": TEXT, "default": "yes")",
        "default: must be true or false");
    row("no label", R"("type": "button")", "label: is missing; controls of this type need it");
    row("field", R"("type": "lineEdit", "field": "map.age")", "field: \"map.age\" is unknown; use ");
    row("no field", R"("type": "lineEdit")", "field: must be a text");
    row("path", R"("type": "lineEdit", "field": "data/Items/{actors}/name")",
        "field: \"{actors}\" is neither the list before it, \"items\", nor one of: battleEnemies, "
        "battleEnemiesOrAll, choice.number, "
        "command/entries, ");
    row("source", R"("type": "list", "rowHeight": 9, "source": "worlds")",
        "source: \"worlds\" is unknown; use the path of a list in a data file, such as data/Items, or one "
        "of: "
        "battleEnemies, battleEnemiesOrAll, choice.number, command/entries, ");
    row("no height", R"("type": "list", "source": "maps")",
        "rowHeight: is missing; controls of this type need it");
    row("range", R"("type": "spinBox", "field": "newProject.name", "range": [1])",
        "range: must be a list of 2 whole numbers");
    row("picture", R"("type": "picture", "picture": "faces", "source": "maps")",
        "picture: \"faces\" is unknown; use one of: backdrop, character, enemy, face, picture, sampleMap, "
        "tileSet, "
        "tileSetImage, title, troop");
    row("icon", R"("type": "toolButton", "icon": "axe", "action": "x", "actionState": "", "label": TEXT)",
        "icon: \"axe\" is unknown; use one of: ");
    row("need",
        R"("type": "toolButton", "icon": "save", "needs": "luck", "action": "x", "actionState": "", "label": TEXT)",
        "needs: \"luck\" is unknown; use one of: project");
    row("no action", R"("type": "toolButton", "icon": "save", "label": TEXT)",
        "action: is missing; controls of this type need it");
    row("choices", R"("type": "comboBox", "field": "newProject.name", "choices": "colours")",
        "choices: there is no set of choices \"colours\"; add choices/colours.json, or use one of: kinds");
    row("choices that are none", R"("type": "comboBox", "field": "newProject.name", "choices": [])",
        "choices: must be a list of texts in the three languages");
    row("text of a row",
        R"("type": "list", "source": "data/Items", "rowHeight": 9, "rowText": "{kind:colours}")",
        "rowText: there is no set of choices \"colours\"; ");
    row("choices for nothing", R"("type": "list", "choices": "kinds", "rowHeight": 9)",
        "field: must be a text");
    row("none in a list", R"("type": "list", "source": "data/Items", "rowHeight": 9, "none": TEXT)",
        "none: is not a field that is known here; remove it or correct its name");
    row("a value of nothing",
        R"("type": "radioButton", "label": TEXT, "field": "newProject.name", "index": 1)",
        "value: is missing; write the field's value that the button stands for");
    row("a command's argument", R"("type": "button", "label": TEXT, "click": {"run": "list.add"})",
        "click: \"list.add\" needs what it is for, behind a blank, as in \"list.add data/Items\"");
    row("a command's path",
        R"("type": "button", "label": TEXT, "click": {"run": "list.add data/Items/{actors}"})",
        "click: \"{actors}\" is neither the list before it, \"items\", nor one of: ");
    row("what shows it", R"("type": "button", "label": TEXT, "shownWhen": {"source": "worlds", "rows": [1]})",
        "shownWhen: \"worlds\" is unknown; use the path of a list");
    row("what enables it", R"("type": "button", "label": TEXT, "enabledWhen": {"field": "age", "is": [1]})",
        "enabledWhen: \"age\" is unknown; use a path in the data files");
    row("a row of no tabs", R"("type": "tabs", "source": "tileTab", "tabWidth": 9, "tabs": [])",
        "tabs: must be a list of texts in the three languages");
}

void tst_ControlTypes::tellsWhatIsWrong()
{
    QFETCH(QByteArray, control);
    QFETCH(QString, error);
    Bench bench;
    QVERIFY(bench.make(control) == nullptr);
    QCOMPARE(bench.errors.size(), 1);
    QVERIFY2(bench.errors.first().startsWith(error), qPrintable(bench.errors.first()));
}

void tst_ControlTypes::aLineOfTextIsThatOfTheSelectedEntry()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Items.json"),
          str(R"([null, {"name": "Herb", "price": 8}, {"name": "Bread", "price": 3}])")}}));
    auto *edit =
        qobject_cast<QLineEdit *>(bench.make(R"("type": "lineEdit", "field": "data/Items/{items}/name")"));
    QVERIFY(edit != nullptr);
    bench.window.show();
    QCOMPARE(edit->text(), str("Herb"));
    bench.window.setCurrentRow(str("data/Items"), 1);
    QCOMPARE(edit->text(), str("Bread"));
    QTest::keyClicks(edit, str("s"));
    QCOMPARE(bench.value("data/Items.json", "/2/name").toString(), str("Breads"));
    QCOMPARE(bench.value("data/Items.json", "/1/name").toString(), str("Herb"));
    bench.window.run(str("edit.undo"));
    QCOMPARE(edit->text(), str("Bread"));
}

void tst_ControlTypes::numbersAndStatesAreThoseOfTheFile()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Items.json"), str(R"([null, {"price": 8, "keyItem": false}])")}}));
    auto *price = qobject_cast<QSpinBox *>(bench.make(
        R"("type": "spinBox", "field": "data/Items/{items}/price", "range": [0, 99], "suffix": " G")"));
    auto *key = qobject_cast<QCheckBox *>(
        bench.make(R"("type": "checkBox", "label": TEXT, "field": "data/Items/{items}/keyItem")"));
    auto *label =
        qobject_cast<QLabel *>(bench.make(R"("type": "label", "field": "data/Items/{items}/price")"));
    QVERIFY(price != nullptr && key != nullptr && label != nullptr);
    bench.window.show();
    QCOMPARE(price->text(), str("8 G"));
    QCOMPARE(key->text(), str("c"));
    QVERIFY(!key->isChecked());
    QTest::keyClick(price, Qt::Key_Up);
    key->click();
    QCOMPARE(bench.project.files().file(str("data/Items.json")),
             QJsonValue(QJsonDocument::fromJson(R"([null, {"price": 9, "keyItem": true}])").array()));
    QCOMPARE(label->text(), str("9"));
}

void tst_ControlTypes::aListShowsADataFile()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Items.json"), str(R"([null, {"name": "Herb"}, {"name": "Bread"}])")}}));
    auto *list =
        qobject_cast<RowList *>(bench.make(R"("type": "list", "source": "data/Items", "rowHeight": 20)"));
    QVERIFY(list != nullptr);
    bench.window.show();
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->currentRow(), 0);
    list->setCurrentRow(1);
    QCOMPARE(bench.window.currentRow(str("data/Items")), 1);
    bench.window.setField(str("data/Items/{items}/name"), str("Loaf"));
    QCOMPARE(list->item(1)->text(), str("Loaf"));
}

void tst_ControlTypes::aListWithAFieldChoosesANumber()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Classes.json"), str(R"([null, {"name": "Hero"}, {"name": "Mage"}])")},
         {str("data/Actors.json"), str(R"([null, {"name": "Mila", "classId": 2}])")}}));
    auto *list = qobject_cast<RowList *>(bench.make(
        R"("type": "list", "source": "data/Classes", "field": "data/Actors/{actors}/classId", "rowHeight": 20)"));
    QVERIFY(list != nullptr);
    bench.window.show();
    QCOMPARE(list->currentRow(), 1);
    list->setCurrentRow(0);
    QCOMPARE(bench.value("data/Actors.json", "/1/classId").toInt(), 1);
    // The list of classes elsewhere has a row of its own.
    QCOMPARE(bench.window.layer().selected(str("data/Classes")), -1);
}

void tst_ControlTypes::hiddenControlsWaitUntilTheyAreSeen()
{
    Bench bench;
    auto *edit =
        qobject_cast<QLineEdit *>(bench.make(R"("type": "lineEdit", "field": "data/MapInfos/{maps}/name")"));
    QVERIFY(edit != nullptr);
    QSignalSpy refreshed(&bench.window, &EditorWindow::refreshed);
    bench.project.files().set(str("data/MapInfos.json"), str("/1/name"), str("Town"));
    QCOMPARE(refreshed.size(), 0);
    QCOMPARE(edit->text(), str("Village"));
    bench.window.show();
    QCOMPARE(edit->text(), str("Town"));
}

void tst_ControlTypes::typingIsOneStep()
{
    Bench bench;
    auto *edit =
        qobject_cast<QLineEdit *>(bench.make(R"("type": "lineEdit", "field": "data/MapInfos/{maps}/name")"));
    QVERIFY(edit != nullptr);
    bench.window.show();
    QTest::keyClicks(edit, str(" by the sea"));
    QCOMPARE(bench.value("data/MapInfos.json", "/1/name").toString(), str("Village by the sea"));
    bench.window.run(str("edit.undo"));
    QCOMPARE(edit->text(), str("Village"));
}

void tst_ControlTypes::whatAClosedWindowSaysIsNotMeant()
{
    Bench bench;
    auto *width = qobject_cast<QSpinBox *>(
        bench.make(R"("type": "spinBox", "field": "data/Map{maps}/width", "range": [8, 60])"));
    QVERIFY(width != nullptr);
    bench.window.show();
    bench.window.hide();
    width->setValue(9);
    QVERIFY(!bench.project.isModified());
    bench.window.setCurrentRow(str("maps"), 2);
    QCOMPARE(bench.window.currentRow(str("maps")), 0);
}

QTEST_MAIN(tst_ControlTypes)
#include "tst_ControlTypes.moc"
