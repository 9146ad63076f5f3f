#include "ControlBench.h"
#include "window/control/CurveBox.h"
#include "window/control/TabRow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace {

const char *const kItems = R"([null, {"name": "Herb", "scope": 7, "effects": [{"hp": 30}, {"addState": 1}]},
                                     {"name": "Bread", "scope": 1, "effects": []}])";

} // namespace

/// The controls with which something is chosen or written, and what they report.
class tst_ChoiceControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aComboBoxHasTheValueOfTheField();
    void aComboBoxOfAListHasTheNumber();
    void aValueThatIsNoChoiceIsLeftAlone();
    void aNumberOfOnesOwnHasItsWord();
    void entriesWithoutANameHaveTheirNumber();
    void anEntryThatIsNotThereHasItsNumber();
    void aMissingMemberIsTheChoiceOfNothing();
    void theOnlyMemberIsRenamed();
    void radioButtonsOfAFieldBelongTogether();
    void arrowKeysGoFromButtonToButton();
    void textsOfSeveralLinesAreKept();
    void textsTellTheirLength();
    void rowsAreWrittenWithMembers();
    void aListOfChoicesHasTheValueOfTheField();
    void theListsKeysAreItsOwn();
    void keysWithNothingToDoDoNothing();
    void keysThatAListHasNotGoOn();
    void theReturnKeyOpensARow();
    void tabsTellTheirRow();
    void aCurveGrowsWithTheLevel();
};

void tst_ChoiceControls::aComboBoxHasTheValueOfTheField()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Items/{items}/effects/{effects}/@name", "choices": "kinds")");
    bench.window.show();
    QCOMPARE(box->currentText(), str("Recover"));
    QCOMPARE(box->count(), 2);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(bench.value("data/Items.json", "/1/effects/0"), QJsonValue(QJsonObject{{str("addState"), 30}}));
    QCOMPARE(bench.told, QStringList{str("comboBox,it,1 by it -1")});
    bench.window.run(str("edit.undo"));
    QCOMPARE(box->currentIndex(), 0);
}

void tst_ChoiceControls::aComboBoxOfAListHasTheNumber()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Items.json"), str(kItems)},
         {str("data/Actors.json"), str(R"([null, {"name": "Mila", "item": 2}])")}}));
    auto *box = bench.make<QComboBox>(R"("type": "comboBox", "field": "data/Actors/{actors}/item",
        "source": "data/Items", "rowText": "{@number} {name}", "none": TEXT)");
    bench.window.show();
    QCOMPARE(box->currentText(), str("2 Bread"));
    QCOMPARE(box->itemText(0), str("c"));
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(bench.value("data/Actors.json", "/1/item"), QJsonValue(0));
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(bench.value("data/Actors.json", "/1/item"), QJsonValue(1));
    QCOMPARE(bench.told, (QStringList{str("comboBox,it,0 by it -1"), str("comboBox,it,1 by it -1")}));
}

void tst_ChoiceControls::aValueThatIsNoChoiceIsLeftAlone()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Items/{items}/scope", "choices": [TEXT, TEXT])");
    bench.window.show();
    QCOMPARE(box->currentText(), str("7"));
    // To choose what is there already changes nothing and counts for nothing.
    QTest::keyClick(box, Qt::Key_End);
    Q_EMIT box->activated(2);
    QVERIFY(!bench.project.isModified());
    QVERIFY(bench.told.isEmpty());
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(bench.value("data/Items.json", "/1/scope"), QJsonValue(0));
    QCOMPARE(box->count(), 2);
}

void tst_ChoiceControls::aNumberOfOnesOwnHasItsWord()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Items/{items}/scope", "choices": [TEXT, TEXT], "other": TEXT)");
    bench.window.show();
    QCOMPARE(box->currentIndex(), 2);
    QCOMPARE(box->currentText(), str("c"));
    bench.window.setCurrentRow(str("data/Items"), 1);
    QCOMPARE(box->currentIndex(), 1);
    QCOMPARE(box->count(), 2);
    bench.window.setField(str("data/Items/{items}/scope"), 30);
    QCOMPARE(box->currentIndex(), 2);
}

