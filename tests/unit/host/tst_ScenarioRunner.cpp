#include "host/ScenarioRunner.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QString item(int id, const QString &condition, int jump = -1, int jumpNo = -1, const QString &command = {})
{
    return QStringLiteral(R"({"id":%1,"condition":"%2","jump":%3,"jumpNo":%4,"command":"%5"})")
        .arg(id)
        .arg(condition)
        .arg(jump)
        .arg(jumpNo)
        .arg(command);
}

Scenario scenarioOf(const QStringList &items, QStringList *problems = nullptr)
{
    QStringList ignored;
    return Scenario::parse(QStringLiteral("var scenario = [%1];").arg(items.join(QLatin1Char(','))),
                           problems != nullptr ? problems : &ignored);
}

EditorEvent happening(const QString &words)
{
    const QStringList fields = words.split(QLatin1Char(','));
    return {fields.value(0), fields.value(1), fields.value(2), {}};
}

} // namespace

class tst_ScenarioRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryFieldOfAStep();
    void fillsInWhatAStepLeavesOut();
    void opensFoldersOut();
    void saysWhatIsWrongWithAScenario_data();
    void saysWhatIsWrongWithAScenario();
    void namesWordsThatNobodyKnows_data();
    void namesWordsThatNobodyKnows();
    void knowsTheSameLessonInAnotherLanguage();
    void numbersTheIcons_data();
    void numbersTheIcons();

    void playsToTheEnd();
    void beginsAtAStep_data();
    void beginsAtAStep();
    void anEmptyScenarioFinishesAtOnce();
    void followsJumps_data();
    void followsJumps();
    void goesOnWhenTheJumpLeadsNowhere();
    void aButtonThatTheStepDoesNotShowDoesNothing();
    void anEventForAnotherStepDoesNothing();
    void asksForTheCommandBeforeTheStep();
    void passesAStepThatHasNothingToWaitFor();
    void passingGoesNotRoundForEver();
    void theCommandOfAPassedStepRuns();
    void goesToAStepAlsoWhereNothingIsLeftToDo();
    void knowsTheStepBehindNext_data();
    void knowsTheStepBehindNext();
    void runsAheadOverTwoSteps();
    void skipsAnyStep_data();
    void skipsAnyStep();
    void stopsSilently();
    void mayBeStoppedByTheCommandItAsksFor();
};

void tst_ScenarioRunner::readsEveryFieldOfAStep()
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(
        QStringLiteral(
            "\uFEFFvar scenario = [\r\n{\"id\":7,\"name\":\"n\",\"folder\":false,\"translationId\":3,"
            "\"x\":-12,\"y\":34,\"windowKey\":\"Copying\",\"condition\":\"windowState,Copying,close\","
            "\"hint\":\"Wait; [it] ends.\",\"icon\":\"wait\",\"jump\":7,\"jumpNo\":7,"
            "\"command\":\"presetData,step2\",\"showArrow\":false,\"prohibited\":false    }\r\n];"),
        &problems);
    QCOMPARE(problems, QStringList());
    QCOMPARE(scenario.size(), 1);
    const Step &step = scenario.step(0);
    QCOMPARE(step.id, 7);
    QCOMPARE(step.x, -12);
    QCOMPARE(step.y, 34);
    QCOMPARE(step.windowKey, QStringLiteral("Copying"));
    QCOMPARE(step.condition.type(), Condition::Type::kWindowState);
    QCOMPARE(step.hint, QStringLiteral("Wait; [it] ends."));
    QCOMPARE(LessonWords::iconKind(step.icon), 4);
    QCOMPARE(step.jump, 7);
    QCOMPARE(step.jumpNo, 7);
    QCOMPARE(step.command, QStringLiteral("presetData,step2"));
    QVERIFY(!step.showArrow);
    QVERIFY(step.hasPosition());
}

