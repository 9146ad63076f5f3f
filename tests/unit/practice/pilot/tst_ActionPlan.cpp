#include "lesson/Scenario.h"
#include "pilot/ActionPlan.h"

#include <QTest>

namespace {

// A bubble that stands where it was sent, so that its arrow points at (438, 432).
constexpr QPoint kPlace(400, 300);
constexpr QRect kBubble(400, 300, 640, 480);
const SeenOverlays::Window kLeft{QRect(600, 700, 64, 32), 7};
const SeenOverlays::Window kRight{QRect(656, 700, 64, 32), 8};

Step stepOf(const QString &condition, const QString &icon)
{
    Step step;
    step.windowKey = QStringLiteral("MainWindow");
    step.x = 10;
    step.y = 20;
    step.condition = *Condition::parse(condition);
    step.icon = icon;
    return step;
}

Step pointlessStepOf(const QString &condition, const QString &icon)
{
    Step step = stepOf(condition, icon);
    step.x = LessonWords::kNoPosition;
    step.y = LessonWords::kNoPosition;
    return step;
}

Sight sightWith(const QVector<SeenOverlays::Window> &buttons)
{
    return {{kBubble, buttons}, kPlace, false};
}

QVector<SeenOverlays::Window> buttonsOf(const QString &condition)
{
    switch (Condition::parse(condition)->type()) {
    case Condition::Type::kNext:
        return {kLeft};
    case Condition::Type::kYesNo:
        return {kLeft, kRight};
    default:
        return {};
    }
}

QString wordsOf(const ActionPlan &plan)
{
    QStringList words;
    for (const Action &action : plan.actions) {
        words += action.inWords();
    }
    return words.join(QStringLiteral("; "));
}

} // namespace

Q_DECLARE_METATYPE(Sight)

class tst_ActionPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesWhatTheIconSays_data();
    void doesWhatTheIconSays();
    void typesTheNumberOfTheHint();
    void clicksAsOftenAsTheHintSays();
    void typesIntoWhatHasTheKeyboard();
    void dragsWhereTheHintSaysSo();
    void leavesAGameWithTheEscapeKey();
    void onlyReadsWhereNothingIsPointedAt();
    void answersWithTheButtonOnTheLeftOrRight();
    void pressesInsideTheButtonsWindow();
    void readsAConditionThatIsNoneAsNext();
    void isPatientWithWhatTakesTime_data();
    void isPatientWithWhatTakesTime();
    void waitsUntilAllIsInPlace_data();
    void waitsUntilAllIsInPlace();
    void takesABubbleThatWasNeverSent();
    void goesBackWhereTheArrowPoints();
    void goesBackOnlyWhenTheArrowIsThere_data();
    void goesBackOnlyWhenTheArrowIsThere();
};

void tst_ActionPlan::doesWhatTheIconSays_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("actions");
    const auto row = [](const char *condition, const char *icon, const char *actions) {
        QTest::addRow("%s by %s", condition, icon)
            << QString::fromLatin1(condition) << QString::fromLatin1(icon) << QString::fromLatin1(actions);
    };
    constexpr auto kClick = "a click at (438, 432)";
    constexpr auto kDoubleClick = "a double click at (438, 432)";
    constexpr auto kRightClick = "a right click at (438, 432)";
    constexpr auto kNext = "a click on the companion's button";

    row("windowState,NewProject,open", "click", kClick);
    row("windowState,NewProject,close", "click", kClick);
    row("action,fileSave,close", "click", kClick);
    row("tabView,tabview,1", "click", kClick);
    row("comboBox,moveType,1", "click", "a click at (438, 432); choosing row 1");
    row("comboBox,moveType,1", "doubleClick", kDoubleClick);
    row("checked,directionFix,1", "click", kClick);
    row("radioButton,RadioButton,8", "click", kClick);
    row("pressed,0,0", "click", kClick);
    row("mouseEvent,Map,click", "click", kClick);
    row("menuEvent,Map,click", "click", kClick);
    row("list,2", "doubleClick", kDoubleClick);
    row("popup,MapPopup", "rightClick", kRightClick);

    row("spinBox,=,35 %", "keyboard", "a click at (438, 432); Ctrl+A; typing \"35\"");
    row("spinBox,=,-7", "keyboard", "a click at (438, 432); Ctrl+A; typing \"-7\"");
    row("textLength,name,4", "keyboard", "a click at (438, 432); Ctrl+A; typing \"aaaa\"");
    row("textLength,name,0", "keyboard", "a click at (438, 432); Ctrl+A; typing \"a\"");
    row("windowState,MapProperties,close", "keyboard",
        "a click at (438, 432); Ctrl+A; typing \"Village\"; Enter");
    row("click,", "keyboard",
        "a click at (438, 432); Ctrl+A; typing \"Village\"; a click on the companion's button");

    row("click,", "eye", kNext);
    row("", "eye", kNext);
    row("click,", "click", "a click at (438, 432); a click on the companion's button");
    row("yesNo", "eye", kNext);
    row("windowState,Copying,close", "wait", "");
    row("wait,700", "wait", "");
    row("wait,700", "eye", "resting the mouse at (438, 432)");
    row("wait", "", "");
    row("list,2", "", "");
    row("list,2", "drag", "");
}

