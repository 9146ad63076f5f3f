#include "PilotTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

// So often the pilot has looked on when a test takes it that it does nothing.
constexpr int kSeveral = 6;
const QString kLeaving = QStringLiteral(
    R"({"id":8,"x":10,"y":-20,"windowKey":"MainWindow","condition":"action,play,close","hint":"Press Esc","icon":"keyboard"})");
const QString kChoosing = QStringLiteral(
    R"({"id":6,"x":10,"y":-20,"windowKey":"MainWindow","condition":"comboBox,kind,2","hint":"Choose","icon":"click"})");
const QString kQuoting = QStringLiteral(
    R"({"id":7,"x":10,"y":-20,"windowKey":"MainWindow","condition":"click,","hint":"Choose “Herb found”.","icon":"click"})");
const QString kRepeating = QStringLiteral(
    R"({"id":9,"x":10,"y":-20,"windowKey":"MainWindow","condition":"click,","hint":"Click twice.","icon":"click"})");
const QString kDragging = QStringLiteral(
    R"({"id":5,"x":10,"y":-20,"windowKey":"MainWindow","condition":"pressed,0,0","hint":"Drag to the right","icon":"click"})");

} // namespace

/// What the pilot does in a step, and what it waits for first.
class tst_Pilot : public PilotTest
{
    Q_OBJECT

private Q_SLOTS:
    void waitsForTheBubbleToStand();
    void aLookThatFailedIsNone();
    void clicksOnlyWhereTheClickGoes();
    void leavesAGameThatDidNotHearTheFirstKey();
    void typesOnlyWithTheFocus();
    void typesOnlyBehindTheClick();
    void clicksAgainOnlyBehindTheClick();
    void choosesOnlyFromAListThatIsOpen();
    void choosesWhatTheHintQuotes_data();
    void choosesWhatTheHintQuotes();
    void plansAnewWhatWasMissed();
    void pressesOnlyAButtonThatNothingCovers();
    void repeatsAPressAndNotTheClickBeforeIt();
    void keepsTwoClicksApart();
    void answersOneQuestionAfterTheOther();
    void playsToTheEndAndSeesTheOverlaysGo();
    void letsGoWhenTheStepEndsUnderADrag();
};

void tst_Pilot::waitsForTheBubbleToStand()
{
    // It glides past its place, a pixel a look.
    QPoint shift(-3, 0);
    bool glides = true;
    m_scene.look = [&] {
        if (glides) {
            shift.rx() = shift.x() == 3 ? -3 : shift.x() + 1;
        }
        return SeenOverlays{kBubble.translated(shift), {}};
    };
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.looks > kSeveral, kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
    glides = false;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QCOMPARE(m_scene.acts.constFirst().place, QPoint(138, 302) + shift);
}

void tst_Pilot::aLookThatFailedIsNone()
{
    m_scene.look = [] {
        return std::optional<SeenOverlays>();
    };
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.looks > kSeveral, kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
    m_scene.look = [this] {
        return m_overlays;
    };
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
}

void tst_Pilot::clicksOnlyWhereTheClickGoes()
{
    m_scene.takesClicks = [](const QPoint &) {
        return false;
    };
    begin({kClicking});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.looks > kSeveral, kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
    m_scene.takesClicks = [](const QPoint &) {
        return true;
    };
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
}

void tst_Pilot::leavesAGameThatDidNotHearTheFirstKey()
{
    begin({kLeaving});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QCOMPARE(m_scene.acts.constFirst().kind, Action::Kind::kEscape);
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 2, kSoonMs);
    QCOMPARE(m_scene.acts.constLast().kind, Action::Kind::kEscape);
}

void tst_Pilot::typesOnlyWithTheFocus()
{
    m_scene.takesKeys = false;
    begin({kTyping});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.questionsForKeys > kSeveral, kSoonMs);
    QCOMPARE(m_scene.acts.size(), 1);
    m_scene.takesKeys = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 3, kSoonMs);
    QCOMPARE(m_scene.acts.at(2).text, QStringLiteral("aa"));
}

void tst_Pilot::typesOnlyBehindTheClick()
{
    m_scene.hearsClicks = false;
    begin({kTyping});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.questionsForClicks > kSeveral, kSoonMs);
    QCOMPARE(m_scene.acts.size(), 1);
    m_scene.hearsClicks = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 3, kSoonMs);
}

