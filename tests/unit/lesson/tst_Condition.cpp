#include "lesson/Condition.h"
#include "lesson/EditorEvent.h"

#include <QTest>

class tst_Condition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFormsOfLessons_data();
    void readsTheFormsOfLessons();
    void refusesWhatIsNoCondition_data();
    void refusesWhatIsNoCondition();
    void saysWhatIsWrongAndShowsTheForm_data();
    void saysWhatIsWrongAndShowsTheForm();
    void isMetByItsEventOnly_data();
    void isMetByItsEventOnly();
    void aControlCountsInTheWindowOfTheStep_data();
    void aControlCountsInTheWindowOfTheStep();
    void onlyWindowStatesHoldByThemselves_data();
    void onlyWindowStatesHoldByThemselves();
    void waitsForTheTimeGiven_data();
    void waitsForTheTimeGiven();
};

using Type = Condition::Type;
Q_DECLARE_METATYPE(Condition::Type)

void tst_Condition::readsTheFormsOfLessons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *text, Type type, const char *target, const char *value) {
        QTest::newRow(text) << QString::fromLatin1(text) << type << QString::fromLatin1(target)
                            << QString::fromLatin1(value);
    };
    row("", Type::kNext, "", "");
    row("click", Type::kNext, "", "");
    row("click,", Type::kNext, "", "");
    row("yesNo", Type::kYesNo, "", "");
    row("wait", Type::kWait, "", "");
    row("wait,", Type::kWait, "", "");
    row("wait,2500", Type::kWait, "2500", "");
    row("windowState,Copying,close", Type::kWindowState, "Copying", "close");
    row("windowState,MainWindowClient_mapEditorView,close", Type::kWindowState,
        "MainWindowClient_mapEditorView", "close");
    row("windowState,NewProject,open", Type::kWindowState, "NewProject", "open");
    row("list,2", Type::kList, "2", "");
    row("action,fileSave,close", Type::kAction, "fileSave", "close");
    row("action,drawPencil,", Type::kAction, "drawPencil", "");
    row("action,fileOpen,open", Type::kAction, "fileOpen", "open");
    row("tabView,tabview,1", Type::kTabView, "tabview", "1");
    row("spinBox,=,35 %", Type::kSpinBox, "=", "35 %");
    row("spinBox,=,-3", Type::kSpinBox, "=", "-3");
    row("comboBox,moveType,1", Type::kComboBox, "moveType", "1");
    row("checked,directionFix,1", Type::kChecked, "directionFix", "1");
    row("popup,MapPopup", Type::kPopup, "MapPopup", "");
    row("mouseEvent,Map,click", Type::kMouseEvent, "Map", "click");
    row("radioButton,RadioButton,8", Type::kRadioButton, "RadioButton", "8");
    row("pressed,0,0", Type::kPressed, "0", "0");
    row("menuEvent,Map,click", Type::kMenuEvent, "Map", "click");
    row("textLength,name,4", Type::kTextLength, "name", "4");
}

void tst_Condition::readsTheFormsOfLessons()
{
    QFETCH(QString, text);
    const std::optional<Condition> condition = Condition::parse(text);
    QVERIFY(condition);
    QTEST(condition->type(), "type");
    QTEST(condition->target(), "target");
    QTEST(condition->value(), "value");
}

void tst_Condition::refusesWhatIsNoCondition_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Click",
                             "dance,Map,click",
                             " click",
                             "click,,",
                             "yesNo,1,2",
                             "wait,soon",
                             "windowState,Copying",
                             "windowState,Copying,ajar",
                             "list",
                             "list,",
                             "list,first",
                             "list,1,2",
                             "action",
                             "tabView,tabview",
                             "tabView,tabview,x",
                             "spinBox,35",
                             "spinBox,>,35",
                             "spinBox,=,",
                             "comboBox,moveType,",
                             "checked,on",
                             "checked,directionFix,yes",
                             "popup",
                             "popup,A,B",
                             "mouseEvent,Map",
                             "radioButton,RadioButton,",
                             "pressed,0",
                             "menuEvent,Map",
                             "textLength,name,long",
                             "textLength,name,9999999999",
                             "list,9999999999",
                             "wait,-5",
                             ","}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_Condition::refusesWhatIsNoCondition()
{
    QFETCH(QString, text);
    QVERIFY(!Condition::parse(text));
}