void tst_ActionPlan::typesTheNumberOfTheHint()
{
    Step step = stepOf(QStringLiteral("windowState,ChangeMaximum,close"), QStringLiteral("keyboard"));
    step.hint = QStringLiteral("Type -20 and press Enter.");
    QCOMPARE(wordsOf(*ActionPlan::make(step, sightWith({}), true)),
             QStringLiteral("a click at (438, 432); Ctrl+A; typing \"-20\"; Enter"));
    step.hint = QStringLiteral("「6」と入力してください。");
    QCOMPARE(wordsOf(*ActionPlan::make(step, sightWith({}), true)),
             QStringLiteral("a click at (438, 432); Ctrl+A; typing \"6\"; Enter"));
    // What the step ends with says it better.
    step.condition = *Condition::parse(QStringLiteral("spinBox,=,3"));
    QCOMPARE(wordsOf(*ActionPlan::make(step, sightWith({}), true)),
             QStringLiteral("a click at (438, 432); Ctrl+A; typing \"3\""));
}

void tst_ActionPlan::clicksAsOftenAsTheHintSays()
{
    const Sight sight = sightWith(buttonsOf(QStringLiteral("click,")));
    Step step = stepOf(QStringLiteral("click,"), QStringLiteral("click"));
    step.hint = QStringLiteral("Click it three times. Then click Next.");
    QCOMPARE(wordsOf(*ActionPlan::make(step, sight, true)),
             QStringLiteral("a click at (438, 432); a click at (438, 432); a click at (438, 432); "
                            "a click on the companion's button"));
    // A click that ends the step comes once.
    step.condition = *Condition::parse(QStringLiteral("action,viewZoomIn,"));
    QCOMPARE(wordsOf(*ActionPlan::make(step, sightWith({}), true)), QStringLiteral("a click at (438, 432)"));
}

void tst_ActionPlan::typesIntoWhatHasTheKeyboard()
{
    Step step =
        pointlessStepOf(QStringLiteral("windowState,ChangeMaximum,close"), QStringLiteral("keyboard"));
    step.hint = QStringLiteral("Type 6 and press Enter.");
    const std::optional<ActionPlan> plan = ActionPlan::make(step, {{kBubble, {}}, {}, false}, true);
    QCOMPARE(wordsOf(*plan), QStringLiteral("Ctrl+A; typing \"6\"; Enter"));
    QVERIFY(!plan->spot);
    // Where "Next" ends the step there may be nothing to type into.
    step.condition = *Condition::parse(QStringLiteral("click,"));
    QCOMPARE(wordsOf(*ActionPlan::make(step, {{kBubble, {kLeft}}, {}, false}, true)),
             QStringLiteral("a click on the companion's button"));
}

void tst_ActionPlan::dragsWhereTheHintSaysSo()
{
    Step step = stepOf(QStringLiteral("mouseEvent,Map,click"), QStringLiteral("click"));
    step.hint = QStringLiteral("Press here, drag to the right and let go.");
    QCOMPARE(
        wordsOf(*ActionPlan::make(step, sightWith({}), true)),
        QStringLiteral("a press at (438, 432); dragging to (470, 432); dragging to (502, 432); dragging to "
                       "(534, 432); letting go at (534, 432)"));
    // A picture of a right click is not one of a drag.
    step.icon = QStringLiteral("rightClick");
    QCOMPARE(wordsOf(*ActionPlan::make(step, sightWith({}), true)),
             QStringLiteral("a right click at (438, 432)"));
}

