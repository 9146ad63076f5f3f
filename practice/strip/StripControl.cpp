#include "strip/StripControl.h"

#include "host/LessonSession.h"
#include "strip/LessonChooser.h"
#include "strip/LessonCourse.h"
#include "strip/LessonStrip.h"
#include "strip/LessonTime.h"

#include <QMessageBox>
#include <QPushButton>

StripControl::StripControl(LessonSession *session, LessonCourse *course, LessonStrip *strip, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_course(course)
    , m_strip(strip)
{
    connectSession();
    connectStrip();
    connect(course, &LessonCourse::lessonWanted, this, [this] { talk(Talk::kOpening, m_course->wanted()); });
    connect(course, &LessonCourse::changed, this, &StripControl::fillChooser);
    update();
}

void StripControl::connectSession()
{
    connect(m_session, &LessonSession::stepReached, this, [this] {
        m_offersHelp = false;
        update();
    });
    connect(m_session, &LessonSession::stepTold, this, &StripControl::update);
    connect(m_session, &LessonSession::astrayChanged, this, &StripControl::update);
    connect(m_session, &LessonSession::helpOffered, this, [this] {
        m_offersHelp = true;
        update();
    });
    connect(m_session, &LessonSession::finished, this, [this] {
        talk(Talk::kFinished, m_session->lessonName());
        Q_EMIT praised(praise(), !m_course->lessonAfter(m_lessonName).isEmpty());
    });
    connect(m_session, &LessonSession::refused, this,
            [this](const QString &lessonName) { talk(Talk::kRefused, lessonName); });
    connect(m_session, &LessonSession::stopped, this,
            [this](const LessonFault &fault) { talk(Talk::kRefused, fault.lesson); });
}

void StripControl::connectStrip()
{
    connect(m_strip, &LessonStrip::nextPressed, m_session, &LessonSession::next);
    connect(m_strip, &LessonStrip::answered, m_session, &LessonSession::answer);
    connect(m_strip, &LessonStrip::backRequested, m_session, &LessonSession::back);
    connect(m_strip, &LessonStrip::helpRequested, m_session, &LessonSession::showMe);
    connect(m_strip, &LessonStrip::putBackRequested, m_session, &LessonSession::putBack);
    connect(m_strip, &LessonStrip::skipRequested, m_session, &LessonSession::skipStep);
    connect(m_strip, &LessonStrip::startAgainRequested, this, [this] { begin(m_session->lessonName()); });
    connect(m_strip, &LessonStrip::leaveRequested, this, [this] {
        m_course->leave();
        talk(Talk::kLeft, m_session->lessonName());
    });
    connect(m_strip, &LessonStrip::lessonsRequested, this, [this] { openChooser(); });
    connect(m_strip, &LessonStrip::nextLessonRequested, this,
            [this] { goOn(m_course->lessonAfter(m_lessonName)); });
}

void StripControl::setSilent(bool silent)
{
    m_isSilent = silent;
    update();
}

void StripControl::showLost()
{
    talk(Talk::kLost, m_session->lessonName());
}

void StripControl::talk(Talk talk, const QString &lessonName)
{
    m_talk = talk;
    m_lessonName = lessonName;
    update();
}

void StripControl::update()
{
    StripState state;
    if (m_session->runner().isRunning()) {
        state = playingState();
    } else {
        const bool isFinished = m_talk == Talk::kFinished;
        state.phase = isFinished ? StripState::Phase::kFinished : StripState::Phase::kIdle;
        state.title = m_lessonName.isEmpty() ? QString() : m_course->entry(m_lessonName).numberedTitle();
        state.hasNextLesson = isFinished && !m_course->lessonAfter(m_lessonName).isEmpty();
        state.text = words();
    }
    if (m_isSilent) {
        state.text = tr("The guide does not answer.");
    }
    m_strip->setState(state);
}

StripState StripControl::playingState() const
{
    const ScenarioRunner &runner = m_session->runner();
    StripState state;
    state.phase = StripState::Phase::kPlaying;
    state.title = m_course->entry(m_session->lessonName()).numberedTitle();
    state.step = runner.index() + 1;
    state.steps = runner.scenario().size();
    state.minutesLeft = LessonTime::minutesFrom(runner.scenario(), runner.index());
    state.text = m_session->hint();
    const bool isAstray = m_session->isAstray();
    const Condition::Type type = runner.step().condition.type();
    state.hasNext = !isAstray && type == Condition::Type::kNext;
    state.hasYesNo = !isAstray && type == Condition::Type::kYesNo;
    state.drags = !isAstray && LessonWords::saysDrag(state.text);
    state.canGoBack = m_session->canGoBack();
    state.canPutBack = m_session->canPutBack();
    state.offersHelp = m_offersHelp;
    return state;
}

QString StripControl::words() const
{
    const LessonCourse::Entry lesson = m_course->entry(m_lessonName);
    switch (m_talk) {
    case Talk::kWelcome:
        //: "Lessons…" is a button.
        return tr("In the lessons you make a game step by step. Choose one with “Lessons…”.");
    case Talk::kOpening:
        return tr("The lesson is being opened…");
    case Talk::kRefused:
        //: %1 is the title of a lesson. "Lessons…" is a button.
        return tr("“%1” cannot be opened. Choose another lesson with “Lessons…”.").arg(lesson.title);
    case Talk::kLeft:
        //: "Lessons…" and "Go on" are buttons. %1 is the number of a step.
        return lesson.progress.step > 0 ? tr("You have left the lesson. It goes on at step %1: choose it "
                                             "with “Lessons…”, then “Go on”.")
                                              .arg(lesson.progress.step)
                                        : tr("You have left the lesson. Choose another one with “Lessons…”.");
    case Talk::kLost:
        //: The guide is the companion program. "Lessons…" is a button.
        return tr("The guide is gone. To go on with a lesson, choose it with “Lessons…”.");
    case Talk::kFinished:
        break;
    }
    return praise();
}

QString StripControl::praise() const
{
    //: %1 is the title of a lesson.
    return tr("Well done! You have finished “%1”.").arg(m_course->entry(m_lessonName).title);
}

void StripControl::openChooser(const QString &lessonName)
{
    if (!lessonName.isEmpty()) {
        m_lessonName = lessonName;
    }
    if (m_chooser == nullptr) {
        m_chooser = new LessonChooser(m_strip->window());
        m_chooser->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_chooser, &LessonChooser::beginRequested, this, &StripControl::begin);
        connect(m_chooser, &LessonChooser::goOnRequested, this, &StripControl::goOn);
        fillChooser();
        m_chooser->open();
    }
    m_chooser->raise();
    m_chooser->activateWindow();
}

