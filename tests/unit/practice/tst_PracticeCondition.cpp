#include "runner/Condition.h"

#include <QTest>

class TestCondition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFormsOfLessons_data();
    void readsTheFormsOfLessons();
    void refusesWhatIsNoCondition_data();
    void refusesWhatIsNoCondition();
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

void TestCondition::readsTheFormsOfLessons_data()
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
    row("windowState,NewProject,open", Type::kWindowState, "NewProject", "open");
    row("list,2", Type::kList, "2", "");
    row("action,fileSave,close", Type::kAction, "fileSave", "close");
    row("action,drawPencil,", Type::kAction, "drawPencil", "");
    row("action,drawPencil", Type::kAction, "drawPencil", "");
    row("tabView,tabview,1", Type::kTabView, "tabview", "1");
    row("spinBox,=,35 %", Type::kSpinBox, "=", "35 %");
    row("comboBox,moveType,1", Type::kComboBox, "moveType", "1");
    row("checked,directionFix,1", Type::kChecked, "directionFix", "1");
    row("popup,MapPopup", Type::kPopup, "MapPopup", "");
    row("mouseEvent,Map,click", Type::kMouseEvent, "Map", "click");
    row("radioButton,RadioButton,8", Type::kRadioButton, "RadioButton", "8");
    row("pressed,0,0", Type::kPressed, "0", "0");
    row("menuEvent,Map,click", Type::kMenuEvent, "Map", "click");
    row("textLength,name,4", Type::kTextLength, "name", "4");
}

void TestCondition::readsTheFormsOfLessons()
{
    QFETCH(QString, text);
    const std::optional<Condition> condition = Condition::parse(text);
    QVERIFY(condition);
    QTEST(condition->type(), "type");
    QTEST(condition->target(), "target");
    QTEST(condition->value(), "value");
}

void TestCondition::refusesWhatIsNoCondition_data()
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
                             ","}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void TestCondition::refusesWhatIsNoCondition()
{
    QFETCH(QString, text);
    QVERIFY(!Condition::parse(text));
}

void TestCondition::isMetByItsEventOnly_data()
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

void TestCondition::isMetByItsEventOnly()
{
    QFETCH(QString, text);
    QFETCH(QString, event);
    const QStringList fields = event.split(QLatin1Char(','));
    const EditorEvent happened{fields.value(0), fields.value(1), fields.value(2),
                               QStringLiteral("MainWindow")};
    QTEST(Condition::parse(text)->isMetBy(happened, QStringLiteral("MainWindow")), "met");
}

void TestCondition::aControlCountsInTheWindowOfTheStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stepWindow");
    QTest::addColumn<QString>("eventWindow");
    QTest::addColumn<bool>("met");

    const QString list = QStringLiteral("list,0");
    const QString main = QStringLiteral("MainWindow");
    const QString tree = QStringLiteral("MapEditTreeBox");
    QTest::newRow("the same window") << list << tree << tree << true;
    QTest::newRow("another list in another window") << list << tree << main << false;
    QTest::newRow("a step of the whole editor")
        << list << QStringLiteral("ApplicationWindow") << tree << true;
    QTest::newRow("a step of no window") << list << QString() << tree << true;
    QTest::newRow("an event of no window") << list << tree << QString() << true;
    QTest::newRow("an action, from wherever") << QStringLiteral("action,0,") << tree << main << true;
}

void TestCondition::aControlCountsInTheWindowOfTheStep()
{
    QFETCH(QString, text);
    QFETCH(QString, stepWindow);
    QFETCH(QString, eventWindow);
    const EditorEvent event{text.section(QLatin1Char(','), 0, 0), QStringLiteral("0"), QString(),
                            eventWindow};
    QTEST(Condition::parse(text)->isMetBy(event, stepWindow), "met");
}

void TestCondition::onlyWindowStatesHoldByThemselves_data()
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

void TestCondition::onlyWindowStatesHoldByThemselves()
{
    QFETCH(QString, text);
    QTEST(Condition::parse(text)->holds({QStringLiteral("A"), QStringLiteral("C")}), "holds");
}

void TestCondition::waitsForTheTimeGiven_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("ms");
    QTest::newRow("none") << QStringLiteral("wait") << Condition::kDefaultWaitMs;
    QTest::newRow("some") << QStringLiteral("wait,2500") << 2500;
    QTest::newRow("nothing") << QStringLiteral("wait,0") << Condition::kDefaultWaitMs;
    QTest::newRow("below nothing") << QStringLiteral("wait,-5") << Condition::kDefaultWaitMs;
}

void TestCondition::waitsForTheTimeGiven()
{
    QFETCH(QString, text);
    QTEST(Condition::parse(text)->waitMs(), "ms");
}

QTEST_APPLESS_MAIN(TestCondition)
#include "tst_PracticeCondition.moc"