void tst_ChoiceControls::entriesWithoutANameHaveTheirNumber()
{
    Bench bench;
    QVERIFY(bench.setItems(R"([null, {"name": "Herb", "scope": 2}, {"name": "", "scope": 1}])"));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Items/{items}/scope", "source": "data/Items")");
    auto *list = bench.make<RowList>(R"("type": "list", "source": "data/Items", "rowHeight": 20)");
    bench.window.show();
    QCOMPARE(box->currentText(), str("2:"));
    QCOMPARE(list->item(0)->text(), str("Herb"));
    QCOMPARE(list->item(1)->text(), str("2:"));
    QVERIFY(!bench.project.isModified());
}

void tst_ChoiceControls::anEntryThatIsNotThereHasItsNumber()
{
    Bench bench;
    QVERIFY(
        bench.project.replaceFiles({{str("data/Items.json"), str(R"([null])")},
                                    {str("data/Actors.json"), str(R"([null, {"item": 3}, {"item": 0}])")}}));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Actors/{actors}/item", "source": "data/Items")");
    bench.window.show();
    QCOMPARE(box->currentText(), str("3:"));
    bench.window.setCurrentRow(str("data/Actors"), 1);
    QCOMPARE(box->currentText(), QString());
    QVERIFY(!bench.project.isModified());
}

void tst_ChoiceControls::aMissingMemberIsTheChoiceOfNothing()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *box = bench.make<QComboBox>(
        R"("type": "comboBox", "field": "data/Items/{items}/occasion", "choices": [TEXT, TEXT])");
    auto *button = bench.make<QRadioButton>(
        R"("type": "radioButton", "label": TEXT, "field": "data/Items/{items}/speed", "value": 0, "index": 3)");
    bench.window.show();
    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(button->isChecked());
    QVERIFY(!bench.project.isModified());
    QVERIFY(bench.value("data/Items.json", "/1/occasion").isUndefined());
}

void tst_ChoiceControls::theOnlyMemberIsRenamed()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *button =
        bench.make<QRadioButton>(R"("type": "radioButton", "label": TEXT, "value": "mp", "index": 8,
        "field": "data/Items/{items}/effects/{effects}/@name")");
    bench.window.show();
    QVERIFY(!button->isChecked());
    button->click();
    QCOMPARE(bench.value("data/Items.json", "/1/effects/0"), QJsonValue(QJsonObject{{str("mp"), 30}}));
    QCOMPARE(bench.told, QStringList{str("radioButton,RadioButton,8 by it -1")});
    // Another click leaves it on.
    button->click();
    QVERIFY(button->isChecked());
    QCOMPARE(bench.told.size(), 2);
}

void tst_ChoiceControls::radioButtonsOfAFieldBelongTogether()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    const auto make = [&bench](const char *field, int value) {
        return bench.make<QRadioButton>(
            QByteArray(R"("type": "radioButton", "label": TEXT, "index": 0, "field": "data/Items/{items}/)") +
            field + R"(", "value": )" + QByteArray::number(value));
    };
    auto *one = make("scope", 1);
    auto *seven = make("scope", 7);
    auto *other = make("speed", 0);
    bench.window.show();
    QVERIFY(!one->isChecked() && seven->isChecked() && other->isChecked());
    one->click();
    QVERIFY(one->isChecked() && !seven->isChecked() && other->isChecked());
    bench.window.setField(str("data/Items/{items}/scope"), 3);
    QVERIFY(!one->isChecked() && !seven->isChecked());
    bench.window.setCurrentRow(str("data/Items"), 1);
    QVERIFY(one->isChecked());
}