void tst_ScenarioRunner::fillsInWhatAStepLeavesOut()
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(QStringLiteral("[{\"id\":1}]"), &problems);
    QCOMPARE(problems, QStringList());
    const Step &step = scenario.step(0);
    QCOMPARE(step.condition.type(), Condition::Type::kNext);
    QCOMPARE(step.icon, QStringLiteral("click"));
    QCOMPARE(step.jump, LessonWords::kNoJump);
    QVERIFY(step.showArrow);
}

void tst_ScenarioRunner::opensFoldersOut()
{
    const Scenario scenario =
        scenarioOf({item(1, QString()),
                    QStringLiteral("{\"id\":2,\"folder\":true,\"children\":[%1,{\"id\":4,\"folder\":true,"
                                   "\"children\":[%2]}]}")
                        .arg(item(3, QString()), item(5, QString())),
                    item(6, QString())});
    QCOMPARE(scenario.size(), 4);
    QCOMPARE(scenario.indexOf(2), -1);
    QCOMPARE(scenario.indexOf(3), 1);
    QCOMPARE(scenario.indexOf(5), 2);
    QCOMPARE(scenario.indexOf(6), 3);
}

void tst_ScenarioRunner::saysWhatIsWrongWithAScenario_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<int>("steps");
    QTest::newRow("nothing") << QString() << QStringLiteral("no list") << 0;
    QTest::newRow("an object") << QStringLiteral("var scenario = {};") << QStringLiteral("no list") << 0;
    QTest::newRow("cut short") << QStringLiteral("var scenario = [{\"id\":1") << QStringLiteral("no list")
                               << 0;
    QTest::newRow("no id") << QStringLiteral("[{\"name\":\"a\"}]") << QStringLiteral("has no id") << 0;
    QTest::newRow("an id twice") << QStringLiteral("[{\"id\":4},{\"id\":4}]")
                                 << QStringLiteral("step 4: the id") << 2;
    QTest::newRow("a jump to nowhere")
        << QStringLiteral("[{\"id\":4,\"jump\":9}]") << QStringLiteral("step 4: no step has the id 9") << 1;
}

void tst_ScenarioRunner::saysWhatIsWrongWithAScenario()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    QStringList problems;
    const Scenario scenario = Scenario::parse(text, &problems);
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.constFirst().contains(problem), qPrintable(problems.constFirst()));
    QTEST(scenario.size(), "steps");
}

void tst_ScenarioRunner::namesWordsThatNobodyKnows_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a condition") << QStringLiteral(R"("condition":"dance,2")") << QStringLiteral("dance,2")
                                 << QStringLiteral("\"dance\" is not a condition type");
    QTest::newRow("a condition of another form") << QStringLiteral(R"("condition":"list,a")")
                                                 << QStringLiteral("list,a") << QStringLiteral("\"list,2\"");
    QTest::newRow("an icon") << QStringLiteral(R"("icon":"hammer")") << QStringLiteral("hammer")
                             << QStringLiteral("doubleClick");
    QTest::newRow("a command") << QStringLiteral(R"("command":"presetData,2")")
                               << QStringLiteral("presetData,2") << QStringLiteral("presetData,stepN");
}

void tst_ScenarioRunner::namesWordsThatNobodyKnows()
{
    QFETCH(QString, fields);
    QFETCH(QString, problem);
    QStringList problems;
    const Scenario scenario = scenarioOf({QStringLiteral(R"({"id":4,%1})").arg(fields)}, &problems);
    QCOMPARE(problems, QStringList());
    QCOMPARE(scenario.unknownWords().size(), 1);
    const UnknownWord &unknown = scenario.unknownWords().constFirst();
    QCOMPARE(unknown.stepId, 4);
    QTEST(unknown.word, "word");
    QVERIFY2(unknown.problem.contains(problem), qPrintable(unknown.problem));
}

