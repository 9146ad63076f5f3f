#include "ControlBench.h"
#include "window/control/TabRow.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

/// When a control is there, when it is of use, and through which control something came about.
class tst_ControlStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsAreThereOnTheirTab();
    void controlsAreThereForAValue();
    void whatTakesTurnsOnAFieldKeepsItsOwnValue();
    void allRequirementsMustHold();
    void controlsAreGreyForAValue();
    void aCellIsOneOfItsMap();
    void aCellBehindTheMapIsKept();
    void whatBelongsToNoEntryIsGrey();
    void buttonsAreGreyWhileTheirCommandsCannotRun();
    void severalCommandsRunInTurn();
    void entriesAreAddedInTheWindowThatOpens();
    void aNumberBeyondTheRangeBecomesTheNearest_data();
    void aNumberBeyondTheRangeBecomesTheNearest();
    void controlsTellThroughWhichTheyAct();
    void windowsTellThroughWhichControlTheyOpenAndClose();
    void everyControlIsAStopOfTheTabulatorKey();
    void whatIsTypedComesBeforeAPicture();
};

void tst_ControlStates::controlsAreThereOnTheirTab()
{
    Bench bench;
    auto *tabs =
        bench.make<TabRow>(R"("type": "tabs", "source": "boxTab", "tabs": [TEXT, TEXT], "tabWidth": 40)");
    auto *first = bench.make<QPushButton>(
        R"("type": "button", "label": TEXT, "shownWhen": {"source": "boxTab", "rows": [0]})");
    auto *second = bench.make<QPushButton>(
        R"("type": "button", "label": TEXT, "shownWhen": {"source": "boxTab", "rows": [1]})");
    bench.window.show();
    QVERIFY(first->isVisible() && !second->isVisible());
    tabs->setCurrentIndex(1);
    QVERIFY(!first->isVisible() && second->isVisible());
}

void tst_ControlStates::controlsAreThereForAValue()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"effects": [{"hp": 30}]}, {"effects": []}])"));
    auto *spin =
        bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/effects/{effects}/@value",
        "range": [0, 99],
        "shownWhen": {"field": "data/Items/{items}/effects/{effects}/@name", "is": ["hp", "mp"]})");
    bench.window.show();
    QVERIFY(spin->isVisible());
    const QString name = str("data/Items/{items}/effects/{effects}/@name");
    bench.window.setField(name, str("addState"));
    QVERIFY(!spin->isVisible());
    bench.window.setField(name, str("mp"));
    QVERIFY(spin->isVisible());
    bench.window.setCurrentRow(str("data/Items"), 1);
    QVERIFY(!spin->isVisible());
}

void tst_ControlStates::whatTakesTurnsOnAFieldKeepsItsOwnValue()
{
    Bench bench;
    QVERIFY(bench.setItemsAndMaps(R"([null, {"kind": 0, "value": 7}, {"kind": 1, "value": 2}])"));
    auto *number = bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/value",
        "range": [0, 99], "shownWhen": {"field": "data/Items/{items}/kind", "is": [0]})");
    auto *box = bench.make<QComboBox>(R"("type": "comboBox", "field": "data/Items/{items}/value",
        "source": "data/MapInfos", "shownWhen": {"field": "data/Items/{items}/kind", "is": [1]})");
    auto *percent =
        bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/value", "range": [0, 100],
        "missing": 100, "shownWhen": {"field": "data/Items/{items}/kind", "is": [2]})");
    const auto choose = [&bench](int kind) {
        bench.window.setField(str("data/Items/{items}/kind"), kind);
    };
    const auto value = [&bench](const char *pointer) {
        return bench.value("data/Items.json", pointer).toInt();
    };
    bench.window.show();
    QCOMPARE(number->value(), 7);
    // It means something else there, and begins with the first one,
    choose(1);
    QCOMPARE(box->currentText(), str("a"));
    QCOMPARE(value("/1/value"), 1);
    box->setCurrentIndex(1);
    Q_EMIT box->activated(1);
    // or with what is usual;
    choose(2);
    QCOMPARE(percent->value(), 100);
    QCOMPARE(value("/1/value"), 100);
    // and what was looked away from comes back.
    choose(0);
    QCOMPARE(value("/1/value"), 7);
    choose(1);
    QCOMPARE(value("/1/value"), 2);
    // Another entry has its own.
    bench.window.setCurrentRow(str("data/Items"), 1);
    QCOMPARE(box->currentText(), str("b"));
    choose(0);
    QCOMPARE(number->value(), 0);
    QCOMPARE(value("/1/value"), 2);
    // So has the next time.
    bench.window.hide();
    bench.window.show();
    choose(1);
    QCOMPARE(value("/2/value"), 1);
}