void tst_ChoiceControls::arrowKeysGoFromButtonToButton()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *one = bench.make<QRadioButton>(
        R"("type": "radioButton", "label": TEXT, "index": 0, "field": "data/Items/{items}/scope", "value": 7)");
    auto *two = bench.make<QRadioButton>(
        R"("type": "radioButton", "label": TEXT, "index": 1, "field": "data/Items/{items}/scope", "value": 1)");
    bench.window.show();
    two->move(0, 40);
    bench.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.window));
    one->setFocus();
    QTest::keyClick(one, Qt::Key_Down);
    QVERIFY(two->isChecked());
    QCOMPARE(bench.value("data/Items.json", "/1/scope"), QJsonValue(1));
    QCOMPARE(bench.told, QStringList{str("radioButton,RadioButton,1 by it -1")});
}

void tst_ChoiceControls::textsOfSeveralLinesAreKept()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *edit = bench.make<QPlainTextEdit>(R"("type": "textEdit", "field": "data/Items/{items}/note")");
    bench.window.show();
    QVERIFY(!bench.project.isModified());
    QTest::keyClicks(edit, str("ab"));
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, str("c"));
    QCOMPARE(bench.value("data/Items.json", "/1/note").toString(), str("ab\nc"));
    QCOMPARE(edit->textCursor().position(), 4);
    QCOMPARE(bench.told.constLast(), str("textLength,it,4 by it -1"));
    bench.told.clear();
    bench.window.setCurrentRow(str("data/Items"), 1);
    QCOMPARE(edit->toPlainText(), QString());
    QVERIFY(bench.told.isEmpty());
}

void tst_ChoiceControls::textsTellTheirLength()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *edit = bench.make<QLineEdit>(R"("type": "lineEdit", "field": "data/Items/{items}/name")");
    bench.window.show();
    QTest::keyClicks(edit, str("s!"));
    QCOMPARE(bench.told, (QStringList{str("textLength,it,5 by it -1"), str("textLength,it,6 by it -1")}));
}

void tst_ChoiceControls::rowsAreWrittenWithMembers()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list =
        bench.make<RowList>(R"("type": "list", "source": "data/Items/{items}/effects", "rowHeight": 20,
        "rowText": "{@name:kinds}: {@value}")");
    bench.window.show();
    QCOMPARE(list->item(0)->text(), str("Recover: 30"));
    QCOMPARE(list->item(1)->text(), str("Add state: 1"));
    bench.window.setField(str("data/Items/{items}/effects/{effects}/@value"), 5);
    QCOMPARE(list->item(0)->text(), str("Recover: 5"));
    bench.window.setCurrentRow(str("data/Items"), 1);
    QCOMPARE(list->count(), 0);
}

void tst_ChoiceControls::aListOfChoicesHasTheValueOfTheField()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list = bench.make<RowList>(
        R"("type": "list", "choices": "kinds", "field": "data/Items/{items}/kind", "rowHeight": 20)");
    bench.window.show();
    QCOMPARE(list->currentRow(), -1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 30));
    QCOMPARE(bench.value("data/Items.json", "/1/kind").toString(), str("addState"));
    QCOMPARE(bench.told, QStringList{str("list,1, by it 1")});
}

void tst_ChoiceControls::theListsKeysAreItsOwn()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list =
        bench.make<RowList>(R"("type": "list", "source": "data/Items/{items}/effects", "rowHeight": 20,
        "delete": {"run": "list.remove data/Items/{items}/effects"},
        "copy": {"run": "list.copy data/Items/{items}/effects"},
        "paste": {"run": "list.paste data/Items/{items}/effects"})");
    bench.window.show();
    QTest::keySequence(list, QKeySequence::Copy);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keySequence(list, QKeySequence::Paste);
    QCOMPARE(bench.value("data/Items.json", "/1/effects"),
             QJsonValue(QJsonDocument::fromJson(R"([{"hp": 30}, {"addState": 1}, {"hp": 30}])").array()));
    QCOMPARE(list->currentRow(), 2);
    QTest::keyClick(list, Qt::Key_Delete);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(bench.value("data/Items.json", "/1/effects"),
             QJsonValue(QJsonDocument::fromJson(R"([{"hp": 30}])").array()));
    QCOMPARE(list->currentRow(), 0);
    bench.window.run(str("edit.undo"));
    bench.window.run(str("edit.undo"));
    QCOMPARE(list->count(), 3);
}