void tst_Condition::saysWhatIsWrongAndShowsTheForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *text, const char *problem) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(problem);
    };
    row("dance,1", "\"dance\" is not a condition type");
    row("Click,", "\"Click\" is not a condition type");
    row("click,next", "\"click,next\" does not have the form of \"click,\"");
    row("windowState,Copying",
        "\"windowState,Copying\" does not have the form of \"windowState,Copying,close\"");
    row("windowState,Copying,shut",
        "\"windowState,Copying,shut\" does not have the form of \"windowState,Copying,close\"");
    row("list,first", "\"list,first\" does not have the form of \"list,2\"");
    row("list,-1", "\"list,-1\" does not have the form of \"list,2\"");
    row("action,fileSave", "\"action,fileSave\" does not have the form of \"action,fileSave,close\"; the "
                           "last word is empty, open or close");
    row("action,fileSave,shut", "\"action,fileSave,shut\" does not have the form of "
                                "\"action,fileSave,close\"; the last word is empty, open or close");
    row("action,,open", "\"action,,open\" does not have the form of \"action,fileSave,close\"; the last word "
                        "is empty, open or close");
    row("tabView,palette,1", "\"tabView,palette,1\" does not have the form of \"tabView,tabview,1\"");
    row("yesNo,", "\"yesNo,\" does not have the form of \"yesNo\"");
    row("spinBox,35", "\"spinBox,35\" does not have the form of \"spinBox,=,35 %\"");
    row("checked,directionFix,2",
        "\"checked,directionFix,2\" does not have the form of \"checked,directionFix,1\"");
    row("pressed,1,0", "\"pressed,1,0\" does not have the form of \"pressed,0,0\"");
    row("mouseEvent,Map,press",
        "\"mouseEvent,Map,press\" does not have the form of \"mouseEvent,Map,click\"");
    row("popup,", "\"popup,\" does not have the form of \"popup,MapPopup\"");
    row("wait,soon", "\"wait,soon\" does not have the form of \"wait,1000\"; the number is of milliseconds");
    row("textLength,name", "\"textLength,name\" does not have the form of \"textLength,name,4\"; the number "
                           "is of characters, at least");
}

void tst_Condition::saysWhatIsWrongAndShowsTheForm()
{
    QFETCH(QString, text);
    QString problem;
    QVERIFY(!Condition::parse(text, &problem));
    QTEST(problem, "problem");
}

void tst_Condition::isMetByItsEventOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("met");

    const auto row = [](const char *text, const char *event, bool met) {
        QTest::addRow("%s by %s", text, event)
            << QString::fromLatin1(text) << QString::fromLatin1(event) << met;
    };
    row("windowState,Copying,close", "windowState,Copying,close", true);
    row("windowState,Copying,close", "windowState,Copying,open", false);
    row("windowState,Copying,close", "windowState,NewProject,close", false);
    row("list,2", "list,2,", true);
    row("list,2", "list,1,", false);
    row("list,2", "tabView,2,", false);
    row("action,fileSave,close", "action,fileSave,close", true);
    row("action,fileSave,close", "action,fileSave,", false);
    row("action,fileNew,", "action,fileNew,open", true);
    row("action,drawPencil,", "action,drawPencil,", true);
    row("action,drawPencil,", "action,drawEraser,", false);
    row("tabView,tabview,1", "tabView,tabview,1", true);
    row("tabView,tabview,1", "tabView,tabview,0", false);
    row("tabView,tabview,1", "tabView,other,1", false);
    row("spinBox,=,35 %", "spinBox,=,35 %", true);
    row("spinBox,=,35 %", "spinBox,=,35%", true);
    row("spinBox,=,35 %", "spinBox,=,3 %", false);
    row("spinBox,=,35 %", "spinBox,=,35", false);
    row("spinBox,=,5", "spinBox,=,5", true);
    row("comboBox,moveType,1", "comboBox,moveType,1", true);
    row("comboBox,moveType,1", "comboBox,moveType,0", false);
    row("comboBox,moveType,1", "comboBox,moveSpeed,1", false);
    row("checked,directionFix,1", "checked,directionFix,1", true);
    row("checked,directionFix,1", "checked,directionFix,0", false);
    row("popup,MapPopup", "popup,MapPopup,", true);
    row("popup,MapPopup", "popup,TilePopup,", false);
    row("mouseEvent,Map,click", "mouseEvent,Map,click", true);
    row("mouseEvent,Map,click", "menuEvent,Map,click", false);
    row("radioButton,RadioButton,8", "radioButton,RadioButton,8", true);
    row("radioButton,RadioButton,8", "radioButton,RadioButton,1", false);
    row("pressed,0,0", "pressed,0,0", true);
    row("pressed,0,0", "mouseEvent,0,0", false);
    row("menuEvent,Map,click", "menuEvent,Map,click", true);
    row("menuEvent,Map,click", "menuEvent,Tree,click", false);
    row("textLength,name,4", "textLength,name,4", true);
    row("textLength,name,4", "textLength,name,7", true);
    row("textLength,name,4", "textLength,name,3", false);
    row("textLength,name,4", "textLength,note,4", false);
    row("click,", "click,,", false);
    row("yesNo", "yesNo,,", false);
    row("wait", "wait,,", false);
}