void tst_ControlStates::allRequirementsMustHold()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"a": 1}])"));
    auto *button = bench.make<QPushButton>(R"("type": "button", "label": TEXT, "shownWhen": [
        {"field": "data/Items/{items}/a", "is": [1]}, {"field": "data/Items/{items}/b", "is": [0]}])");
    bench.window.show();
    QVERIFY(button->isVisible());
    bench.window.setField(str("data/Items/{items}/b"), 1);
    QVERIFY(!button->isVisible());
}

void tst_ControlStates::controlsAreGreyForAValue()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"timed": false}])"));
    auto *spin =
        bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/turns", "range": [0, 9],
        "enabledWhen": {"field": "data/Items/{items}/timed", "is": [true]})");
    bench.window.show();
    QVERIFY(spin->isVisible() && !spin->isEnabled());
    bench.window.setField(str("data/Items/{items}/timed"), true);
    QVERIFY(spin->isEnabled());
}

void tst_ControlStates::aCellIsOneOfItsMap()
{
    Bench bench;
    QVERIFY(bench.setItemsAndMaps(R"([null, {"map": 1, "x": 2}])"));
    const auto make = [&bench](const QByteArray &cells) {
        return bench.make<QSpinBox>(
            R"("type": "spinBox", "field": "data/Items/{items}/x", "range": [0, 255], )" + cells);
    };
    const auto *const column = make(R"("cells": "columns", "map": "data/Items/{items}/map")");
    const auto *const row = make(R"("cells": "rows", "map": "data/Items/{items}/map")");
    const auto *const selected = make(R"("cells": "columns")");
    bench.window.show();
    QCOMPARE(column->maximum(), 19);
    QCOMPARE(row->maximum(), 9);
    bench.window.setField(str("data/Items/{items}/map"), 2);
    QCOMPARE(column->maximum(), 39);
    QCOMPARE(selected->maximum(), 19);
    bench.window.setCurrentRow(str("maps"), 1);
    QCOMPARE(selected->maximum(), 39);
    // Of a map that is not there nothing is known.
    bench.window.setField(str("data/Items/{items}/map"), 99);
    QCOMPARE(column->maximum(), 255);
}

void tst_ControlStates::aCellBehindTheMapIsKept()
{
    Bench bench;
    QVERIFY(bench.setItemsAndMaps(R"([null, {"x": 200}])"));
    auto *column = bench.make<QSpinBox>(
        R"("type": "spinBox", "field": "data/Items/{items}/x", "range": [0, 255], "cells": "columns")");
    bench.window.show();
    QCOMPARE(column->value(), 200);
    QCOMPARE(bench.value("data/Items.json", "/1/x").toInt(), 200);
    column->setValue(3);
    QCOMPARE(column->maximum(), 19);
    column->setValue(200);
    QCOMPARE(bench.value("data/Items.json", "/1/x").toInt(), 19);
}

