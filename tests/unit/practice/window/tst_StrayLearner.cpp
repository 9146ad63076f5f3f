#include "EditorFixture.h"
#include "host/LessonSession.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

constexpr int kActs = 100;
/// More uses of a control than any way back has.
constexpr int kMostUses = 60;
/// Steps that are strayed from in one run, on average; all of them when TUTORIAL_STRAY_FROM_ALL is set.
/// TUTORIAL_SEED draws others.
constexpr int kSample = 8;

/// The texts of the lesson, by source, as a catalogue has them.
QHash<QString, QString> textsOf(const QString &lesson)
{
    QFile file(str(TUTORIAL_SOURCE_DIR "/resource/translations/en_US.ts"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no catalogue");
    }
    QHash<QString, QString> texts;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == str("name")) {
            context = xml.readElementText();
        } else if (xml.name() == str("source")) {
            source = xml.readElementText();
        } else if (xml.name() == str("translation") && context == lesson) {
            texts.insert(source, xml.readElementText());
        }
    }
    return texts;
}

/// The lesson as the companion hands it over.
QString handedOver(const QString &lesson)
{
    QFile file(str(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial/") + lesson + str(".js"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no lesson");
    }
    QString script = QString::fromUtf8(file.readAll());
    const QHash<QString, QString> texts = textsOf(lesson);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QString quoted = text.value();
        quoted.replace(QLatin1Char('"'), QLatin1String("\\\""))
            .replace(QLatin1Char('\n'), QLatin1String("\\n"));
        script.replace(str("qsTr(\"%1\")").arg(text.key()), str("\"%1\"").arg(quoted));
    }
    return str("start\u0001") + script + str("\u0001-1");
}

/// A learner with a session of a lesson.
class Learner
{
    Editor m_editor;

public:
    /// @p games is where projects are made.
    Learner(quint32 seed, const QString &games)
        : m_random(seed)
    {
        m_editor->setUnattended(true);
        m_editor->setProjectsFolder(games);
        m_editor->open(str("MainWindow"));
        begin({});
    }

    LessonSession session{m_editor.operator->()};

    void begin(const QJsonObject &bookmark)
    {
        if (bookmark.isEmpty()) {
            session.request(str("TutorialStep1"));
        } else {
            session.resume(bookmark);
        }
        session.receive(m_script);
        turn();
    }

    static void turn()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] bool isPlaying() const { return session.runner().isRunning(); }
    [[nodiscard]] int id() const { return isPlaying() ? session.runner().step().id : -1; }

    /// Does what the step asks for; whether it is over then.
    bool doStep()
    {
        const int before = id();
        const Step step = session.runner().step();
        const std::optional<ControlSpot> pointed =
            m_editor->controlAt(step.windowKey, QPoint(step.x, step.y) + LessonWords::kTip);
        if (step.condition.type() == Condition::Type::kNext) {
            session.receive(str("next"));
        } else if (step.icon == str("wait")) {
            return QTest::qWaitFor([this, before] { return id() != before; }, 5000);
        } else if (!pointed || !m_editor->perform(ControlUse::of(step, *pointed))) {
            return false;
        }
        turn();
        return id() != before;
    }

    /// Anything at all that a person can do with mouse and keyboard.
    void doAnything()
    {
        if (draw(12) == 0) {
            pressEsc();
            turn();
            return;
        }
        const QVector<ControlSpot> spots = usableControls();
        if (spots.isEmpty()) {
            QTest::qWait(20);
            return;
        }
        using Kind = ControlUse::Kind;
        const QVector<Kind> kinds{Kind::kClick, Kind::kClick,      Kind::kClick, Kind::kDoubleClick,
                                  Kind::kDrag,  Kind::kRightClick, Kind::kType};
        ControlUse use{
            spots.at(draw(int(spots.size()))), kinds.at(draw(int(kinds.size()))), {}, draw(3) == 0};
        use.text = draw(2) == 0 ? QString() : str("stray");
        m_editor->perform(use);
        turn();
    }

    /// Does nothing but what the arrow, or the button to put things back, says, until the step can go on.
    bool followsTheArrow()
    {
        for (int used = 0; used < kMostUses; ++used) {
            turn();
            if (!isPlaying() || !session.isAstray()) {
                return true;
            }
            const std::optional<Way> way = session.wayBack();
            if (way && way->by.control == ControlSpot::dismiss()) {
                pressEsc();
            } else if (way) {
                m_editor->perform(ControlUse::of(*way));
            } else if (session.canPutBack()) {
                session.putBack();
            } else {
                QTest::qWait(100);
            }
            m_log.append(way ? way->icon + QLatin1Char(' ') + way->by.windowKey + QLatin1Char('.') +
                                   way->by.control + QLatin1Char(' ') + QString::number(way->by.part)
                             : str("put back or wait"));
        }
        return false;
    }

    /// What there is to see, for a message.
    [[nodiscard]] QString state()
    {
        const Step step = session.runner().step();
        const std::optional<ControlSpot> pointed =
            m_editor->controlAt(step.windowKey, QPoint(step.x, step.y) + LessonWords::kTip);
        return str("step %1 %2; open %3; points at %4 %5, which %6; %7; last %8")
            .arg(step.id)
            .arg(step.conditionText, m_editor->openWindows().join(QLatin1Char(' ')),
                 pointed ? pointed->windowKey : QString(), pointed ? pointed->control : QString(),
                 pointed && m_editor->rectOf(*pointed) ? str("shows") : str("is hidden"),
                 session.isAstray() ? str("astray") : str("on track"),
                 QStringList(m_editor.told.mid(qMax(0, m_editor.told.size() - 12))).join(str("; ")));
    }

    [[nodiscard]] QString log() const { return m_log.join(str("; ")); }

