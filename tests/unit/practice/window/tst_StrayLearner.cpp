#include "StrayLearner.h"
#include "host/JsonChange.h"

#include <QDirIterator>
#include <QSet>
#include <QTemporaryDir>

#include <map>

namespace {

constexpr int kActs = 100;

/// How often something wrong is done in a step, and put back: once, twice and three times in a row.
constexpr int kWrongs = 3;

/// Of a lesson, of the same where she says no, and of a trial of one window, which are many.
constexpr int kStepsOfLesson = 2;
constexpr int kStepsOfNo = 1;
constexpr int kStepsOfTrial = 1;

quint32 seed()
{
    return qEnvironmentVariableIsSet("TUTORIAL_SEED") ? qEnvironmentVariable("TUTORIAL_SEED").toUInt() : 7;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A row for each scenario in @p folder and below, and one more for who answers no where it asks. Of them
/// all, only every so manieth in TUTORIAL_STRAY_SHARE, which goes by the seed.
void addRows(const QString &folder, const QString &names, int steps)
{
    const int share = qMax(1, qEnvironmentVariableIntValue("TUTORIAL_STRAY_SHARE"));
    int place = int(seed() % quint32(share));
    QStringList paths;
    QDirIterator files(folder, {names}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    for (const QString &path : qAsConst(paths)) {
        if (place++ % share != 0) {
            continue;
        }
        const QString name = QFileInfo(path).completeBaseName();
        QTest::newRow(qPrintable(name)) << path << true << steps;
        if (contents(path).contains("\"condition\":\"yesNo\"")) {
            QTest::newRow(qPrintable(name + str(", no"))) << path << false << qMin(steps, kStepsOfNo);
        }
    }
}

/// The lessons and trials there are, what is answered, and of how many steps a run strays from, 0 being all
/// of them.
void addLessons()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("answersYes");
    QTest::addColumn<int>("steps");
    const bool all = qEnvironmentVariableIsSet("TUTORIAL_STRAY_FROM_ALL");
    const QString folder = qEnvironmentVariable("TUTORIAL_STRAY_IN");
    if (!folder.isEmpty()) {
        addRows(folder, str("*.js"), all ? 0 : kStepsOfLesson);
        return;
    }
    addRows(str(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial"), str("TutorialStep*.js"),
            all ? 0 : kStepsOfLesson);
    addRows(str(TUTORIAL_SOURCE_DIR "/tests/trials/scenarios"), str("*.js"), all ? 0 : kStepsOfTrial);
}

/// Who says no to a new project finds the one that the lesson starts from in @p games.
void putProject(const QString &path, const QString &games)
{
    const QString name = QFileInfo(path).completeBaseName();
    const QDir sample(str(TUTORIAL_SOURCE_DIR "/resource/preset/step") +
                      name.mid(str("TutorialStep").size()) + str("/data"));
    const QDir project(games + str("/Sample/data"));
    const QStringList files = sample.entryList(QDir::Files);
    QVERIFY(files.isEmpty() || project.mkpath(str(".")));
    for (const QString &file : files) {
        QVERIFY(QFile::copy(sample.filePath(file), project.filePath(file)));
    }
}

/// The ids of the steps that follow each other where all questions are answered so.
QSet<int> stepsOn(const Scenario &scenario, bool answersYes)
{
    QSet<int> ids;
    for (int i = 0; i >= 0 && i < scenario.size() && !ids.contains(scenario.step(i).id);) {
        const Step &step = scenario.step(i);
        ids.insert(step.id);
        const bool isNo = step.condition.type() == Condition::Type::kYesNo && !answersYes;
        const int to = isNo ? step.jumpNo : step.jump;
        i = to >= 0 ? scenario.indexOf(to) : i + 1;
    }
    return ids;
}

/// Some of them, or all for 0.
QVector<QJsonObject> drawn(QVector<QJsonObject> bookmarks, int count, quint32 seed)
{
    QRandomGenerator random(seed);
    while (count > 0 && bookmarks.size() > count) {
        bookmarks.removeAt(int(random.bounded(quint32(bookmarks.size()))));
    }
    return bookmarks;
}

} // namespace

/// A learner who does a hundred things at random, and then follows the arrow until she has done something
/// again; and one who does something wrong, and puts back what she is offered to put back: from a few steps
/// of each lesson and trial. In the environment TUTORIAL_STRAY_FROM_ALL strays from all steps of all lessons
/// and trials, TUTORIAL_SEED draws other steps and other things to do, TUTORIAL_STRAY_IN is a folder with
/// other scenarios, and TUTORIAL_STRAY_SHARE takes one in so many of them:
///
///     TUTORIAL_STRAY_FROM_ALL=1 TUTORIAL_SEED=22 build/release/tests/tst_StrayLearner
///     everyStepIsReachedAgain
class tst_StrayLearner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theEditorDoesEveryStepByItself_data();
    void theEditorDoesEveryStepByItself();
    void everyStepIsReachedAgain_data();
    void everyStepIsReachedAgain();
    void nothingWrongStaysThatWasPutBack_data();
    void nothingWrongStaysThatWasPutBack();

private:
    /// What is left of somebody who makes no mistake.
    struct Perfect
    {
        QTemporaryDir games;
        /// At the steps to stray from.
        QVector<QJsonObject> bookmarks;
        /// The project at each step, by its id.
        QMap<int, QJsonObject> data;
        /// She has come to the end.
        bool isWhole = false;
    };

    void playPerfectly();

    QTemporaryDir m_here;
    /// By the row of the test.
    std::map<QByteArray, Perfect> m_perfect;
};

void tst_StrayLearner::init()
{
    // The place of a new project is typed into as well, and what is typed there may count from here.
    QVERIFY(m_here.isValid());
    QVERIFY(QDir::setCurrent(m_here.path()));
}

void tst_StrayLearner::theEditorDoesEveryStepByItself_data()
{
    addLessons();
}

void tst_StrayLearner::theEditorDoesEveryStepByItself()
{
    playPerfectly();
}

void tst_StrayLearner::playPerfectly()
{
    QFETCH(QString, path);
    QFETCH(bool, answersYes);
    QFETCH(int, steps);
    Perfect &perfect = m_perfect[QTest::currentDataTag()];
    putProject(path, perfect.games.path());
    StrayLearner learner(path, 1, perfect.games.path(), answersYes);
    learner.begin();
    // Who says no strays where she does not come with yes.
    const QSet<int> known = answersYes ? QSet<int>() : stepsOn(learner.session.runner().scenario(), true);
    QVector<QJsonObject> bookmarks;
    int count = 0;
    while (learner.isPlaying()) {
        const int id = learner.id();
        perfect.data.insert(id, learner.data());
        if (!learner.isWaiting() && !known.contains(id)) {
            bookmarks.append(learner.session.bookmark());
        }
        // On a small screen a menu lies over the row that the next step is about.
        QVERIFY2(learner.followsTheArrow(), qPrintable(str("astray at step %1").arg(id)));
        QVERIFY2(!learner.session.canPutBack(), qPrintable(str("a wrong move at step %1").arg(id)));
        QVERIFY2(learner.doStep(),
                 qPrintable(str("step %1 is not over; %2").arg(QString::number(id), learner.state())));
        ++count;
    }
    QVERIFY(learner.hasFinished());
    if (path.endsWith(str("/TutorialStep1.js"))) {
        QCOMPARE(count, 86);
    }
    QVERIFY2(!learner.log().contains(str("put back")), qPrintable(learner.log()));
    perfect.bookmarks = drawn(bookmarks, steps, seed());
    perfect.isWhole = true;
}

void tst_StrayLearner::everyStepIsReachedAgain_data()
{
    addLessons();
}

void tst_StrayLearner::everyStepIsReachedAgain()
{
    QFETCH(QString, path);
    QFETCH(bool, answersYes);
    qInfo("TUTORIAL_SEED=%u", seed());
    // One editor at a time: with a dialog open it takes the mouse from all other windows.
    if (!m_perfect[QTest::currentDataTag()].isWhole) {
        m_perfect.erase(QTest::currentDataTag());
        playPerfectly();
    }
    const Perfect &perfect = m_perfect[QTest::currentDataTag()];
    if (!perfect.isWhole) {
        return; // that was told
    }
    for (const QJsonObject &bookmark : perfect.bookmarks) {
        const int id = bookmark.value(str("step")).toInt();
        StrayLearner learner(path, seed() + quint32(id), perfect.games.path(), answersYes);
        learner.begin(bookmark);
        QCOMPARE(learner.id(), id);
        for (int act = 0; act < kActs && learner.isPlaying(); ++act) {
            learner.doAnything();
        }
        const QString where = str("seed %1, from step %2, at step %3").arg(seed()).arg(id).arg(learner.id());
        QVERIFY2(learner.goesOn(), qPrintable(where + str(": ") + learner.state() + learner.log()));
    }
    qInfo("strayed from %d steps", int(perfect.bookmarks.size()));
}

void tst_StrayLearner::nothingWrongStaysThatWasPutBack_data()
{
    addLessons();
}

void tst_StrayLearner::nothingWrongStaysThatWasPutBack()
{
    QFETCH(QString, path);
    QFETCH(bool, answersYes);
    qInfo("TUTORIAL_SEED=%u", seed());
    if (!m_perfect[QTest::currentDataTag()].isWhole) {
        m_perfect.erase(QTest::currentDataTag());
        playPerfectly();
    }
    const Perfect &perfect = m_perfect[QTest::currentDataTag()];
    if (!perfect.isWhole) {
        return; // that was told
    }
    for (const QJsonObject &bookmark : perfect.bookmarks) {
        const int id = bookmark.value(str("step")).toInt();
        for (int wrongs = 1; wrongs <= kWrongs; ++wrongs) {
            StrayLearner learner(path, seed() + quint32(id * kWrongs + wrongs), perfect.games.path(),
                                 answersYes);
            learner.begin(bookmark);
            for (int wrong = 0; wrong < wrongs && learner.isPlaying(); ++wrong) {
                learner.doAnythingWrong();
            }
            learner.putsBackAll();
            if (learner.id() == id) {
                const QJsonObject change = JsonChange::between(perfect.data.value(id), learner.data());
                QVERIFY2(change.isEmpty(),
                         qPrintable(str("seed %1, at step %2: %3; %4")
                                        .arg(QString::number(seed()), QString::number(id), learner.log(),
                                             QString::fromUtf8(QJsonDocument(change).toJson()).left(600))));
            }
        }
    }
}

QTEST_MAIN(tst_StrayLearner)
#include "tst_StrayLearner.moc"
