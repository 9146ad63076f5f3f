#include "FakeEditor.h"
#include "PilotScene.h"
#include "host/LessonSession.h"
#include "pilot/Mistake.h"

#include <QTest>

namespace {

constexpr int kSoonMs = 10000;

const QString kProperties = QStringLiteral("MapProperties");
const ControlSpot kList{QStringLiteral("MainWindow"), QStringLiteral("maps"), -1};
const ControlSpot kCancel{kProperties, QStringLiteral("cancel"), -1};

const QString kFirst = QStringLiteral(
    R"({"id":1,"x":10,"y":-20,"windowKey":"MainWindow","condition":"list,2","hint":"Choose","icon":"click"})");
const QString kSecond = QStringLiteral(
    R"({"id":2,"x":10,"y":-20,"windowKey":"MainWindow","condition":"list,3","hint":"Choose","icon":"rightClick"})");

} // namespace

/// The pilot as a beginner, who does something wrong in each step first.
class tst_Beginner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void errsInTurn_data();
    void errsInTurn();
    void errsOnlyWhereSomethingIsPointedAt();
    void errsOnceInEachStep();
    void doesNotErrWhereNoClickGoes();
    void followsTheArrowBack();
    void putsBackWhatWentWrong();
    void clicksAgainWhereNoListDropsDown();
    void foldsUpWhatAMistakeHasUnfolded();
    void isBrokenWhereNothingLeadsBack();
    void isBrokenWhereTheWayBackHasNoEffect();

private:
    void begin(const QStringList &steps);
    [[nodiscard]] QStringList done() const;
    /// The editor hears of it a little later, as of what the window system tells.
    void soon(const std::function<void()> &what) { QTimer::singleShot(0, m_editor.get(), what); }

    Scene m_scene;
    Pilot::Settings m_settings;
    std::unique_ptr<FakeEditor> m_editor;
    std::unique_ptr<LessonSession> m_session;
    std::unique_ptr<Pilot> m_pilot;
    std::optional<QStringList> m_failures; ///< once the play is over
};

void tst_Beginner::init()
{
    m_scene = {};
    m_failures.reset();
    m_editor = std::make_unique<FakeEditor>();
    m_editor->m_ways = {
        {kCancel, QStringLiteral("click"), kProperties, Way::Does::kCloses, kProperties, true}};
    m_session = std::make_unique<LessonSession>(m_editor.get());
    m_scene.look = [this]() -> std::optional<SeenOverlays> {
        return m_session->runner().isRunning()
                   ? SeenOverlays{QRect(*m_session->bubblePlace(), QSize(640, 480)), {}}
                   : SeenOverlays();
    };
    m_settings = {};
    m_settings.title = QStringLiteral("lesson 1 (en_US, yes)");
    m_settings.isBeginner = true;
    m_scene.hasList = false;
}

void tst_Beginner::cleanup()
{
    m_pilot.reset();
    m_session.reset();
    m_editor.reset();
}

void tst_Beginner::begin(const QStringList &steps)
{
    m_pilot = std::make_unique<Pilot>(m_session.get(), m_settings, std::make_unique<SceneEye>(&m_scene),
                                      std::make_unique<SceneHand>(&m_scene));
    connect(m_pilot.get(), &Pilot::ended, this,
            [this](const QStringList &failures) { m_failures = failures; });
    m_session->receive(
        QStringLiteral("start\u0001var scenario = [%1];\u0001-1").arg(steps.join(QLatin1Char(','))));
    QVERIFY(m_session->runner().isRunning());
}

QStringList tst_Beginner::done() const
{
    QStringList words;
    for (const Action &action : m_scene.acts) {
        words += action.inWords();
    }
    return words;
}

void tst_Beginner::errsInTurn_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("mistake");
    const auto row = [](const char *name, Action::Kind kind, const char *mistake) {
        QTest::newRow(name) << int(kind) << QString::fromLatin1(mistake);
    };
    row("a click", Action::Kind::kClick,
        "a click at (200, 126); Esc; a right click at (200, 100); a click at (300, 100); a double click at "
        "(140, 100); a click at (200, 126)");
    row("a right click", Action::Kind::kRightClick,
        "a click at (200, 126); Esc; a click at (200, 100); a click at (300, 100); a double click at (140, "
        "100); a click at (200, 126)");
}

void tst_Beginner::errsInTurn()
{
    QFETCH(int, kind);
    const QPoint spot(200, 100);
    const ActionPlan plan{spot, {{Action::Kind(kind), spot, 0, {}, 0}}, 0};
    QStringList words;
    for (int number = 0; number < 6; ++number) {
        const QVector<Action> mistake = mistakeIn(plan, number);
        QCOMPARE(mistake.size(), 1);
        words += mistake.constFirst().inWords();
    }
    QTEST(words.join(QStringLiteral("; ")), "mistake");
}

void tst_Beginner::errsOnlyWhereSomethingIsPointedAt()
{
    const Action press{Action::Kind::kPressButton, {5, 5}, 7, {}, 0};
    QVERIFY(mistakeIn({std::nullopt, {press}, 0}, 0).isEmpty());
    QVERIFY(mistakeIn({QPoint(200, 100), {}, 0}, 0).isEmpty());
}