private:
    int draw(int count) { return int(m_random.bounded(quint32(count))); }

    void pressEsc()
    {
        const QString top = m_editor->openWindows().constLast();
        QWidget *window = top == str("Popup") ? m_editor->window(str("MainWindow")) : m_editor->window(top);
        QTest::keyClick(window, Qt::Key_Escape);
    }

    QVector<ControlSpot> usableControls()
    {
        QVector<ControlSpot> spots;
        QStringList errors;
        const QStringList keys = m_descriptions.keys();
        for (const QString &key : keys) {
            for (const ControlDescription &control : m_descriptions.controlsIn(key)) {
                const QVector<int> parts{
                    -1, 0, 1, 2, 3, 4, 5, ControlSpot::cell(4, 4), ControlSpot::cell(9, 7)};
                const ControlSpot spot{key, control.name, parts.at(draw(int(parts.size())))};
                if (m_editor->rectOf(spot)) {
                    spots.append(spot);
                }
            }
        }
        return spots;
    }

    DescriptionSet m_descriptions = [] {
        QStringList errors;
        return DescriptionSet::read(str(":/descriptions"), nullptr, &errors);
    }();
    QString m_script = handedOver(str("TutorialStep1"));
    QRandomGenerator m_random;
    QStringList m_log;
};

} // namespace

/// A learner who does a hundred things at random, and then follows the arrow.
class tst_StrayLearner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theEditorDoesEveryStepByItself();
    void everyStepIsReachedAgain();

private:
    QTemporaryDir m_here;
};

void tst_StrayLearner::init()
{
    // The place of a new project is typed into as well, and what is typed there may count from here.
    QVERIFY(m_here.isValid());
    QVERIFY(QDir::setCurrent(m_here.path()));
}

void tst_StrayLearner::theEditorDoesEveryStepByItself()
{
    const QTemporaryDir games;
    Learner learner(1, games.path());
    int steps = 0;
    while (learner.isPlaying()) {
        const int id = learner.id();
        // On a small screen a menu lies over the row that the next step is about.
        QVERIFY2(learner.followsTheArrow(), qPrintable(str("astray at step %1").arg(id)));
        QVERIFY2(!learner.session.canPutBack(), qPrintable(str("a wrong move at step %1").arg(id)));
        QVERIFY2(learner.doStep(), qPrintable(str("step %1 is not over").arg(id)));
        ++steps;
    }
    QCOMPARE(steps, 86);
    QVERIFY2(!learner.log().contains(str("put back")), qPrintable(learner.log()));
}

void tst_StrayLearner::everyStepIsReachedAgain()
{
    const bool all = qEnvironmentVariableIsSet("TUTORIAL_STRAY_FROM_ALL");
    const quint32 seed =
        qEnvironmentVariableIsSet("TUTORIAL_SEED") ? qEnvironmentVariable("TUTORIAL_SEED").toUInt() : 7;
    qInfo("TUTORIAL_SEED=%u", seed);
    QRandomGenerator random(seed);
    const QTemporaryDir games;
    // One editor at a time: with a dialog open it takes the mouse from all other windows.
    QVector<QJsonObject> bookmarks;
    {
        Learner perfect(1, games.path());
        while (perfect.isPlaying()) {
            const int id = perfect.id();
            const bool isWaiting = perfect.session.runner().step().icon == str("wait");
            if ((all || random.bounded(86) < kSample) && !isWaiting) {
                bookmarks.append(perfect.session.bookmark());
            }
            QVERIFY2(perfect.followsTheArrow() && perfect.doStep(),
                     qPrintable(str("step %1 is not over").arg(id)));
        }
    }
    for (const QJsonObject &bookmark : qAsConst(bookmarks)) {
        const int id = bookmark.value(str("step")).toInt();
        Learner learner(seed + quint32(id), games.path());
        learner.begin(bookmark);
        QCOMPARE(learner.id(), id);
        for (int act = 0; act < kActs && learner.isPlaying(); ++act) {
            learner.doAnything();
        }
        const QString where = str("seed %1, from step %2, at step %3").arg(seed).arg(id).arg(learner.id());
        QVERIFY2(learner.followsTheArrow(), qPrintable(where + str(": ") + learner.log()));
        if (learner.isPlaying() && !learner.doStep()) {
            // The data may be such that it cannot be done; then they can be put back.
            QVERIFY2(learner.session.canPutBack(), qPrintable(where + str(": not over; ") + learner.state()));
            learner.session.putBack();
            QVERIFY2(learner.followsTheArrow() && learner.doStep(),
                     qPrintable(where + str(": not over when put back; ") + learner.state()));
        }
    }
    qInfo("strayed from %d steps", int(bookmarks.size()));
}

QTEST_MAIN(tst_StrayLearner)
#include "tst_StrayLearner.moc"
