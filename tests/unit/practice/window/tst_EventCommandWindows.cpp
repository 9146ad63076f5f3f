#include "EventHands.h"

using namespace EventHands;

/// The commands of an event in their windows, as a person uses them, with mouse and keyboard.
class tst_EventCommandWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aCommandIsChosenAndWritten();
    void aCommandWithoutAFormIsInsertedAtOnce();
    void aTabOfCommandsBeginsAtItsFirst();
    void aCommandIsEditedAndCancelled();
    void everyCommandOfTheSampleOpensItsForm();
    void goodsOfAShop();
    void aChoiceTypedBehindAGapIsKept();
    void aMessageIsDrawn();
    void aMessageIsDrawnAsTheGameShowsIt();
    void aCommandIsCalledInTheTitle_data();
    void aCommandIsCalledInTheTitle();
};

void tst_EventCommandWindows::initTestCase()
{
    // What stands at one place in two windows is clicked faster here than by a hand, and on purpose.
    QApplication::setDoubleClickInterval(0);
}

void tst_EventCommandWindows::aCommandIsChosenAndWritten()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    QCOMPARE(editor.texts("EventEditorMain", "commands"), QStringList{str("+")});
    editor.openRow("EventEditorMain", "commands", 0);
    QCOMPARE(editor->openWindows().last(), str("EventCommandSelect"));
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.takeTold();
    editor.openRow("EventCommandSelect", "commands", 0);
    QCOMPARE(editor.takeTold().mid(1), closed("EventCommandSelect") + opened("EventCommand"));
    auto *const lines = editor.find<QPlainTextEdit>("EventCommand", "101/lines");
    QCOMPARE(lines->window()->focusWidget(), lines); // what is said is typed at once
    lines->setPlainText(str("Woof!\nWoof!"));
    editor.click("EventCommand", "ok");
    QCOMPARE(editor.texts("EventEditorMain", "commands").size(), 2);
    // The window has a history of its own until it is accepted.
    auto *const commands = editor.find<RowList>("EventEditorMain", "commands");
    QTest::keyClick(commands, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.texts("EventEditorMain", "commands"), QStringList{str("+")});
    QTest::keyClick(commands, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.texts("EventEditorMain", "commands"), QStringList{str("+")});
    QTest::keyClick(commands, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(editor.texts("EventEditorMain", "commands").size(), 2);
    QVERIFY(editor.texts("EventEditorMain", "commands").at(0).contains(str("Woof! Woof!")));
    QCOMPARE(editor.find<RowList>("EventEditorMain", "commands")->currentRow(), 1);
    editor.click("EventEditorMain", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list.toArray().size(), 4);
    QCOMPARE(list[2][QLatin1String("parameters")], QJsonArray{str("Woof!")});
}

void tst_EventCommandWindows::aCommandWithoutAFormIsInsertedAtOnce()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 1);
    const QStringList names = editor.texts("EventCommandSelect", "commands");
    editor.openRow("EventCommandSelect", "commands", int(names.indexOf(str("Loop"))));
    QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
    const QStringList rows = editor.texts("EventEditorMain", "commands");
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.at(1), str("    +"));
    QCOMPARE(rows.at(3), str("+"));
}

void tst_EventCommandWindows::aTabOfCommandsBeginsAtItsFirst()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    const auto *commands = editor.find<RowList>("EventCommandSelect", "commands");
    editor.clickTab("EventCommandSelect", "tabs", 1);
    QCOMPARE(commands->currentRow(), 0);
    editor.clickRow("EventCommandSelect", "commands", 6);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    QCOMPARE(commands->currentRow(), 0);
    // The tab with the command that was chosen last shows it again.
    editor.clickTab("EventCommandSelect", "tabs", 1);
    QCOMPARE(commands->currentRow(), 6);
}

void tst_EventCommandWindows::aCommandIsEditedAndCancelled()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    for (int number = 1; number < before.size(); ++number) {
        const QJsonValue event = before.at(number);
        openCell(editor, {event[QLatin1String("x")].toInt(), event[QLatin1String("y")].toInt()});
        QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
        editor.openRow("EventEditorMain", "commands", 0);
        if (editor->openWindows().last() != str("EventEditorMain")) {
            editor->close(editor->openWindows().last());
        }
        editor.click("EventEditorMain", "ok");
    }
    QCOMPARE(events(editor), before);
    QVERIFY(!editor->project()->isModified());
}

void tst_EventCommandWindows::everyCommandOfTheSampleOpensItsForm()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    int forms = 0;
    for (int number = 1; number < before.size(); ++number) {
        const QJsonValue event = before.at(number);
        openCell(editor, {event[QLatin1String("x")].toInt(), event[QLatin1String("y")].toInt()});
        const int rows = int(editor.texts("EventEditorMain", "commands").size());
        for (int row = 0; row < rows; ++row) {
            editor.openRow("EventEditorMain", "commands", row);
            if (editor->openWindows().last() == str("EventCommand")) {
                ++forms;
                editor.click("EventCommand", "ok");
            } else if (editor->openWindows().last() == str("EventCommandSelect")) {
                editor.click("EventCommandSelect", "cancel");
            }
            QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
        }
        editor.click("EventEditorMain", "ok");
    }
    QVERIFY(forms > 20);
    // OK in a form that nobody touched changes nothing.
    QCOMPARE(events(editor), before);
    QVERIFY(!editor->project()->isModified());
}

