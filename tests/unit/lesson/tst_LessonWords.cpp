#include "lesson/LessonWords.h"

#include <QTest>

class tst_LessonWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesIconsTheirNumberInTheLink();
    void readsTheStepOfACommand_data();
    void readsTheStepOfACommand();
    void namesEnglishFirst();
    void knowsAHintThatAsksToDrag_data();
    void knowsAHintThatAsksToDrag();
    void numbersAreFoundInHints_data();
    void numbersAreFoundInHints();
    void knowsHowOftenToClick_data();
    void knowsHowOftenToClick();
};

void tst_LessonWords::givesIconsTheirNumberInTheLink()
{
    QCOMPARE(LessonWords::iconKind(QStringLiteral("click")), 0);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("doubleClick")), 1);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("rightClick")), 2);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("eye")), 3);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("wait")), 4);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("keyboard")), 5);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("none")), 6);
    QCOMPARE(LessonWords::iconKind(QStringLiteral("Click")), 6);
    QCOMPARE(LessonWords::iconKind(QString()), 6);
}

void tst_LessonWords::readsTheStepOfACommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("step");
    const auto row = [](const char *command, const char *step) {
        QTest::newRow(command) << QString::fromLatin1(command) << QString::fromLatin1(step);
    };
    row("presetData,step2", "step2");
    row("presetData,step19", "step19");
    row("", "");
    row("presetData", "");
    row("presetData,", "");
    row("presetData,step", "");
    row("presetData,step0", "");
    row("presetData,step02", "");
    row("presetData,step2,", "");
    row(" presetData,step2", "");
    row("presetdata,step2", "");
}

void tst_LessonWords::readsTheStepOfACommand()
{
    QFETCH(QString, command);
    QTEST(LessonWords::presetStep(command), "step");
}

void tst_LessonWords::namesEnglishFirst()
{
    QCOMPARE(LessonWords::locales(),
             (QStringList{QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN")}));
}

void tst_LessonWords::knowsAHintThatAsksToDrag_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<bool>("drags");
    const auto row = [](const char *hint, bool drags) {
        QTest::newRow(hint) << QString::fromUtf8(hint) << drags;
    };
    row("Press the mouse button here, drag to the lower right and let go.", true);
    row("Drag to the right.", true);
    row("Keep dragging.", true);
    row("ここでマウスのボタンを押し、右下へドラッグして離してください。", true);
    row("在这里按下鼠标左键，向右拖动后松开。", true);
    row("Press the left mouse button here.", false);
    row("Click “Dragon”. It guards the cave.", false);
    row("「ドラゴン」をクリックしてください。", false);
    row("", false);
}

void tst_LessonWords::knowsAHintThatAsksToDrag()
{
    QFETCH(QString, hint);
    QTEST(LessonWords::saysDrag(hint), "drags");
}

void tst_LessonWords::numbersAreFoundInHints_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QString>("number");
    QTest::newRow("none") << QStringLiteral("Type a name.") << QString();
    QTest::newRow("one") << QStringLiteral("Type 6 and press Enter.") << QStringLiteral("6");
    QTest::newRow("below zero") << QStringLiteral("Type -20.") << QStringLiteral("-20");
    QTest::newRow("the first of two") << QStringLiteral("35と入力し、次に7です。") << QStringLiteral("35");
}

void tst_LessonWords::numbersAreFoundInHints()
{
    QFETCH(QString, hint);
    QTEST(LessonWords::numberToType(hint), "number");
}

void tst_LessonWords::knowsHowOftenToClick_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<int>("times");
    const auto row = [](const char *hint, int times) {
        QTest::newRow(hint) << QString::fromUtf8(hint) << times;
    };
    row("Click “Up” five times: it is five cells to the lamp. Then click “Next”.", 5);
    row("「上に移動」を5回クリックします。ランプの前まで5マスです。そのあと「次へ」です。", 5);
    row("点击“向上移动”五次，走五格就到灯前。然后点击“下一步”。", 5);
    row("Click “Add” twice.", 2);
    row("点击两次“添加”。", 2);
    row("点击“添加” 12 次。", 12);
    row("Click “Left” once: one cell. Then click “Next”.", 1);
    row("「左に移動」を1回クリックします。そのあと「次へ」です。", 1);
    row("点击一次“向左移动”，走一格。然后点击“下一步”。", 1);
    // How often something else happens.
    row("Click “Priority”. One with 6 comes three times as often.", 1);
    row("Click “Twice a turn”.", 1);
    row("「毎ターン」をクリックします。HPが毎ターン5回復します。", 1);
    row("点击“每场战斗打两次”。", 1);
    row("打一个回合：按 Enter 两次。然后点击“下一步”。", 1);
    row("点击第二个。说两次话。", 1);
    row("Double-click it: the window opens two times.", 1);
    row("Right-click it twice.", 1);
    row("右键点击两次。", 1);
    row("Click it many times.", 1);
    // Nobody is kept busy by a slip of the keyboard.
    row("Click “Up” 5000000000 times.", 1);
    row("Click “Up” 5000 times.", 20);
    row("", 1);
}

void tst_LessonWords::knowsHowOftenToClick()
{
    QFETCH(QString, hint);
    QTEST(LessonWords::timesToClick(hint), "times");
}

QTEST_APPLESS_MAIN(tst_LessonWords)
#include "tst_LessonWords.moc"