void tst_ChoiceControls::keysWithNothingToDoDoNothing()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list =
        bench.make<RowList>(R"("type": "list", "source": "data/Items/{items}/effects", "rowHeight": 20,
        "delete": {"run": "list.remove data/Items/{items}/effects", "open": "Traits"},
        "paste": {"run": "list.paste data/Items/{items}/effects"})");
    QSignalSpy asked(&bench.window, &EditorWindow::asked);
    bench.window.show();
    QTest::keySequence(list, QKeySequence::Paste);
    bench.window.setCurrentRow(str("data/Items"), 1);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(asked.size(), 0);
    QVERIFY(!bench.project.isModified());
}

void tst_ChoiceControls::keysThatAListHasNotGoOn()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list = bench.make<RowList>(R"("type": "list", "source": "data/Items", "rowHeight": 20)");
    auto *button = bench.make<QAbstractButton>(R"("type": "button", "label": TEXT, "default": true)");
    QSignalSpy clicked(button, &QAbstractButton::clicked);
    bench.window.show();
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(clicked.size(), 1);
    QTest::keyClick(list, Qt::Key_Delete);
    QVERIFY(!bench.project.isModified());
}

void tst_ChoiceControls::theReturnKeyOpensARow()
{
    Bench bench;
    QVERIFY(bench.setItems(kItems));
    auto *list = bench.make<RowList>(R"("type": "list", "source": "data/Items", "rowHeight": 20,
        "doubleClick": {"open": "Effects"})");
    QVector<ControlSpot> causes;
    connect(&bench.window, &EditorWindow::asked, this,
            [&causes](const ControlAction & /*action*/, const QPoint & /*at*/, const ControlSpot &cause) {
                causes.append(cause);
            });
    bench.window.show();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    QStringList rows;
    for (const ControlSpot &cause : qAsConst(causes)) {
        rows.append(str("%1 %2 %3").arg(cause.windowKey, cause.control, QString::number(cause.part)));
    }
    QCOMPARE(rows, (QStringList{str("Box it 1"), str("Box it 0")}));
}

void tst_ChoiceControls::tabsTellTheirRow()
{
    Bench bench;
    auto *tabs = bench.make<TabRow>(
        R"("type": "tabs", "source": "boxTab", "tabs": [TEXT, TEXT, TEXT], "tabWidth": 30)");
    bench.window.show();
    QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(75, 10));
    QCOMPARE(bench.told, QStringList{str("tabView,tabview,2 by it 2")});
    QCOMPARE(bench.window.currentRow(str("boxTab")), 2);
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Left);
    QCOMPARE(bench.told.constLast(), str("tabView,tabview,1 by it 1"));
}

void tst_ChoiceControls::aCurveGrowsWithTheLevel()
{
    Bench bench;
    QVERIFY(bench.project.replaceFiles(
        {{str("data/Classes.json"), str(R"([null, {"growth": {"hp": [40, 8]}}, {"growth": {}}])")}}));
    auto *curve = bench.make<CurveBox>(R"("type": "curve", "field": "data/Classes/{classes}/growth/hp")");
    bench.window.show();
    QCOMPARE(curve->valueAt(1), 40);
    QCOMPARE(curve->valueAt(99), 824);
    const QImage steep = curve->grab().toImage();
    bench.window.setField(str("data/Classes/{classes}/growth/hp/1"), 1);
    QCOMPARE(curve->valueAt(99), 138);
    QVERIFY(curve->grab().toImage() != steep);
    bench.window.setCurrentRow(str("data/Classes"), 1);
    QCOMPARE(curve->valueAt(99), 0);
    QVERIFY(!curve->grab().toImage().isNull());
}

QTEST_MAIN(tst_ChoiceControls)
#include "tst_ChoiceControls.moc"