void tst_ScenarioRunner::knowsTheSameLessonInAnotherLanguage()
{
    const QString form = QStringLiteral(R"({"id":1,"x":%1,"condition":"click,","hint":"%2"})");
    const Scenario english = scenarioOf({form.arg(3).arg(QStringLiteral("Read"))});
    QVERIFY(english.isSameLesson(scenarioOf({form.arg(3).arg(QStringLiteral("Lies"))})));
    QVERIFY(!english.isSameLesson(scenarioOf({form.arg(4).arg(QStringLiteral("Read"))})));
    QVERIFY(!english.isSameLesson(Scenario()));
}

void tst_ScenarioRunner::numbersTheIcons_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("click") << 0;
    QTest::newRow("doubleClick") << 1;
    QTest::newRow("rightClick") << 2;
    QTest::newRow("eye") << 3;
    QTest::newRow("wait") << 4;
    QTest::newRow("keyboard") << 5;
    QTest::newRow("hammer") << 6;
}

void tst_ScenarioRunner::numbersTheIcons()
{
    Step step;
    step.icon = QString::fromLatin1(QTest::currentDataTag());
    QTEST(LessonWords::iconKind(step.icon), "kind");
}

void tst_ScenarioRunner::playsToTheEnd()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    QSignalSpy finished(&runner, &ScenarioRunner::finished);
    runner.start(scenarioOf({item(5, QStringLiteral("click,")), item(3, QStringLiteral("list,2")),
                             item(9, QStringLiteral("yesNo")), item(1, QStringLiteral("wait,10"))}),
                 -1);
    QCOMPARE(runner.step().id, 5);
    runner.next();
    QCOMPARE(runner.step().id, 3);
    runner.handle(happening(QStringLiteral("list,2")));
    QCOMPARE(runner.step().id, 9);
    runner.answer(false);
    QCOMPARE(runner.step().id, 1);
    QVERIFY(finished.isEmpty());
    runner.elapsed();
    QCOMPARE(reached.size(), 4);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!runner.isRunning());
}

void tst_ScenarioRunner::beginsAtAStep_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("first");
    QTest::newRow("the beginning") << -1 << 10;
    QTest::newRow("a step in the middle") << 20 << 20;
    QTest::newRow("an id that no step has") << 99 << 10;
}

void tst_ScenarioRunner::beginsAtAStep()
{
    QFETCH(int, id);
    ScenarioRunner runner([] { return QStringList(); });
    runner.start(scenarioOf({item(10, QString()), item(20, QString()), item(30, QString())}), id);
    QTEST(runner.step().id, "first");
}

void tst_ScenarioRunner::anEmptyScenarioFinishesAtOnce()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy finished(&runner, &ScenarioRunner::finished);
    runner.start(Scenario(), -1);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!runner.isRunning());
}

void tst_ScenarioRunner::followsJumps_data()
{
    QTest::addColumn<int>("jump");
    QTest::addColumn<int>("jumpNo");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<int>("next");
    QTest::newRow("yes") << 3 << 6 << true << 3;
    QTest::newRow("no") << 3 << 6 << false << 6;
    QTest::newRow("yes without a jump") << -1 << 6 << true << 2;
    QTest::newRow("no without a jump") << 3 << -1 << false << 2;
    QTest::newRow("back to itself") << 1 << 6 << true << 1;
}

void tst_ScenarioRunner::followsJumps()
{
    QFETCH(int, jump);
    QFETCH(int, jumpNo);
    QFETCH(bool, yes);
    ScenarioRunner runner([] { return QStringList(); });
    runner.start(scenarioOf({item(1, QStringLiteral("yesNo"), jump, jumpNo), item(2, QString()),
                             item(6, QString()), item(3, QString())}),
                 -1);
    runner.answer(yes);
    QTEST(runner.step().id, "next");
}

void tst_ScenarioRunner::goesOnWhenTheJumpLeadsNowhere()
{
    ScenarioRunner runner([] { return QStringList(); });
    runner.start(scenarioOf({item(1, QString(), 77), item(2, QString())}), -1);
    runner.next();
    QCOMPARE(runner.step().id, 2);
}