void tst_ActionPlan::leavesAGameWithTheEscapeKey()
{
    const Step points = stepOf(QStringLiteral("action,play,close"), QStringLiteral("keyboard"));
    const std::optional<ActionPlan> plan = ActionPlan::make(points, sightWith({}), true);
    QCOMPARE(wordsOf(*plan), QStringLiteral("Esc"));
    // Wherever the step points, the game has the keyboard.
    QVERIFY(!plan->spot);
    QVERIFY(plan->actions.constFirst().isOfKeyboard());
    const Step pointless = pointlessStepOf(QStringLiteral("action,play,close"), QStringLiteral("keyboard"));
    QCOMPARE(wordsOf(*ActionPlan::make(pointless, {{kBubble, {}}, {}, false}, true)), QStringLiteral("Esc"));
    QCOMPARE(wordsOf(*ActionPlan::make(stepOf(QStringLiteral("action,play,open"), QStringLiteral("click")),
                                       sightWith({}), true)),
             QStringLiteral("a click at (438, 432)"));
}

void tst_ActionPlan::doesWhatTheIconSays()
{
    QFETCH(QString, condition);
    QFETCH(QString, icon);
    const std::optional<ActionPlan> plan =
        ActionPlan::make(stepOf(condition, icon), sightWith(buttonsOf(condition)), true);
    QVERIFY(plan);
    QCOMPARE(*plan->spot, QPoint(438, 432));
    QTEST(wordsOf(*plan), "actions");
}

void tst_ActionPlan::onlyReadsWhereNothingIsPointedAt()
{
    const std::optional<ActionPlan> plan = ActionPlan::make(
        pointlessStepOf(QStringLiteral("click,"), QStringLiteral("click")), sightWith({kLeft}), true);
    QVERIFY(plan);
    QVERIFY(!plan->spot);
    QCOMPARE(wordsOf(*plan), QStringLiteral("a click on the companion's button"));
}

void tst_ActionPlan::answersWithTheButtonOnTheLeftOrRight()
{
    const Step question = stepOf(QStringLiteral("yesNo"), QStringLiteral("eye"));
    const Sight sight = sightWith({kLeft, kRight});
    QCOMPARE(ActionPlan::make(question, sight, true)->actions.constFirst().window, kLeft.id);
    QCOMPARE(ActionPlan::make(question, sight, false)->actions.constFirst().window, kRight.id);
    const Step reading = stepOf(QStringLiteral("click,"), QStringLiteral("eye"));
    QCOMPARE(ActionPlan::make(reading, sightWith({kLeft}), false)->actions.constFirst().window, kLeft.id);
}

void tst_ActionPlan::pressesInsideTheButtonsWindow()
{
    const Step reading = stepOf(QStringLiteral("click,"), QStringLiteral("eye"));
    const Action press = ActionPlan::make(reading, sightWith({kLeft}), true)->actions.constFirst();
    QCOMPARE(press, (Action{Action::Kind::kPressButton, QPoint(21, 16), kLeft.id, {}, 0}));
    // Where No stands beside it, the place on Yes is not below No.
    QVERIFY(!kRight.rect.contains(kLeft.rect.topLeft() + press.place));
}

void tst_ActionPlan::readsAConditionThatIsNoneAsNext()
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(
        QStringLiteral(R"([{"id":1,"x":10,"y":20,"windowKey":"MainWindow","condition":"clik,2","hint":"",)"
                       R"("icon":"click"}])"),
        &problems);
    QCOMPARE(scenario.unknownWords().size(), 1);
    const std::optional<ActionPlan> plan = ActionPlan::make(scenario.step(0), sightWith({kLeft}), true);
    QVERIFY(plan);
    QCOMPARE(wordsOf(*plan), QStringLiteral("a click at (438, 432); a click on the companion's button"));
}

void tst_ActionPlan::goesBackWhereTheArrowPoints()
{
    const std::optional<ActionPlan> plan =
        ActionPlan::makeReturn(QStringLiteral("rightClick"), sightWith({}));
    QVERIFY(plan);
    QCOMPARE(*plan->spot, QPoint(438, 432));
    QCOMPARE(wordsOf(*plan), QStringLiteral("a right click at (438, 432)"));
}