void tst_Beginner::errsOnceInEachStep()
{
    m_scene.perform = [this](const Action &action) {
        // The mistakes come to nothing.
        if (action.place == QPoint(138, 302) && action.kind != Action::Kind::kDoubleClick) {
            soon([this, action] {
                m_editor->report(QStringLiteral("list"), action.kind == Action::Kind::kClick
                                                             ? QStringLiteral("2")
                                                             : QStringLiteral("3"));
            });
        }
        return Hand::Result::kDone;
    };
    begin({kFirst, kSecond});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    QCOMPARE(done(),
             (QStringList{QStringLiteral("a click at (138, 328)"), QStringLiteral("a click at (138, 302)"),
                          QStringLiteral("Esc"), QStringLiteral("a right click at (138, 302)")}));
}

void tst_Beginner::doesNotErrWhereNoClickGoes()
{
    m_scene.takesClicks = [](const QPoint &spot) {
        return spot == QPoint(138, 302);
    };
    begin({kFirst});
    QTRY_COMPARE_WITH_TIMEOUT(done(), QStringList(QStringLiteral("a click at (138, 302)")), kSoonMs);
}

void tst_Beginner::followsTheArrowBack()
{
    m_scene.perform = [this](const Action &) {
        const int acts = m_scene.acts.size();
        soon([this, acts] {
            if (acts == 1) {
                m_editor->m_cause = kList;
                m_editor->open(kProperties);
            } else if (acts == 2) {
                m_editor->m_cause = kCancel;
                m_editor->close(kProperties);
            } else {
                m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
            }
        });
        return Hand::Result::kDone;
    };
    begin({kFirst});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    // The second is where the button in the dialog is: at the middle of what the editor says.
    QCOMPARE(done(),
             (QStringList{QStringLiteral("a click at (138, 328)"), QStringLiteral("a click at (1299, 1399)"),
                          QStringLiteral("a click at (138, 302)")}));
}

void tst_Beginner::putsBackWhatWentWrong()
{
    m_settings.putBackPlace = [] {
        return std::optional(QPoint(40, 900));
    };
    m_scene.perform = [this](const Action &action) {
        const int acts = m_scene.acts.size();
        soon([this, acts, action] {
            if (acts == 1) {
                m_editor->m_cause = kList;
                m_editor->m_data = QStringLiteral("spoilt");
                m_editor->report(QStringLiteral("action"), QStringLiteral("deleteMap"));
            } else if (action.place == QPoint(40, 900)) {
                m_session->putBack();
            } else {
                m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
            }
        });
        return Hand::Result::kDone;
    };
    begin({kFirst});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    QCOMPARE(m_editor->m_data, QStringLiteral("as it was"));
    QCOMPARE(done(),
             (QStringList{QStringLiteral("a click at (138, 328)"), QStringLiteral("a click at (40, 900)"),
                          QStringLiteral("a click at (138, 302)")}));
}

void tst_Beginner::foldsUpWhatAMistakeHasUnfolded()
{
    m_scene.perform = [this](const Action &action) {
        m_scene.hasList = m_scene.acts.size() == 1;
        if (action.place == QPoint(138, 302)) {
            soon([this] { m_editor->report(QStringLiteral("list"), QStringLiteral("2")); });
        }
        return Hand::Result::kDone;
    };
    begin({kFirst});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    QCOMPARE(done(), (QStringList{QStringLiteral("a click at (138, 328)"), QStringLiteral("Esc"),
                                  QStringLiteral("a click at (138, 302)")}));
}

void tst_Beginner::clicksAgainWhereNoListDropsDown()
{
    m_scene.perform = [this](const Action &action) {
        const int acts = int(m_scene.acts.size());
        soon([this, acts, action] {
            // The double click beside it has folded the list up again, and the first click is lost in that.
            m_scene.hasList = acts == 3;
            if (action.kind == Action::Kind::kChoose) {
                m_editor->report(QStringLiteral("comboBox"), QStringLiteral("kind"), QStringLiteral("3"));
            }
        });
        return Hand::Result::kDone;
    };
    QString choice = kFirst;
    begin({choice.replace(QStringLiteral("list,2"), QStringLiteral("comboBox,kind,3"))});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QCOMPARE(*m_failures, QStringList());
    QCOMPARE(done().mid(1),
             (QStringList{QStringLiteral("a click at (138, 302)"), QStringLiteral("a click at (138, 302)"),
                          QStringLiteral("choosing row 3")}));
}

void tst_Beginner::isBrokenWhereNothingLeadsBack()
{
    m_settings.settleMs = 1000;
    m_editor->m_ways.clear();
    m_scene.perform = [this](const Action &) {
        soon([this] {
            m_editor->m_cause = kList;
            m_editor->open(kProperties);
        });
        return Hand::Result::kDone;
    };
    begin({kFirst});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("nothing that can be clicked leads back")),
             qPrintable(m_failures->constFirst()));
}

void tst_Beginner::isBrokenWhereTheWayBackHasNoEffect()
{
    m_scene.perform = [this](const Action &) {
        if (m_scene.acts.size() == 1) {
            soon([this] {
                m_editor->m_cause = kList;
                m_editor->open(kProperties);
            });
        }
        return Hand::Result::kDone;
    };
    begin({kFirst});
    QTRY_VERIFY_WITH_TIMEOUT(m_failures.has_value(), 2 * kSoonMs);
    QVERIFY2(m_failures->constFirst().contains(QStringLiteral("what leads back to the step has no effect")),
             qPrintable(m_failures->constFirst()));
}

QTEST_GUILESS_MAIN(tst_Beginner)
#include "tst_Beginner.moc"
