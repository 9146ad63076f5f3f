#include "lesson-check/Condition.h"

#include <QTest>

class tst_Condition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsEveryFormInUse_data();
    void acceptsEveryFormInUse();
    void refusesOtherForms_data();
    void refusesOtherForms();
    void namesTheWindowOfAWindowState();
    void namesTheActionAndItsLastWord();
};

void tst_Condition::acceptsEveryFormInUse_data()
{
    QTest::addColumn<QString>("text");
    const QStringList texts = {
        QStringLiteral("click,"),
        QStringLiteral("click"),
        QStringLiteral("windowState,Copying,open"),
        QStringLiteral("windowState,MainWindowClient_mapEditorView,close"),
        QStringLiteral("list,2"),
        QStringLiteral("action,editUndo,"),
        QStringLiteral("action,fileOpen,open"),
        QStringLiteral("action,fileSave,close"),
        QStringLiteral("tabView,tabview,1"),
        QStringLiteral("yesNo"),
        QStringLiteral("spinBox,=,35 %"),
        QStringLiteral("spinBox,=,-3"),
        QStringLiteral("comboBox,moveType,1"),
        QStringLiteral("checked,directionFix,1"),
        QStringLiteral("popup,MapPopup"),
        QStringLiteral("mouseEvent,Map,click"),
        QStringLiteral("radioButton,RadioButton,8"),
        QStringLiteral("pressed,0,0"),
        QStringLiteral("menuEvent,Map,click"),
    };
    for (const QString &text : texts)
        QTest::newRow(qPrintable(text)) << text;
}

void tst_Condition::acceptsEveryFormInUse()
{
    QFETCH(QString, text);
    const Condition condition(text);
    QCOMPARE(condition.problem(), QString());
    QCOMPARE(condition.type(), text.section(QLatin1Char(','), 0, 0));
}

void tst_Condition::refusesOtherForms_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *text, const char *problem) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(problem);
    };
    row("", "\"\" is not a condition type");
    row("wait,3", "\"wait\" is not a condition type");
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
}

void tst_Condition::refusesOtherForms()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    QCOMPARE(Condition(text).problem(), problem);
}

void tst_Condition::namesTheWindowOfAWindowState()
{
    QCOMPARE(Condition(QStringLiteral("windowState,Copying,close")).windowKey(), QStringLiteral("Copying"));
    QCOMPARE(Condition(QStringLiteral("list,2")).windowKey(), QString());
}

void tst_Condition::namesTheActionAndItsLastWord()
{
    const Condition save(QStringLiteral("action,fileSave,close"));
    QCOMPARE(save.action(), QStringLiteral("fileSave"));
    QCOMPARE(save.actionState(), QStringLiteral("close"));
    QCOMPARE(Condition(QStringLiteral("action,editUndo,")).actionState(), QString());
    QCOMPARE(Condition(QStringLiteral("action,fileSave,shut")).action(), QString());
    QCOMPARE(Condition(QStringLiteral("windowState,Copying,close")).action(), QString());
}

QTEST_APPLESS_MAIN(tst_Condition)
#include "tst_Condition.moc"