void tst_Pilot::clicksAgainOnlyBehindTheClick()
{
    m_scene.hearsClicks = false;
    m_overlays = {kBubble, {kNext}};
    begin({kRepeating});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.questionsForClicks > kSeveral, kSoonMs);
    QCOMPARE(m_scene.acts.size(), 1);
    m_scene.hearsClicks = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 3, kSoonMs);
    QCOMPARE(m_scene.acts.at(1).kind, Action::Kind::kClick);
    QCOMPARE(m_scene.acts.at(2).kind, Action::Kind::kPressButton);
}

void tst_Pilot::choosesOnlyFromAListThatIsOpen()
{
    m_scene.hasList = false;
    begin({kChoosing});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.questionsForLists > kSeveral, kSoonMs);
    QCOMPARE(m_scene.acts.size(), 1);
    m_scene.hasList = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 2, kSoonMs);
    QCOMPARE(m_scene.acts.constLast().kind, Action::Kind::kChoose);
    QCOMPARE(m_scene.acts.constLast().row, 2);
}

void tst_Pilot::choosesWhatTheHintQuotes_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QVector<int>>("kinds");
    using Kind = Action::Kind;
    QTest::newRow("from a list that drops down")
        << QStringList{QStringLiteral("None"), QStringLiteral("2: Herb found")}
        << QVector<int>{int(Kind::kClick), int(Kind::kChoose), int(Kind::kPressButton)};
    QTest::newRow("which closes without such a row")
        << QStringList{QStringLiteral("None")}
        << QVector<int>{int(Kind::kClick), int(Kind::kEscape), int(Kind::kPressButton)};
    QTest::newRow("and clicks on without a list")
        << QStringList() << QVector<int>{int(Kind::kClick), int(Kind::kPressButton)};
}

void tst_Pilot::choosesWhatTheHintQuotes()
{
    QFETCH(QStringList, rows);
    QFETCH(QVector<int>, kinds);
    m_overlays = {kBubble, {kNext}};
    m_scene.rows = rows;
    m_scene.hasList = !rows.isEmpty();
    int chosen = -1;
    m_scene.perform = [this, &chosen](const Action &action) {
        if (action.kind == Action::Kind::kChoose) {
            chosen = action.row;
        }
        m_scene.hasList = m_scene.hasList && action.kind == Action::Kind::kClick;
        return Hand::Result::kDone;
    };
    begin({kQuoting});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), kinds.size(), kSoonMs);
    QVector<int> done;
    for (const Action &action : std::as_const(m_scene.acts)) {
        done.append(int(action.kind));
    }
    QCOMPARE(done, kinds);
    QCOMPARE(chosen, kinds.contains(int(Action::Kind::kChoose)) ? 1 : -1);
}

void tst_Pilot::plansAnewWhatWasMissed()
{
    m_overlays = {kMiddle, {kNext}};
    m_scene.perform = [this](const Action &) {
        if (m_scene.acts.size() > 1) {
            return Hand::Result::kDone;
        }
        // The button has become another window, elsewhere.
        m_overlays.buttons = {{kNext.rect.translated(0, 50), 9}};
        return Hand::Result::kMissed;
    };
    begin({kReading});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 2, kSoonMs);
    QCOMPARE(m_scene.acts.at(0).window, 7U);
    QCOMPARE(m_scene.acts.at(1).window, 9U);
}

void tst_Pilot::pressesOnlyAButtonThatNothingCovers()
{
    m_overlays = {kMiddle, {kNext}};
    m_scene.takesPresses = false;
    begin({kReading});
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.questionsForPresses > kSeveral, kSoonMs);
    QVERIFY(m_scene.acts.isEmpty());
    m_scene.takesPresses = true;
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 1, kSoonMs);
    QCOMPARE(m_scene.acts.constFirst().window, kNext.id);
}

void tst_Pilot::repeatsAPressAndNotTheClickBeforeIt()
{
    Pilot::Settings hasty = settings();
    hasty.conditionMs = 500;
    makePilot(hasty);
    m_scene.hasList = false;
    m_overlays = {kBubble, {kNext}};
    begin({kQuoting});
    const auto presses = [this] {
        return std::count_if(m_scene.acts.cbegin(), m_scene.acts.cend(),
                             [](const Action &action) { return action.kind == Action::Kind::kPressButton; });
    };
    QTRY_COMPARE_WITH_TIMEOUT(presses(), 2, kSoonMs);
    m_overlays = {};
    m_session->receive(QStringLiteral("next"));
    const auto clicks = std::count_if(m_scene.acts.cbegin(), m_scene.acts.cend(), [](const Action &action) {
        return action.kind == Action::Kind::kClick;
    });
    QCOMPARE(clicks, 1);
}