void StripControl::fillChooser()
{
    if (m_chooser != nullptr) {
        m_chooser->setEntries(m_course->entries(), m_lessonName);
    }
}

void StripControl::begin(const QString &lessonName)
{
    const LessonCourse::Entry lesson = m_course->entry(lessonName);
    if (lesson.progress.step == 0) {
        closeChooser();
        m_course->begin(lessonName);
        return;
    }
    if (m_question != nullptr) {
        m_question->close();
    }
    QWidget *const above = m_chooser != nullptr ? static_cast<QWidget *>(m_chooser) : m_strip->window();
    m_question = new QMessageBox(QMessageBox::Question, tr("Start again"),
                                 //: %1 is the title of a lesson, %2 the number of a step.
                                 tr("Start “%1” again from the beginning? You are at step %2.")
                                     .arg(lesson.title)
                                     .arg(lesson.progress.step),
                                 QMessageBox::NoButton, above);
    m_question->setObjectName(QStringLiteral("startAgainMessageBox"));
    m_question->setInformativeText(tr("What you have made so far stays in your project."));
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    //: A button: begin the lesson anew.
    QPushButton *const again = m_question->addButton(tr("Start again"), QMessageBox::AcceptRole);
    //: A button: nothing changes.
    m_question->addButton(tr("Cancel"), QMessageBox::RejectRole);
    connect(m_question, &QDialog::finished, this, [this, box = m_question.data(), again, lessonName] {
        if (box->clickedButton() == again) {
            closeChooser();
            m_course->begin(lessonName);
        }
    });
    m_question->open();
}

void StripControl::goOn(const QString &lessonName)
{
    closeChooser();
    const bool isPlaying = m_session->runner().isRunning() && m_session->lessonName() == lessonName;
    if (!isPlaying && !lessonName.isEmpty()) {
        m_course->goOn(lessonName);
    }
}

void StripControl::closeChooser()
{
    if (m_chooser != nullptr) {
        m_chooser->close();
    }
}
