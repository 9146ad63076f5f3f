#include "SessionOfLessons.h"
#include "strip/LessonChooser.h"
#include "strip/LessonCourse.h"
#include "strip/LessonStrip.h"
#include "strip/StripControl.h"

#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class tst_StripControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void welcomesWhoHasNoLesson();
    void showsEachStep();
    void nextIsWhatTheCompanionsNextIs();
    void yesAndNoAnswer_data();
    void yesAndNoAnswer();
    void backGoesAStepBack();
    void skipGoesOn();
    void helpIsOfferedUntilTheStepIsDone();
    void startAgainAsksFirst();
    void aLessonThatIsLeftSaysWhereItGoesOn();
    void aFinishedLessonIsPraisedAndLeadsToTheNext();
    void aRefusedLessonIsNamed();
    void aLessonThatIsInNoListIsNamed();
    void silenceIsSaidAndLeavesNothingBehind();
    void aLostGuideIsSaid();
    void theChooserStartsALesson();
    void theChooserShowsTheProgress();

private:
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return m_strip->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString text() const
    {
        return m_strip->findChild<QLabel *>(QStringLiteral("textLabel"))->text();
    }
    [[nodiscard]] QMessageBox *question() const
    {
        return m_strip->findChild<QMessageBox *>(QStringLiteral("startAgainMessageBox"));
    }
    [[nodiscard]] LessonChooser *chooser() const { return m_strip->findChild<LessonChooser *>(); }
    static void answer(const QMessageBox &box, QMessageBox::ButtonRole role);
    void play();
    /// Goes on to the second step, which is a place to go on from.
    void playToTheSecond();

    std::unique_ptr<SessionOfLessons> m_lessons;
    std::unique_ptr<LessonCourse> m_course;
    std::unique_ptr<LessonStrip> m_strip;
    std::unique_ptr<StripControl> m_control;
};

void tst_StripControl::init()
{
    m_lessons = std::make_unique<SessionOfLessons>();
    m_course = std::make_unique<LessonCourse>(&m_lessons->m_session, SessionOfLessons::catalog(), QString());
    m_strip = std::make_unique<LessonStrip>();
    m_control = std::make_unique<StripControl>(&m_lessons->m_session, m_course.get(), m_strip.get());
    connect(m_course.get(), &LessonCourse::lessonWanted, this, [this] { m_course->ask(); });
    m_lessons->list();
    m_strip->show();
}

void tst_StripControl::cleanup()
{
    m_control.reset();
    m_strip.reset();
    m_course.reset();
    m_lessons.reset();
}

void tst_StripControl::answer(const QMessageBox &box, QMessageBox::ButtonRole role)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *found : buttons) {
        if (box.buttonRole(found) == role) {
            found->click();
            return;
        }
    }
    QFAIL("no such button");
}

void tst_StripControl::play()
{
    m_course->begin(m_lessons->first());
    m_lessons->handOver();
}

void tst_StripControl::playToTheSecond()
{
    play();
    button("nextButton")->click();
    QTRY_COMPARE(m_course->entry(m_lessons->first()).progress.step, 2); // at the end of the turn
}

void tst_StripControl::welcomesWhoHasNoLesson()
{
    QVERIFY2(text().contains(QStringLiteral("“Lessons…”")), qPrintable(text()));
    QVERIFY(!button("skipButton")->isVisible());
}

void tst_StripControl::showsEachStep()
{
    play();
    QCOMPARE(m_strip->findChild<QLabel *>(QStringLiteral("titleLabel"))->text(), QStringLiteral("1. Maps"));
    QCOMPARE(m_strip->findChild<QProgressBar *>()->text(), QStringLiteral("1 of 4"));
    QCOMPARE(text(), QStringLiteral("Read"));
    QVERIFY(button("nextButton")->isEnabled());
    m_lessons->m_session.next();
    QCOMPARE(text(), QStringLiteral("Well?"));
    QVERIFY(button("yesButton")->isVisible() && button("noButton")->isVisible());
    QVERIFY(!button("nextButton")->isVisible());
    m_lessons->m_session.answer(false);
    QCOMPARE(text(), QStringLiteral("Press, drag"));
    QVERIFY(!button("nextButton")->isEnabled());
    QVERIFY(m_strip->findChild<QLabel *>(QStringLiteral("dragPicture"))->isVisible());
}

void tst_StripControl::nextIsWhatTheCompanionsNextIs()
{
    play();
    button("nextButton")->click();
    QCOMPARE(m_lessons->stepId(), 2);
}

void tst_StripControl::yesAndNoAnswer_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("yes") << QByteArray("yesButton");
    QTest::newRow("no") << QByteArray("noButton");
}

