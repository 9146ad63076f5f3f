#include "host/HostCommands.h"

#include <QTest>

using Kind = CompanionCommand::Kind;
Q_DECLARE_METATYPE(CompanionCommand::Kind)

class tst_HostCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsEachCommand_data();
    void buildsEachCommand();
    void buildsTheFlagsOfAStep_data();
    void buildsTheFlagsOfAStep();
    void readsTheKindOfACommand_data();
    void readsTheKindOfACommand();
    void readsALessonWithItsSeparatorsInside();
    void saysWhenALessonNamesNoItem();
    void readsTheListOfLessons();
    void readsDataFiles();
    void saysWhatCannotBeRead_data();
    void saysWhatCannotBeRead();
    void readsWhereAnAuthorMovedAStep();
};

void tst_HostCommands::buildsEachCommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("fields");
    const auto row = [](const QString &command, const char *fields) {
        QTest::newRow(fields) << command << QString::fromLatin1(fields);
    };
    const QString key = QStringLiteral("MainWindow");
    row(HostCommands::alive(), "alive");
    row(HostCommands::bye(), "bye");
    row(HostCommands::fromServer(QStringLiteral("ja_JP")), "fromServer|ja_JP");
    row(HostCommands::tutorialList(), "tutorialList");
    row(HostCommands::tutorial(QStringLiteral("TutorialStep1")), "tutorial|TutorialStep1");
    row(HostCommands::requestPresetData(QStringLiteral("step2")), "requestPresetData|step2");
    row(HostCommands::start({10, -20, 1280, 960}), "start|10|-20|1280|960");
    row(HostCommands::stop(), "stop");
    row(HostCommands::indicatorUpdateXy({-5, 7}), "indicator|updateXy|-5|7");
    row(HostCommands::windowPush(key), "windowStack|push|MainWindow");
    row(HostCommands::windowPop(), "windowStack|pop");
    row(HostCommands::windowPosition(key, {1, 2}), "windowPosition|MainWindow|1|2");
    row(HostCommands::controlPosition(QStringLiteral("MainWindow_save"), {3, 4}),
        "controlPosition|MainWindow_save|3|4");
    row(HostCommands::applicationWindowSize({1100, 720}), "applicationWindowSize|1100|720");
    row(HostCommands::state(true), "state|show");
    row(HostCommands::state(false), "state|hide");
    row(HostCommands::showTooltip(QStringLiteral("Saved"), {8, 9}), "showTooltip|Saved|8|9");
    row(HostCommands::hideTooltip(), "hideTooltip");
    row(HostCommands::contents(QStringLiteral("Doors")), "contents|Doors");
    row(HostCommands::logAppend(QStringLiteral("Name the game")), "log|append|Name the game");
}

void tst_HostCommands::buildsEachCommand()
{
    QFETCH(QString, command);
    QFETCH(QString, fields);
    QCOMPARE(command, fields.replace(QLatin1Char('|'), QChar(1)));
}

void tst_HostCommands::buildsTheFlagsOfAStep_data()
{
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    QTest::addColumn<bool>("arrow");
    QTest::addColumn<bool>("placed");
    QTest::addColumn<QString>("fields");
    QTest::newRow("nothing") << false << false << false << true << "indicator|update|30|40|A|Go|0|3";
    QTest::newRow("next") << true << false << false << true << "indicator|update|30|40|A|Go|1|3";
    QTest::newRow("yes and no") << false << true << false << true << "indicator|update|30|40|A|Go|2|3";
    QTest::newRow("arrow") << false << false << true << true << "indicator|update|30|40|A|Go|4|3";
    QTest::newRow("next and arrow") << true << false << true << true << "indicator|update|30|40|A|Go|5|3";
    QTest::newRow("no place") << true << false << true << false << "indicator|update|-9999|-9999|A|Go|5|3";
}

void tst_HostCommands::buildsTheFlagsOfAStep()
{
    QFETCH(bool, next);
    QFETCH(bool, yesNo);
    QFETCH(bool, arrow);
    QFETCH(bool, placed);
    QFETCH(QString, fields);
    IndicatorUpdate update;
    update.place = placed ? std::optional<QPoint>({30, 40}) : std::nullopt;
    update.windowKey = QStringLiteral("A");
    update.hint = QStringLiteral("Go");
    update.next = next;
    update.yesNo = yesNo;
    update.arrow = arrow;
    update.iconKind = 3;
    QCOMPARE(HostCommands::indicatorUpdate(update), fields.replace(QLatin1Char('|'), QChar(1)));
}

