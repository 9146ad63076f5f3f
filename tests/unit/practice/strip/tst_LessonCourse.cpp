#include "SessionOfLessons.h"
#include "strip/LessonCourse.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_LessonCourse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsOfEachLessonWhatIsKnown();
    void asksForTheLessonThatIsWanted();
    void asksForNothingWhenNothingIsWanted();
    void aLessonThatWasLeftGoesOnAtItsStep();
    void aLessonGoesOnInTheNextRun();
    void aLessonGoesOnAfterTheCompanionsEnd();
    void beginningAnewGivesThePlaceUp();
    void aFinishedLessonIsDone();
    void aRefusedLessonIsGreyUntilItIsWantedAgain();
    void theNextLessonIsOneThatCanBePlayed();
    void aLessonWhoseStateIsGoneBeginsAgainAndSaysSo();
    void whatIsWrongWithTheFilesIsTold();
    void aLessonOfOnesOwnIsInTheList();
    void aLessonOfOnesOwnIsNotAskedFor();
    void aLessonOfOnesOwnGoesOnAfterTheCompanionsEnd();
    void aLessonOfOnesOwnThatWasMendedIsNoLongerRefused();

private:
    void play(const QString &lesson);
    /// Goes on to the next step, which is the one with this number. Its place is kept at the end of a turn.
    void goTo(int step);
    /// As if the editor had been closed and opened again.
    void nextRun();
    /// The person has a lesson of her own, which m_ownPlays has each time that it was begun: whether it went
    /// on.
    void setOwn(const QString &lesson);

    QTemporaryDir m_folder;
    std::unique_ptr<SessionOfLessons> m_lessons;
    std::unique_ptr<LessonCourse> m_course;
    QVector<bool> m_ownPlays;
    /// Its text; nothing can be played while that is empty.
    QString m_own;
};

void tst_LessonCourse::init()
{
    nextRun();
    m_course->begin(m_lessons->first());
    m_course->leave();
}

void tst_LessonCourse::cleanup()
{
    m_course.reset();
    m_lessons.reset();
    const QStringList files = QDir(m_folder.path()).entryList(QDir::Files);
    for (const QString &file : files) {
        QFile::remove(m_folder.filePath(file));
    }
}

void tst_LessonCourse::nextRun()
{
    m_course.reset();
    m_lessons = std::make_unique<SessionOfLessons>();
    m_course =
        std::make_unique<LessonCourse>(&m_lessons->m_session, SessionOfLessons::catalog(), m_folder.path());
    connect(m_course.get(), &LessonCourse::lessonWanted, this, [this] { m_course->ask(); });
    m_lessons->list();
}

void tst_LessonCourse::play(const QString &lesson)
{
    m_course->begin(lesson);
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 1);
}

void tst_LessonCourse::goTo(int step)
{
    m_lessons->m_session.skipStep();
    QCOMPARE(m_lessons->stepId(), step);
    QTRY_COMPARE(m_course->entry(m_lessons->first()).progress.step, step);
}

void tst_LessonCourse::tellsOfEachLessonWhatIsKnown()
{
    const QVector<LessonCourse::Entry> entries = m_course->entries();
    QCOMPARE(entries.size(), 3);
    QCOMPARE(entries.at(0).title, QStringLiteral("Maps"));
    QCOMPARE(entries.at(0).numberedTitle(), QStringLiteral("1. Maps"));
    QVERIFY(!entries.at(0).teaches.isEmpty());
    QVERIFY(entries.at(0).minutes > 0);
    QVERIFY(entries.at(0).canBePlayed());
    QVERIFY(!entries.at(1).canBePlayed());
    QCOMPARE(entries.at(2).numberedTitle(), QStringLiteral("3. Doors"));
    QVERIFY(entries.at(2).canBePlayed());
    QCOMPARE(m_course->entry(QStringLiteral("Nowhere")).numberedTitle(), QStringLiteral("Nowhere"));
}