void tst_StripControl::yesAndNoAnswer()
{
    QFETCH(QByteArray, name);
    play();
    button("nextButton")->click();
    button(name)->click();
    QCOMPARE(m_lessons->stepId(), 3);
}

void tst_StripControl::backGoesAStepBack()
{
    play();
    QVERIFY(!button("backButton")->isEnabled());
    button("nextButton")->click();
    QVERIFY(button("backButton")->isEnabled());
    button("backButton")->click();
    QCOMPARE(m_lessons->stepId(), 1);
    QCOMPARE(text(), QStringLiteral("Read"));
}

void tst_StripControl::skipGoesOn()
{
    play();
    button("skipButton")->click();
    QCOMPARE(m_lessons->stepId(), 2);
}

void tst_StripControl::helpIsOfferedUntilTheStepIsDone()
{
    play();
    QVERIFY(!button("helpButton")->isVisible());
    Q_EMIT m_lessons->m_session.helpOffered();
    QVERIFY(button("helpButton")->isVisible());
    m_lessons->m_session.next();
    QVERIFY(!button("helpButton")->isVisible());
}

void tst_StripControl::startAgainAsksFirst()
{
    playToTheSecond();
    button("startAgainButton")->click();
    QVERIFY(question() != nullptr);
    answer(*question(), QMessageBox::RejectRole);
    QCOMPARE(m_lessons->stepId(), 2);
    QTRY_VERIFY(question() == nullptr);
    button("startAgainButton")->click();
    answer(*question(), QMessageBox::AcceptRole);
    m_lessons->handOver();
    QCOMPARE(m_lessons->stepId(), 1);
}

void tst_StripControl::aLessonThatIsLeftSaysWhereItGoesOn()
{
    playToTheSecond();
    button("leaveButton")->click();
    QCOMPARE(m_lessons->stepId(), -1);
    QVERIFY2(text().contains(QStringLiteral("step 2")), qPrintable(text()));
    QVERIFY(!button("skipButton")->isVisible());
}

void tst_StripControl::aFinishedLessonIsPraisedAndLeadsToTheNext()
{
    QSignalSpy praised(m_control.get(), &StripControl::praised);
    play();
    while (m_lessons->stepId() > 0) {
        button("skipButton")->click();
    }
    QCOMPARE(praised.size(), 1);
    QVERIFY2(text().contains(QStringLiteral("“Maps”")), qPrintable(text()));
    QCOMPARE(praised.constFirst().constFirst().toString(), text());
    QVERIFY(praised.constFirst().constLast().toBool());
    QVERIFY(button("nextLessonButton")->isVisible());
    button("nextLessonButton")->click();
    QCOMPARE(m_lessons->asked(m_lessons->last()), 1);
}

void tst_StripControl::aRefusedLessonIsNamed()
{
    m_course->begin(m_lessons->last());
    QVERIFY2(text().contains(QStringLiteral("opened")), qPrintable(text()));
    m_lessons->m_session.receive(QStringLiteral("start\u0001no lesson\u0001-1"));
    QVERIFY2(text().startsWith(QStringLiteral("“Doors” cannot be opened.")), qPrintable(text()));
}

void tst_StripControl::aLessonThatIsInNoListIsNamed()
{
    m_course->begin(QStringLiteral("Nowhere"));
    QVERIFY2(text().startsWith(QStringLiteral("“Nowhere” cannot be opened.")), qPrintable(text()));
}

void tst_StripControl::silenceIsSaidAndLeavesNothingBehind()
{
    play();
    m_control->setSilent(true);
    QCOMPARE(text(), QStringLiteral("The guide does not answer."));
    m_control->setSilent(false);
    QCOMPARE(text(), QStringLiteral("Read"));
}

void tst_StripControl::aLostGuideIsSaid()
{
    play();
    m_lessons->m_session.abandon();
    m_control->showLost();
    QVERIFY2(text().startsWith(QStringLiteral("The guide is gone.")), qPrintable(text()));
}

void tst_StripControl::theChooserStartsALesson()
{
    button("lessonsButton")->click();
    QVERIFY(chooser() != nullptr);
    chooser()->findChild<QPushButton *>(QStringLiteral("beginButton"))->click();
    QCOMPARE(m_lessons->asked(m_lessons->first()), 1);
    QTRY_VERIFY(chooser() == nullptr);
}

void tst_StripControl::theChooserShowsTheProgress()
{
    playToTheSecond();
    button("lessonsButton")->click();
    auto *const goOn = chooser()->findChild<QPushButton *>(QStringLiteral("goOnButton"));
    QVERIFY(goOn->isVisible());
    goOn->click(); // it runs already
    QCOMPARE(m_lessons->stepId(), 2);
    QCOMPARE(m_lessons->asked(m_lessons->first()), 1);
}

QTEST_MAIN(tst_StripControl)
#include "tst_StripControl.moc"