void tst_EventCommandWindows::goodsOfAShop()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 4);
    const QStringList names = editor.texts("EventCommandSelect", "commands");
    editor.openRow("EventCommandSelect", "commands", int(names.indexOf(str("Shop"))));
    QCOMPARE(editor.texts("EventCommand", "302/goods").size(), 1);
    const QAbstractButton *const edit = editor.find<QAbstractButton>("EventCommand", "302/edit");
    QVERIFY(edit->isEnabled());
    editor.click("EventCommand", "302/remove");
    QVERIFY(!edit->isEnabled()); // there are no goods to change
    editor.click("EventCommand", "302/add");
    editor.click("Merchandise", "ok");
    editor.click("EventCommand", "302/add");
    QCOMPARE(editor->openWindows().last(), str("Merchandise"));
    editor.choose("Merchandise", "kind", 1);
    editor.choose("Merchandise", "weapon", 1);
    editor.click("Merchandise", "ownPrice");
    editor.setNumber("Merchandise", "price", 77);
    editor.click("Merchandise", "ok");
    QCOMPARE(editor.texts("EventCommand", "302/goods").size(), 2);
    QVERIFY(editor.texts("EventCommand", "302/goods").at(1).endsWith(str("77")));
    editor.click("EventCommand", "302/add");
    editor.click("Merchandise", "cancel");
    editor.click("EventCommand", "ok");
    editor.click("EventEditorMain", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list.toArray().size(), 3);
    QCOMPARE(list[1][QLatin1String("code")], QJsonValue(605));
    QCOMPARE(list[1][QLatin1String("parameters")], (QJsonArray{1, 2, 1, 77}));
}

void tst_EventCommandWindows::aChoiceTypedBehindAGapIsKept()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    const QStringList names = editor.texts("EventCommandSelect", "commands");
    editor.openRow("EventCommandSelect", "commands", int(names.indexOf(str("Show choices"))));
    QTest::keyClicks(editor.find<QLineEdit>("EventCommand", "102/choice4"), str("Fourth"));
    editor.click("EventCommand", "ok");
    editor.click("EventEditorMain", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list[0][QLatin1String("parameters")][0],
             QJsonValue(QJsonArray{str("Yes"), str("No"), QString(), str("Fourth")}));
}

void tst_EventCommandWindows::aMessageIsDrawn()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.openRow("EventCommandSelect", "commands", 0);
    const auto picture = [&editor] {
        editor.click("EventCommand", "101/preview");
        const QImage image = editor.find<QWidget>("TextPreview", "preview")->grab().toImage();
        editor.click("TextPreview", "close");
        return image;
    };
    const QImage empty = picture();
    editor.find<QPlainTextEdit>("EventCommand", "101/lines")->setPlainText(str("Woof!"));
    const QImage atTheBottom = picture();
    QVERIFY(atTheBottom != empty);
    editor.choose("EventCommand", "101/place", 0);
    QVERIFY(picture() != atTheBottom);
}

void tst_EventCommandWindows::aMessageIsDrawnAsTheGameShowsIt()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.openRow("EventCommandSelect", "commands", 0);
    const auto picture = [&editor](const QString &text) {
        editor.find<QPlainTextEdit>("EventCommand", "101/lines")->setPlainText(text);
        editor.click("EventCommand", "101/preview");
        const QImage image = editor.find<QWidget>("TextPreview", "preview")->grab().toImage();
        editor.click("TextPreview", "close");
        return image;
    };
    // A long line goes on in the next one.
    const QStringList words{str("lamp"), str("lamp"), str("lamp"), str("lamp"),
                            str("lamp"), str("lamp"), str("lamp")};
    const QString seven = words.join(QLatin1Char(' '));
    const QString thirteen = seven + str(" lamp lamp lamp lamp lamp lamp");
    QCOMPARE(picture(thirteen + QLatin1Char(' ') + seven), picture(thirteen + QLatin1Char('\n') + seven));
    QVERIFY(picture(thirteen) != picture(thirteen + QLatin1Char(' ') + seven));
    // What stands for something is that, and a pause is not seen.
    const QString name = editor.value("Actors", "/1/name").toString();
    QCOMPARE(picture(str("\\n[1]\\. sleeps.")), picture(name + str(" sleeps.")));
    QVERIFY(picture(str("\\c[2]Fire!")) != picture(str("Fire!")));
}

void tst_EventCommandWindows::aCommandIsCalledInTheTitle_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("title");
    QTest::newRow("en_US") << str("en_US") << str("Event command: Show message");
    QTest::newRow("ja_JP") << str("ja_JP") << QString::fromUtf8("イベントコマンド：メッセージの表示");
    QTest::newRow("zh_CN") << str("zh_CN") << QString::fromUtf8("事件指令：显示消息");
}

void tst_EventCommandWindows::aCommandIsCalledInTheTitle()
{
    QFETCH(QString, locale);
    SampleEditor editor(locale.toLatin1().constData());
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.openRow("EventCommandSelect", "commands", 0);
    QTEST(editor->window(str("EventCommand"))->windowTitle(), "title");
}

QTEST_MAIN(tst_EventCommandWindows)
#include "tst_EventCommandWindows.moc"