void tst_HostCommands::readsTheKindOfACommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<Kind>("kind");
    QTest::newRow("alive") << "alive" << Kind::kAlive;
    QTest::newRow("next") << "next" << Kind::kNext;
    QTest::newRow("yes") << "yes" << Kind::kYes;
    QTest::newRow("no") << "no" << Kind::kNo;
    QTest::newRow("tutorialReady") << "tutorialReady" << Kind::kTutorialReady;
    QTest::newRow("unknown") << "dance" << Kind::kUnknown;
    QTest::newRow("empty") << "" << Kind::kUnknown;
    QTest::newRow("case") << "Next" << Kind::kUnknown;
    QTest::newRow("indicator of another kind") << "indicator\u0001jump" << Kind::kUnknown;
}

void tst_HostCommands::readsTheKindOfACommand()
{
    QFETCH(QString, command);
    const CompanionCommand read = CompanionCommand::read(command);
    QTEST(read.kind, "kind");
    QCOMPARE(read.word, command.section(QChar(1), 0, 0));
    QCOMPARE(read.problem.isEmpty(), read.kind != Kind::kUnknown);
}

void tst_HostCommands::readsALessonWithItsSeparatorsInside()
{
    const CompanionCommand read =
        CompanionCommand::read(QStringLiteral("start\u0001var scenario = [\u0001];\u000142"));
    QCOMPARE(read.kind, Kind::kStart);
    QCOMPARE(read.text, QStringLiteral("var scenario = [\u0001];"));
    QCOMPARE(read.id.value_or(0), 42);
    QCOMPARE(read.problem, QString());
}

void tst_HostCommands::saysWhenALessonNamesNoItem()
{
    const CompanionCommand read =
        CompanionCommand::read(QStringLiteral("start\u0001var scenario = [];\u0001x"));
    QCOMPARE(read.kind, Kind::kStart);
    QVERIFY(!read.id);
    QVERIFY(!read.problem.isEmpty());
}

void tst_HostCommands::readsTheListOfLessons()
{
    const CompanionCommand read = CompanionCommand::read(
        QStringLiteral("tutorialList\u0001[{\"filename\":\"TutorialStep1\",\"title\":\"Maps\"},{}]"));
    QCOMPARE(read.kind, Kind::kTutorialList);
    QCOMPARE(read.lessons.size(), 2);
    QCOMPARE(read.lessons.constFirst().name, QStringLiteral("TutorialStep1"));
    QCOMPARE(read.lessons.constFirst().title, QStringLiteral("Maps"));
    QCOMPARE(read.lessons.constLast().name, QString());
}

void tst_HostCommands::readsDataFiles()
{
    const CompanionCommand read = CompanionCommand::read(
        QStringLiteral("feedbackPresetData\u0001{\"data/Map001.json\":\"[1]\",\"data/Items.json\":\"[]\"}"));
    QCOMPARE(read.kind, Kind::kFeedbackPresetData);
    QCOMPARE(read.files, (QMap<QString, QString>{{QStringLiteral("data/Map001.json"), QStringLiteral("[1]")},
                                                 {QStringLiteral("data/Items.json"), QStringLiteral("[]")}}));
}

void tst_HostCommands::saysWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("list") << "tutorialList\u0001[";
    QTest::newRow("files") << "feedbackPresetData\u0001[]";
    QTest::newRow("unknown") << "dance";
}

void tst_HostCommands::saysWhatCannotBeRead()
{
    QFETCH(QString, command);
    QVERIFY(!CompanionCommand::read(command).problem.isEmpty());
}

void tst_HostCommands::readsWhereAnAuthorMovedAStep()
{
    const CompanionCommand read =
        CompanionCommand::read(QStringLiteral("indicator\u0001updateXYWindowKey\u000112\u0001-7\u0001Menu"));
    QCOMPARE(read.kind, Kind::kIndicatorMoved);
    QCOMPARE(read.place, QPoint(12, -7));
    QCOMPARE(read.text, QStringLiteral("Menu"));
}

QTEST_APPLESS_MAIN(tst_HostCommands)
#include "tst_HostCommands.moc"