void tst_Pilot::keepsTwoClicksApart()
{
    m_overlays = {kMiddle, {kNext}};
    QElapsedTimer clock;
    qint64 between = 0;
    m_scene.perform = [&](const Action &) {
        if (clock.isValid()) {
            between = clock.elapsed();
        }
        clock.start();
        QTimer::singleShot(0, m_session.get(), [this] { m_session->receive(QStringLiteral("next")); });
        return Hand::Result::kDone;
    };
    begin({kReading, kReadingOn});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 2, kSoonMs);
    QVERIFY2(between >= 500, qPrintable(QString::number(between)));
}

void tst_Pilot::answersOneQuestionAfterTheOther()
{
    Pilot::Settings inTurn = settings();
    inTurn.answers = {true, false};
    makePilot(inTurn);
    const SeenOverlays::Window yes{QRect(300, 500, 64, 32), 7};
    const SeenOverlays::Window no{QRect(356, 500, 64, 32), 8};
    m_overlays = {kMiddle, {yes, no}};
    m_scene.perform = [this, &yes](const Action &action) {
        const QString said = action.window == yes.id ? QStringLiteral("yes") : QStringLiteral("no");
        QTimer::singleShot(0, m_session.get(), [this, said] { m_session->receive(said); });
        return Hand::Result::kDone;
    };
    const QString question = QStringLiteral(
        R"({"id":%1,"x":-9999,"y":-9999,"windowKey":"","condition":"yesNo","hint":"Or?","icon":"eye"})");
    begin({question.arg(11), question.arg(12), question.arg(13)});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 3, kSoonMs);
    QCOMPARE(m_scene.acts.at(0).window, yes.id);
    QCOMPARE(m_scene.acts.at(1).window, no.id);
    // The last answer holds for all that follow.
    QCOMPARE(m_scene.acts.at(2).window, no.id);
}

void tst_Pilot::playsToTheEndAndSeesTheOverlaysGo()
{
    Pilot::Settings withShots = settings();
    withShots.picturesFolder = QDir::tempPath();
    withShots.picturesOfAll = true;
    makePilot(withShots);
    m_scene.perform = [this](const Action &action) {
        if (action.kind == Action::Kind::kClick) {
            m_overlays.buttons = {kNext};
            QTimer::singleShot(0, m_editor.get(),
                               [this] { m_editor->report(QStringLiteral("list"), QStringLiteral("2")); });
        } else {
            QTimer::singleShot(0, m_session.get(), [this] { m_session->receive(QStringLiteral("next")); });
        }
        return Hand::Result::kDone;
    };
    begin({kClicking, kReading});
    QTRY_COMPARE_WITH_TIMEOUT(m_scene.acts.size(), 2, kSoonMs);
    const int looks = m_scene.looks;
    QTRY_VERIFY_WITH_TIMEOUT(m_scene.looks > looks + kSeveral, kSoonMs);
    QVERIFY(!m_failures);
    m_overlays = {};
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    QCOMPARE(m_steps, (QStringList{QStringLiteral("step 1/2 id 1 MainWindow list,2"),
                                   QStringLiteral("step 2/2 id 3 - click,")}));
    QCOMPARE(m_scene.pictures, (QStringList{QStringLiteral("001-id1.png"), QStringLiteral("002-id3.png"),
                                            QStringLiteral("003-end.png")}));
}

void tst_Pilot::letsGoWhenTheStepEndsUnderADrag()
{
    m_scene.perform = [this](const Action &action) {
        if (action.kind == Action::Kind::kPress) {
            QTimer::singleShot(0, m_editor.get(), [this] {
                m_editor->report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"));
            });
        }
        return Hand::Result::kDone;
    };
    begin({kDragging, kReading});
    QTRY_VERIFY_WITH_TIMEOUT(m_steps.size() == 2, kSoonMs);
    QCOMPARE(m_scene.acts.constFirst().kind, Action::Kind::kPress);
    QCOMPARE(m_scene.acts.constLast().kind, Action::Kind::kRelease);
}

QTEST_GUILESS_MAIN(tst_Pilot)
#include "tst_Pilot.moc"