void tst_ControlStates::whatBelongsToNoEntryIsGrey()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null])"));
    auto *price =
        bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/price", "range": [0, 99])");
    auto *add = bench.make<QPushButton>(R"("type": "button", "label": TEXT,
        "click": {"open": "Effects", "begin": "list.add data/Items/{items}/effects", "entry": {"hp": 10}})");
    auto *nowhere = bench.make<QSpinBox>(R"("type": "spinBox", "field": "entry/@value", "range": [0, 99])");
    bench.window.show();
    QVERIFY(!price->isEnabled());
    QVERIFY(!add->isEnabled());
    // Where nobody has named a place, no list is without entries.
    QVERIFY(nowhere->isEnabled());
    QVERIFY(bench.setItems(R"([null, {"effects": []}])"));
    QVERIFY(price->isEnabled());
    QVERIFY(add->isEnabled());
}

void tst_ControlStates::buttonsAreGreyWhileTheirCommandsCannotRun()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"effects": []}])"));
    const auto make = [&bench](const char *command) {
        return bench.make<QPushButton>(QByteArray(R"("type": "button", "label": TEXT, "click": {"run": ")") +
                                       command + R"("})");
    };
    auto *undo = make("edit.undo");
    auto *redo = make("edit.redo");
    auto *remove = make("list.remove data/Items/{items}/effects");
    auto *add = make("list.add data/Items/{items}/effects");
    bench.window.show();
    QVERIFY(!undo->isEnabled() && !redo->isEnabled() && !remove->isEnabled() && add->isEnabled());
    add->click();
    QVERIFY(undo->isEnabled() && !redo->isEnabled() && remove->isEnabled());
    undo->click();
    QVERIFY(!undo->isEnabled() && redo->isEnabled() && !remove->isEnabled());
}

void tst_ControlStates::severalCommandsRunInTurn()
{
    Bench bench;
    QVERIFY(bench.setItems("[1, 2]"));
    auto *button = bench.make<QPushButton>(R"("type": "button", "label": TEXT,
        "click": {"run": ["list.add data/Items", "list.copy data/Items", "list.paste data/Items"], "entry": 7})");
    bench.window.show();
    button->click();
    QCOMPARE(bench.value("data/Items.json", ""), QJsonValue(QJsonDocument::fromJson("[1, 7, 7, 2]").array()));
}

void tst_ControlStates::entriesAreAddedInTheWindowThatOpens()
{
    ControlAction action;
    action.open = str("MapProperties");
    action.begin = QStringList{str("list.add data/MapInfos")};
    action.entry = 7;
    Editor editor;
    editor.openProject();
    EditorWindow *main = editor->window(str("MainWindow"));
    const QJsonValue before = editor->project()->files().file(str("data/MapInfos.json"));
    main->act(action, QPoint());
    EditorWindow *properties = editor->window(str("MapProperties"));
    QCOMPARE(properties->layer().file(str("data/MapInfos.json")).toArray().last(), QJsonValue(7));
    QCOMPARE(editor->project()->files().file(str("data/MapInfos.json")), before);
}

void tst_ControlStates::aNumberBeyondTheRangeBecomesTheNearest_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    const QByteArray plain = R"("range": [1, 640])";
    const QByteArray unit = R"("range": [-50, 50], "suffix": " %")";
    QTest::newRow("in it") << plain << str("300") << 300;
    QTest::newRow("too great") << plain << str("99999") << 640;
    QTest::newRow("just too great") << plain << str("641") << 640;
    QTest::newRow("too small") << plain << str("0") << 1;
    QTest::newRow("below zero") << plain << str("-5") << 1;
    QTest::newRow("letters are none") << plain << str("2x0") << 20;
    QTest::newRow("more digits than can be meant") << plain << str("99999999999999") << 640;
    QTest::newRow("with a unit") << unit << str("400") << 50;
    QTest::newRow("below zero with a unit") << unit << str("-400") << -50;
}

void tst_ControlStates::aNumberBeyondTheRangeBecomesTheNearest()
{
    QFETCH(QByteArray, own);
    QFETCH(QString, typed);
    QFETCH(int, value);
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"price": 8}])"));
    auto *spin = bench.make<QSpinBox>(R"("type": "spinBox", "field": "data/Items/{items}/price", )" + own);
    bench.window.show();
    spin->selectAll();
    QTest::keyClicks(spin, typed);
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(spin->value(), value);
    QCOMPARE(bench.value("data/Items.json", "/1/price"), QJsonValue(value));
    QCOMPARE(spin->text(), QString::number(value) + spin->suffix());
}