void tst_Condition::isMetByItsEventOnly()
{
    QFETCH(QString, text);
    QFETCH(QString, event);
    const QStringList fields = event.split(QLatin1Char(','));
    const EditorEvent happened{fields.value(0), fields.value(1), fields.value(2),
                               QStringLiteral("MainWindow")};
    QTEST(Condition::parse(text)->isMetBy(happened, QStringLiteral("MainWindow")), "met");
}

void tst_Condition::aControlCountsInTheWindowOfTheStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stepWindow");
    QTest::addColumn<QString>("eventWindow");
    QTest::addColumn<QString>("around");
    QTest::addColumn<bool>("met");

    const QString none;
    const QString list = QStringLiteral("list,0");
    const QString main = QStringLiteral("MainWindow");
    const QString tree = QStringLiteral("MapEditTreeBox");
    QTest::newRow("the same window") << list << tree << tree << none << true;
    QTest::newRow("another list in another window") << list << tree << main << none << false;
    QTest::newRow("a part of the step's window") << list << main << tree << main << true;
    QTest::newRow("a part of another window")
        << list << QStringLiteral("DatabaseMain") << tree << main << false;
    QTest::newRow("a part beside that of the step")
        << list << QStringLiteral("MainWindowClient_mapEditorView") << tree << main << false;
    QTest::newRow("a step of the whole editor")
        << list << QStringLiteral("ApplicationWindow") << tree << main << true;
    QTest::newRow("a step of no window") << list << QString() << tree << main << true;
    QTest::newRow("an event of no window") << list << tree << QString() << none << true;
    QTest::newRow("an action, from wherever") << QStringLiteral("action,0,") << tree << main << none << true;
}

void tst_Condition::aControlCountsInTheWindowOfTheStep()
{
    QFETCH(QString, text);
    QFETCH(QString, stepWindow);
    QFETCH(QString, eventWindow);
    QFETCH(QString, around);
    const EditorEvent event{
        text.section(QLatin1Char(','), 0, 0), QStringLiteral("0"), QString(), eventWindow, {}, around};
    QTEST(Condition::parse(text)->isMetBy(event, stepWindow), "met");
}

void tst_Condition::onlyWindowStatesHoldByThemselves_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("holds");
    QTest::newRow("open and asked to be open") << QStringLiteral("windowState,A,open") << true;
    QTest::newRow("open and asked to close") << QStringLiteral("windowState,A,close") << false;
    QTest::newRow("closed and asked to be open") << QStringLiteral("windowState,B,open") << false;
    QTest::newRow("closed and asked to close") << QStringLiteral("windowState,B,close") << true;
    QTest::newRow("a popup") << QStringLiteral("popup,A") << false;
    QTest::newRow("a list") << QStringLiteral("list,0") << false;
    QTest::newRow("next") << QStringLiteral("click,") << false;
}

void tst_Condition::onlyWindowStatesHoldByThemselves()
{
    QFETCH(QString, text);
    QTEST(Condition::parse(text)->holds({QStringLiteral("A"), QStringLiteral("C")}), "holds");
}

void tst_Condition::waitsForTheTimeGiven_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("ms");
    QTest::newRow("none") << QStringLiteral("wait") << Condition::kDefaultWaitMs;
    QTest::newRow("some") << QStringLiteral("wait,2500") << 2500;
    QTest::newRow("nothing") << QStringLiteral("wait,0") << Condition::kDefaultWaitMs;
}

void tst_Condition::waitsForTheTimeGiven()
{
    QFETCH(QString, text);
    QTEST(Condition::parse(text)->waitMs(), "ms");
}

QTEST_APPLESS_MAIN(tst_Condition)
#include "tst_Condition.moc"
