#include "LessonPanel.h"
#include "PracticeTranslator.h"

#include <QLabel>
#include <QTest>

class tst_LessonPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesFit_data();
    void messagesFit();
    void silenceLeavesNothingBehind();
};

void tst_LessonPanel::messagesFit_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("Load a sample map")
                             << QStringLiteral("A person on the map");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("サンプルマップの読み込み")
                              << QStringLiteral("マップに人物を置く");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("载入示例地图")
                             << QStringLiteral("在地图上安排人物");
}

void tst_LessonPanel::messagesFit()
{
    QFETCH(QString, locale);
    QFETCH(QString, window);
    QFETCH(QString, title);
    const PracticeTranslator translator(locale);
    LessonPanel panel;
    panel.setLessons({{QStringLiteral("TutorialStep1"), title}});
    panel.show();
    const QLabel *status = panel.findChild<QLabel *>(QStringLiteral("statusLabel"));
    const auto fits = [status] {
        return status->heightForWidth(status->width()) <= status->height();
    };
    panel.showStep(QStringLiteral("TutorialStep1"), 86, 86);
    QVERIFY(fits());
    panel.showClosed(window);
    QVERIFY2(status->text().contains(window) && fits(), qPrintable(status->text()));
    panel.showRefused(QStringLiteral("TutorialStep1"));
    QVERIFY2(status->text().contains(title) && fits(), qPrintable(status->text()));
    panel.setSilent(true);
    QVERIFY(fits());
    panel.showFinished();
    QVERIFY(fits());
}

void tst_LessonPanel::silenceLeavesNothingBehind()
{
    LessonPanel panel;
    const QLabel *status = panel.findChild<QLabel *>(QStringLiteral("statusLabel"));
    panel.showStep(QStringLiteral("TutorialStep1"), 4, 86);
    panel.showClosed(QStringLiteral("New project"));
    const QString told = status->text();
    QVERIFY2(told.contains(QStringLiteral("New project")), qPrintable(told));
    panel.setSilent(true);
    QCOMPARE(status->text(), QStringLiteral("The guide does not answer."));
    panel.setSilent(false);
    QCOMPARE(status->text(), told);
}

QTEST_MAIN(tst_LessonPanel)
#include "tst_LessonPanel.moc"
