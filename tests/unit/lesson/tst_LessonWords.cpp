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

QTEST_APPLESS_MAIN(tst_LessonWords)
#include "tst_LessonWords.moc"
