#include "StrayLearner.h"

#include <QDirIterator>
#include <QTemporaryDir>

namespace {

constexpr int kActs = 100;

/// Of a lesson, and of a trial of one window, which are many.
constexpr int kStepsOfLesson = 8;
constexpr int kStepsOfTrial = 1;

quint32 seed()
{
    return qEnvironmentVariableIsSet("TUTORIAL_SEED") ? qEnvironmentVariable("TUTORIAL_SEED").toUInt() : 7;
}

/// A row for each scenario in @p folder and below.
void addRows(const QString &folder, const QString &names, int steps)
{
    QDirIterator files(folder, {names}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QTest::newRow(qPrintable(files.fileInfo().completeBaseName())) << path << steps;
    }
}

/// The lessons and trials there are, and of how many steps a run strays from, 0 being all of them.
void addLessons()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("steps");
    const bool all = qEnvironmentVariableIsSet("TUTORIAL_STRAY_FROM_ALL");
    const QString folder = qEnvironmentVariable("TUTORIAL_STRAY_IN");
    if (!folder.isEmpty()) {
        addRows(folder, str("*.js"), all ? 0 : kStepsOfLesson);
        return;
    }
    const QString lessons = str(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial");
    addRows(lessons, str("TutorialStep1.js"), all ? 0 : qEnvironmentVariableIntValue("TUTORIAL_STRAY_STEPS"));
    addRows(lessons, str("TutorialStep[2-9].js"), all ? 0 : kStepsOfLesson);
    addRows(lessons, str("TutorialStep1?.js"), all ? 0 : kStepsOfLesson);
    addRows(str(TUTORIAL_SOURCE_DIR "/tests/trials/scenarios"), str("*.js"), all ? 0 : kStepsOfTrial);
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
/// again. In the environment TUTORIAL_STRAY_FROM_ALL strays from all steps of all lessons and trials,
/// TUTORIAL_SEED draws other things to do, TUTORIAL_STRAY_STEPS is the number of steps of lesson 1 instead of
/// all, and TUTORIAL_STRAY_IN is a folder with other scenarios:
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

private:
    QTemporaryDir m_here;
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
    QFETCH(QString, path);
    const QTemporaryDir games;
    StrayLearner learner(path, 1, games.path());
    learner.begin();
    int steps = 0;
    while (learner.isPlaying()) {
        const int id = learner.id();
        // On a small screen a menu lies over the row that the next step is about.
        QVERIFY2(learner.followsTheArrow(), qPrintable(str("astray at step %1").arg(id)));
        QVERIFY2(!learner.session.canPutBack(), qPrintable(str("a wrong move at step %1").arg(id)));
        QVERIFY2(learner.doStep(),
                 qPrintable(str("step %1 is not over; %2").arg(QString::number(id), learner.state())));
        ++steps;
    }
    QVERIFY(learner.hasFinished());
    if (path.endsWith(str("/TutorialStep1.js"))) {
        QCOMPARE(steps, 86);
    }
    QVERIFY2(!learner.log().contains(str("put back")), qPrintable(learner.log()));
}

void tst_StrayLearner::everyStepIsReachedAgain_data()
{
    addLessons();
}

void tst_StrayLearner::everyStepIsReachedAgain()
{
    QFETCH(QString, path);
    QFETCH(int, steps);
    qInfo("TUTORIAL_SEED=%u", seed());
    const QTemporaryDir games;
    // One editor at a time: with a dialog open it takes the mouse from all other windows.
    QVector<QJsonObject> bookmarks;
    {
        StrayLearner perfect(path, 1, games.path());
        perfect.begin();
        while (perfect.isPlaying()) {
            const int id = perfect.id();
            if (!perfect.isWaiting()) {
                bookmarks.append(perfect.session.bookmark());
            }
            QVERIFY2(perfect.followsTheArrow() && perfect.doStep(),
                     qPrintable(str("step %1 is not over").arg(id)));
        }
    }
    bookmarks = drawn(bookmarks, steps, seed());
    for (const QJsonObject &bookmark : qAsConst(bookmarks)) {
        const int id = bookmark.value(str("step")).toInt();
        StrayLearner learner(path, seed() + quint32(id), games.path());
        learner.begin(bookmark);
        QCOMPARE(learner.id(), id);
        for (int act = 0; act < kActs && learner.isPlaying(); ++act) {
            learner.doAnything();
        }
        const QString where = str("seed %1, from step %2, at step %3").arg(seed()).arg(id).arg(learner.id());
        QVERIFY2(learner.goesOn(), qPrintable(where + str(": ") + learner.state() + learner.log()));
    }
    qInfo("strayed from %d steps", int(bookmarks.size()));
}

QTEST_MAIN(tst_StrayLearner)
#include "tst_StrayLearner.moc"