void tst_LessonCourse::asksForTheLessonThatIsWanted()
{
    m_lessons->m_sent.clear();
    m_course->begin(m_lessons->last());
    QCOMPARE(m_course->wanted(), m_lessons->last());
    QCOMPARE(m_lessons->asked(m_lessons->last()), 1);
}

void tst_LessonCourse::asksForNothingWhenNothingIsWanted()
{
    m_lessons->m_sent.clear();
    m_course->ask();
    QCOMPARE(m_lessons->m_sent, QStringList());
}

void tst_LessonCourse::aLessonThatWasLeftGoesOnAtItsStep()
{
    play(m_lessons->first());
    goTo(2);
    m_course->leave();
    QCOMPARE(m_lessons->stepId(), -1);
    QCOMPARE(m_course->entry(m_lessons->first()).progress.step, 2);
    QCOMPARE(m_course->entry(m_lessons->first()).progress.steps, 4);
    m_course->goOn(m_lessons->first());
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 2);
}

void tst_LessonCourse::aLessonGoesOnInTheNextRun()
{
    play(m_lessons->first());
    goTo(2);
    goTo(3);
    nextRun(); // nobody left the lesson
    QCOMPARE(m_course->entry(m_lessons->first()).progress.step, 3);
    m_course->goOn(m_lessons->first());
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 3);
}

void tst_LessonCourse::aLessonGoesOnAfterTheCompanionsEnd()
{
    play(m_lessons->first());
    goTo(2);
    m_lessons->m_session.abandon();
    QCOMPARE(m_course->wanted(), m_lessons->first());
    m_lessons->list();
    m_course->ask();
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 2);
}

void tst_LessonCourse::beginningAnewGivesThePlaceUp()
{
    play(m_lessons->first());
    goTo(2);
    play(m_lessons->first());
    QTRY_COMPARE(m_course->entry(m_lessons->first()).progress.step, 0);
    nextRun();
    QCOMPARE(m_course->entry(m_lessons->first()).progress.step, 0);
}

void tst_LessonCourse::aFinishedLessonIsDone()
{
    play(m_lessons->first());
    QSignalSpy changed(m_course.get(), &LessonCourse::changed);
    while (m_lessons->stepId() > 0) {
        m_lessons->m_session.skipStep();
    }
    QVERIFY(!changed.isEmpty());
    QCOMPARE(m_course->wanted(), QString());
    const LessonProgress::Record record = m_course->entry(m_lessons->first()).progress;
    QVERIFY(record.isDone);
    QCOMPARE(record.step, 0);
    nextRun();
    QVERIFY(m_course->entry(m_lessons->first()).progress.isDone);
}

void tst_LessonCourse::aRefusedLessonIsGreyUntilItIsWantedAgain()
{
    m_course->begin(m_lessons->last());
    m_lessons->answerLists();
    m_lessons->m_session.receive(QStringLiteral("start\u0001no lesson\u0001-1"));
    QVERIFY(!m_course->entry(m_lessons->last()).canBePlayed());
    QCOMPARE(m_course->wanted(), QString());
    m_course->begin(m_lessons->last());
    QVERIFY(m_course->entry(m_lessons->last()).canBePlayed());
}

void tst_LessonCourse::theNextLessonIsOneThatCanBePlayed()
{
    QCOMPARE(m_course->lessonAfter(m_lessons->first()), m_lessons->last());
    QCOMPARE(m_course->lessonAfter(m_lessons->last()), QString());
    QCOMPARE(m_course->lessonAfter(QStringLiteral("Nowhere")), QString());
}

void tst_LessonCourse::aLessonWhoseStateIsGoneBeginsAgainAndSaysSo()
{
    play(m_lessons->first());
    goTo(2);
    m_course->leave();
    QSignalSpy problems(m_course.get(), &LessonCourse::problemFound);
    m_lessons->m_editor.m_canRestore = false;
    m_course->goOn(m_lessons->first());
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 1);
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.constFirst().constFirst().toString().contains(QStringLiteral("Maps")));
}