void tst_ScenarioRunner::aButtonThatTheStepDoesNotShowDoesNothing()
{
    ScenarioRunner runner([] { return QStringList(); });
    const Scenario scenario =
        scenarioOf({item(1, QStringLiteral("list,0")), item(2, QStringLiteral("click,"))});
    runner.start(scenario, 1);
    runner.next();
    runner.answer(true);
    runner.elapsed();
    QCOMPARE(runner.step().id, 1);
    runner.start(scenario, 2);
    runner.answer(false);
    runner.elapsed();
    QCOMPARE(runner.step().id, 2);
}

void tst_ScenarioRunner::anEventForAnotherStepDoesNothing()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    runner.start(scenarioOf({item(1, QStringLiteral("list,0")), item(2, QStringLiteral("list,1"))}), -1);
    runner.handle(happening(QStringLiteral("list,1")));
    QCOMPARE(runner.step().id, 1);
    // A row that was selected before counts when it is clicked again, and only then.
    runner.handle(happening(QStringLiteral("list,0")));
    QCOMPARE(runner.step().id, 2);
    runner.handle(happening(QStringLiteral("list,1")));
    QVERIFY(!runner.isRunning());
    QCOMPARE(reached.size(), 2);
}

void tst_ScenarioRunner::asksForTheCommandBeforeTheStep()
{
    ScenarioRunner runner([] { return QStringList(); });
    QStringList order;
    connect(&runner, &ScenarioRunner::commandRequested, this,
            [&order](const QString &command) { order << command; });
    connect(&runner, &ScenarioRunner::stepReached, this, [&order] { order << QStringLiteral("step"); });
    runner.start(
        scenarioOf({item(1, QString(), -1, -1, QStringLiteral("presetData,step2")), item(2, QString())}), -1);
    runner.next();
    QCOMPARE(order, (QStringList{QStringLiteral("presetData,step2"), QStringLiteral("step"),
                                 QStringLiteral("step")}));
}

void tst_ScenarioRunner::passesAStepThatHasNothingToWaitFor()
{
    QStringList open = {QStringLiteral("A")};
    ScenarioRunner runner([&open] { return open; });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    runner.start(scenarioOf({item(1, QStringLiteral("windowState,A,open")),
                             item(2, QStringLiteral("windowState,B,close")),
                             item(3, QStringLiteral("windowState,A,close"), 5), item(4, QString()),
                             item(5, QString())}),
                 -1);
    QCOMPARE(runner.step().id, 3);
    QCOMPARE(reached.size(), 1);
    open.clear();
    runner.handle(happening(QStringLiteral("windowState,A,close")));
    QCOMPARE(runner.step().id, 5);
}

void tst_ScenarioRunner::passingGoesNotRoundForEver()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    runner.start(scenarioOf({item(1, QStringLiteral("windowState,A,close")),
                             item(2, QStringLiteral("windowState,A,close"), 1)}),
                 -1);
    QVERIFY(runner.isRunning());
    QCOMPARE(reached.size(), 1);
}

void tst_ScenarioRunner::theCommandOfAPassedStepRuns()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy commands(&runner, &ScenarioRunner::commandRequested);
    runner.start(scenarioOf({item(1, QStringLiteral("windowState,A,close"), -1, -1,
                                  QStringLiteral("presetData,step3")),
                             item(2, QString())}),
                 -1);
    QCOMPARE(runner.step().id, 2);
    QCOMPARE(commands.size(), 1);
}

void tst_ScenarioRunner::goesToAStepAlsoWhereNothingIsLeftToDo()
{
    ScenarioRunner runner([] { return QStringList{QStringLiteral("Copying")}; });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    runner.start(scenarioOf({item(1, QStringLiteral("windowState,Copying,open")), item(2, QString())}), -1);
    QCOMPARE(runner.step().id, 2);
    runner.goTo(1);
    QCOMPARE(runner.step().id, 1);
    QCOMPARE(reached.size(), 2);
    runner.goTo(77);
    QCOMPARE(runner.step().id, 1);
}