void tst_ControlStates::controlsTellThroughWhichTheyAct()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"price": 8}])"));
    auto *spin = bench.make<QSpinBox>(
        R"("type": "spinBox", "field": "data/Items/{items}/price", "range": [0, 99], "suffix": " G")");
    auto *box =
        bench.make<QCheckBox>(R"("type": "checkBox", "label": TEXT, "field": "data/Items/{items}/keyItem")");
    auto *button = bench.make<QToolButton>(
        R"("type": "toolButton", "label": TEXT, "icon": "save", "action": "fileSave", "actionState": "close")");
    bench.window.show();
    QTest::keyClick(spin, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Space);
    button->click();
    QCOMPARE(bench.told, (QStringList{str("spinBox,=,9 G by it -1"), str("checked,it,1 by it -1"),
                                      str("action,fileSave,close by it -1")}));
}

void tst_ControlStates::windowsTellThroughWhichControlTheyOpenAndClose()
{
    Editor editor;
    editor.openProject();
    QStringList causes;
    connect(editor.operator->(), &EditorWindows::happened, this, [&causes](const EditorEvent &event) {
        if (event.type == str("windowState") || event.type == str("popup")) {
            causes.append(str("%1 %2 by %3 %4 %5")
                              .arg(event.target, event.value, event.cause.windowKey, event.cause.control,
                                   QString::number(event.cause.part)));
        }
    });
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.click("MapPopup", "mapProperties");
    QTest::keyClick(editor->window(str("MapProperties")), Qt::Key_Return);
    editor.doubleClickRow("MapEditTreeBox", "maps", 1);
    QTest::keyClick(editor->window(str("MapProperties")), Qt::Key_Escape);
    editor->open(str("MapLoader"));
    editor->window(str("MapLoader"))->close();
    QCOMPARE(causes,
             (QStringList{str("MapPopup  by MapEditTreeBox maps 1"),
                          str("MapProperties open by Menu MapPopup/mapProperties -1"),
                          str("MapProperties close by MapProperties ok -1"),
                          str("MapProperties open by MapEditTreeBox maps 1"),
                          str("MapProperties close by MapProperties @dismiss -1"),
                          str("MapLoader open by   -1"), str("MapLoader close by MapLoader @dismiss -1")}));
}

void tst_ControlStates::everyControlIsAStopOfTheTabulatorKey()
{
    Editor editor;
    editor.openProject();
    for (const char *key : {"FileDialog", "NewProject", "MapProperties", "ImageSelector", "MapLoader"}) {
        const EditorWindow *window = editor->window(str(key));
        const auto controls = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *control : controls) {
            const bool isStop = control->focusPolicy() & Qt::TabFocus;
            const bool isUsed = qobject_cast<const QLabel *>(control) == nullptr &&
                                !control->objectName().endsWith(str("preview"), Qt::CaseInsensitive);
            QVERIFY2(isStop == isUsed, qPrintable(str(key) + QLatin1Char(' ') + control->objectName()));
        }
    }
}

void tst_ControlStates::whatIsTypedComesBeforeAPicture()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"face": "", "text": "a"}])"));
    bench.make<QAbstractButton>(R"("type": "picture", "picture": "face", "field": "data/Items/{items}/face",
                                   "click": {"run": "edit.undo"})");
    auto *text = bench.make<QPlainTextEdit>(R"("type": "textEdit", "field": "data/Items/{items}/text")");
    bench.make<QPushButton>(R"("type": "button", "label": TEXT)");
    bench.window.show();
    bench.window.activateWindow();
    bench.window.focusFirst();
    QCOMPARE(bench.window.focusWidget(), text);
}

QTEST_MAIN(tst_ControlStates)
#include "tst_ControlStates.moc"