void tst_LessonCourse::whatIsWrongWithTheFilesIsTold()
{
    play(m_lessons->first());
    goTo(2);
    QFile file(m_folder.filePath(QStringLiteral("progress.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    m_course.reset();
    m_lessons = std::make_unique<SessionOfLessons>();
    m_course =
        std::make_unique<LessonCourse>(&m_lessons->m_session, SessionOfLessons::catalog(), m_folder.path());
    QSignalSpy problems(m_course.get(), &LessonCourse::problemFound);
    m_lessons->list();
    m_lessons->list();
    QCOMPARE(problems.size(), 1);
}

void tst_LessonCourse::setOwn(const QString &lesson)
{
    m_ownPlays.clear();
    m_own = QStringLiteral(
        R"(var scenario = [{"id":1,"condition":"click,"},{"id":2,"condition":"click,"},{"id":3}];)");
    m_course->setOwnLesson(lesson, [this, lesson](bool goesOn) {
        m_ownPlays.append(goesOn);
        m_lessons->m_session.play(lesson, m_own, goesOn ? 2 : -1);
    });
}

void tst_LessonCourse::aLessonOfOnesOwnIsInTheList()
{
    setOwn(QStringLiteral("Harbor"));
    QCOMPARE(m_course->entries().size(), 4);
    QCOMPARE(m_course->entries().constLast().numberedTitle(), QStringLiteral("Harbor"));
    QVERIFY(m_course->entries().constLast().canBePlayed());
    // In the place of the one with its name, also where that is not there yet.
    setOwn(m_lessons->unwritten());
    QCOMPARE(m_course->entries().size(), 3);
    QVERIFY(m_course->entries().at(1).canBePlayed());
}

void tst_LessonCourse::aLessonOfOnesOwnIsNotAskedFor()
{
    setOwn(m_lessons->last());
    m_lessons->m_sent.clear();
    m_course->begin(m_lessons->last());
    QCOMPARE(m_lessons->stepId(), 1);
    m_lessons->m_session.skipStep();
    m_course->leave();
    m_course->goOn(m_lessons->last());
    QCOMPARE(m_lessons->stepId(), 2);
    QCOMPARE(m_ownPlays, (QVector<bool>{false, true}));
    QCOMPARE(m_lessons->asked(m_lessons->last()), 0);
    m_course->begin(m_lessons->first());
    QCOMPARE(m_lessons->asked(m_lessons->first()), 1);
}

void tst_LessonCourse::aLessonOfOnesOwnGoesOnAfterTheCompanionsEnd()
{
    setOwn(QStringLiteral("Harbor"));
    m_lessons->m_session.play(QStringLiteral("Harbor"), m_own, -1); // nobody has chosen it
    m_lessons->m_session.abandon();
    QCOMPARE(m_course->wanted(), QStringLiteral("Harbor"));
    m_course->ask();
    QCOMPARE(m_ownPlays, QVector<bool>{true});
    m_course->leave();
    QCOMPARE(m_course->wanted(), QString());
}

void tst_LessonCourse::aLessonOfOnesOwnThatWasMendedIsNoLongerRefused()
{
    setOwn(QStringLiteral("Harbor"));
    const QString mended = std::exchange(m_own, QString());
    m_course->begin(QStringLiteral("Harbor"));
    QVERIFY(!m_course->entry(QStringLiteral("Harbor")).canBePlayed());
    m_lessons->m_session.play(QStringLiteral("Harbor"), mended, -1);
    QVERIFY(m_course->entry(QStringLiteral("Harbor")).canBePlayed());
}

QTEST_GUILESS_MAIN(tst_LessonCourse)
#include "tst_LessonCourse.moc"