void tst_ActionPlan::goesBackOnlyWhenTheArrowIsThere_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<Sight>("sight");
    const QString click = QStringLiteral("click");
    Sight gliding = sightWith({});
    gliding.overlays.bubble->translate(-9, 0);
    QTest::newRow("on its way") << click << gliding;
    QTest::newRow("not shown") << click << Sight{{}, kPlace, false};
    QTest::newRow("never sent") << click << Sight{{kBubble, {}}, std::nullopt, false};
    QTest::newRow("Next is still there") << click << sightWith({kLeft});
    QTest::newRow("nothing to do with the mouse") << QStringLiteral("eye") << sightWith({});
}

void tst_ActionPlan::goesBackOnlyWhenTheArrowIsThere()
{
    QFETCH(QString, icon);
    QFETCH(Sight, sight);
    QVERIFY(!ActionPlan::makeReturn(icon, sight));
}

void tst_ActionPlan::isPatientWithWhatTakesTime_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<int>("waitMs");
    QTest::newRow("a wait") << QStringLiteral("wait,700") << QString() << 700;
    QTest::newRow("a wait without a number") << QStringLiteral("wait") << QString() << 1000;
    QTest::newRow("the editor at work")
        << QStringLiteral("windowState,Copying,close") << QStringLiteral("wait") << 10000;
    QTest::newRow("a click") << QStringLiteral("list,2") << QStringLiteral("click") << 0;
}

void tst_ActionPlan::isPatientWithWhatTakesTime()
{
    QFETCH(QString, condition);
    QFETCH(QString, icon);
    const std::optional<ActionPlan> plan = ActionPlan::make(stepOf(condition, icon), sightWith({}), true);
    QVERIFY(plan);
    QTEST(plan->waitMs, "waitMs");
}

void tst_ActionPlan::waitsUntilAllIsInPlace_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("hasBubble");
    QTest::addColumn<QPoint>("shift");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("isReady");
    const QString click = QStringLiteral("list,2");
    const QString next = QStringLiteral("click,");
    const QString yesNo = QStringLiteral("yesNo");
    QTest::newRow("all there") << click << true << QPoint() << 0 << true;
    QTest::newRow("no bubble") << click << false << QPoint() << 0 << false;
    QTest::newRow("at rest 3 short") << click << true << QPoint(-3, 3) << 0 << true;
    QTest::newRow("4 short") << click << true << QPoint(-4, 0) << 0 << false;
    QTest::newRow("far away") << next << true << QPoint(200, -90) << 1 << false;
    QTest::newRow("the last step's Next") << click << true << QPoint() << 1 << false;
    QTest::newRow("Next") << next << true << QPoint() << 1 << true;
    QTest::newRow("no Next yet") << next << true << QPoint() << 0 << false;
    QTest::newRow("Yes and No still") << next << true << QPoint() << 2 << false;
    QTest::newRow("Yes and No") << yesNo << true << QPoint() << 2 << true;
    QTest::newRow("one of Yes and No") << yesNo << true << QPoint() << 1 << false;
}

void tst_ActionPlan::waitsUntilAllIsInPlace()
{
    QFETCH(QString, condition);
    QFETCH(bool, hasBubble);
    QFETCH(QPoint, shift);
    QFETCH(int, buttons);
    QFETCH(bool, isReady);
    Sight sight = sightWith(QVector<SeenOverlays::Window>{kLeft, kRight}.mid(0, buttons));
    sight.overlays.bubble =
        hasBubble ? std::optional<QRect>(kBubble.translated(shift)) : std::optional<QRect>();
    QCOMPARE(ActionPlan::make(stepOf(condition, QStringLiteral("click")), sight, true).has_value(), isReady);
    // It has to stand where it was sent last also when this step points nowhere.
    QCOMPARE(ActionPlan::make(pointlessStepOf(condition, QStringLiteral("click")), sight, true).has_value(),
             isReady);
    // A step that points into a window that is not open is never ready.
    sight.lacksWindow = true;
    QVERIFY(!ActionPlan::make(stepOf(condition, QStringLiteral("click")), sight, true));
}

void tst_ActionPlan::takesABubbleThatWasNeverSent()
{
    const Sight sight{{kBubble, {kLeft}}, {}, false};
    const QString next = QStringLiteral("click,");
    QVERIFY(ActionPlan::make(pointlessStepOf(next, QStringLiteral("eye")), sight, true));
    // But not for one that points: who knows where.
    QVERIFY(!ActionPlan::make(stepOf(next, QStringLiteral("eye")), sight, true));
}

QTEST_APPLESS_MAIN(tst_ActionPlan)
#include "tst_ActionPlan.moc"