void tst_ScenarioRunner::knowsTheStepBehindNext_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("behind");
    QTest::newRow("next") << item(1, QStringLiteral("click,")) << 2;
    QTest::newRow("a jump") << item(1, QStringLiteral("click,"), 3) << 3;
    QTest::newRow("a jump to nowhere") << item(1, QStringLiteral("click,"), 9) << 2;
    QTest::newRow("an event") << item(1, QStringLiteral("list,1")) << 0;
    QTest::newRow("yes and no") << item(1, QStringLiteral("yesNo"), 2, 3) << 0;
}

void tst_ScenarioRunner::knowsTheStepBehindNext()
{
    QFETCH(QString, first);
    ScenarioRunner runner([] { return QStringList(); });
    QVERIFY(runner.stepBehind() == nullptr);
    runner.start(scenarioOf({first, item(2, QStringLiteral("list,1")), item(3, QStringLiteral("list,1"))}),
                 1);
    const Step *const behind = runner.stepBehind();
    QTEST(behind != nullptr ? behind->id : 0, "behind");
    runner.start(scenarioOf({item(1, QStringLiteral("click,"))}), 1);
    QVERIFY(runner.stepBehind() == nullptr);
}

void tst_ScenarioRunner::runsAheadOverTwoSteps()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    QSignalSpy finished(&runner, &ScenarioRunner::finished);
    runner.start(scenarioOf({item(1, QStringLiteral("click,")), item(2, QStringLiteral("list,1")),
                             item(3, QStringLiteral("list,1")), item(4, QStringLiteral("click,")),
                             item(5, QStringLiteral("list,1"))}),
                 1);
    runner.runAhead();
    QCOMPARE(runner.step().id, 3);
    QCOMPARE(reached.size(), 2);
    runner.runAhead(); // this one does not wait for Next
    QCOMPARE(runner.step().id, 3);
    runner.skip();
    runner.runAhead();
    QCOMPARE(finished.size(), 1);
}

void tst_ScenarioRunner::skipsAnyStep_data()
{
    QTest::addColumn<QString>("condition");
    for (const char *condition : {"click,", "yesNo", "list,3", "windowState,A,open", "wait,100000"}) {
        QTest::newRow(condition) << QString::fromLatin1(condition);
    }
}

void tst_ScenarioRunner::skipsAnyStep()
{
    QFETCH(QString, condition);
    ScenarioRunner runner([] { return QStringList(); });
    runner.start(scenarioOf({item(1, condition, 3), item(2, QString()), item(3, QString())}), -1);
    runner.skip();
    QCOMPARE(runner.step().id, 3);
}

void tst_ScenarioRunner::stopsSilently()
{
    ScenarioRunner runner([] { return QStringList(); });
    QSignalSpy finished(&runner, &ScenarioRunner::finished);
    runner.start(scenarioOf({item(1, QString())}), -1);
    runner.stop();
    QVERIFY(!runner.isRunning());
    runner.next();
    runner.skip();
    runner.handle(happening(QStringLiteral("list,0")));
    QVERIFY(finished.isEmpty());
}

void tst_ScenarioRunner::mayBeStoppedByTheCommandItAsksFor()
{
    ScenarioRunner runner([] { return QStringList(); });
    connect(&runner, &ScenarioRunner::commandRequested, &runner, &ScenarioRunner::stop);
    QSignalSpy reached(&runner, &ScenarioRunner::stepReached);
    runner.start(scenarioOf({item(1, QString(), -1, -1, QStringLiteral("presetData,step2"))}), -1);
    QVERIFY(!runner.isRunning());
    QVERIFY(reached.isEmpty());
}

QTEST_APPLESS_MAIN(tst_ScenarioRunner)
#include "tst_ScenarioRunner.moc"
