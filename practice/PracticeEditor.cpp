#include "PracticeEditor.h"

#include "SoundTrial.h"
#include "TestPlay.h"
#include "strip/LessonStrip.h"
#include "strip/PraiseCard.h"
#include "strip/StripControl.h"
#include "window/Blink.h"
#include "window/EditorWindows.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <cstdio>

namespace {

/// From the corner of the bubble's window to where its text stands.
constexpr QPoint kBubbleText(250, 200);

void printLine(FILE *stream, const QString &line)
{
    std::fputs((line + QLatin1Char('\n')).toUtf8().constData(), stream);
    std::fflush(stream);
}

} // namespace

PracticeEditor::PracticeEditor(const Options &options, std::unique_ptr<EditorWindows> windows)
    : m_options(options)
    , m_windows(std::move(windows))
    , m_session(m_windows.get())
    , m_course(&m_session, LessonCatalog(options.locale), options.progressFolder)
    , m_strip(new LessonStrip)
    , m_control(new StripControl(&m_session, &m_course, m_strip, this))
    , m_place(options.placeFile)
    , m_link(options.companionProgram, options.key, options.locale)
    , m_testPlay(std::make_unique<TestPlay>(m_windows.get(), &m_session, m_strip))
    , m_soundTrial(std::make_unique<SoundTrial>(m_windows.get()))
{
    m_windows->dock(m_strip);
    m_windows->setPutBackButton(m_strip->putBackButton());
    m_windows->setUnattended(options.unattended);
    const QString chosen = m_place.place();
    if (const QString place = chosen.isEmpty() ? options.projectsFolder : chosen; !place.isEmpty()) {
        m_windows->setProjectsFolder(place);
    }
    connect(m_windows.get(), &EditorWindows::mainWindowClosed, this, [this] { Q_EMIT ended(0); });
    connect(m_windows.get(), &EditorWindows::problemFound, this, &PracticeEditor::tellPerson);
    connectLink();
    connectSession();
    connectStrip();
    connectProject();
}

PracticeEditor::~PracticeEditor()
{
    // What the windows do while they go away is nobody's business any more: a dialog that is open unblocks
    // the main window when the link is gone already.
    m_windows->disconnect();
    if (m_mainWindow != nullptr) {
        m_mainWindow->removeEventFilter(this);
    }
    m_link.stop();
}

bool PracticeEditor::start(QString *error)
{
    if (!m_windows->open(QStringLiteral("MainWindow"))) {
        *error = QStringLiteral("The main window has no description.");
        return false;
    }
    m_mainWindow = m_strip->window()->windowHandle();
    m_mainWindow->installEventFilter(this);
    return startLink(error);
}

QString PracticeEditor::projectFolder() const
{
    return m_windows->projectFolder();
}

/// The companion's windows stay above all others, and would lie over a question or the list of lessons.
bool PracticeEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked) {
        m_link.send(HostCommands::state(event->type() == QEvent::WindowUnblocked));
    }
    return QObject::eventFilter(watched, event);
}

bool PracticeEditor::startLink(QString *error)
{
    HostLink::Failure failure;
    if (m_link.start(&failure)) {
        return true;
    }
    if (failure.what == HostLink::Failure::What::kListen) {
        //: %1 is the name of a local server, %2 the system's reason.
        *error = tr("The editor cannot listen on “%1”: %2. Start it again with another --key, or without "
                    "one.")
                     .arg(failure.name, failure.reason);
    } else {
        //: The guide is the companion program; %1 is its path, %2 the system's reason.
        *error = tr("The guide “%1” does not start: %2. Build the target Tutorial, or name the program "
                    "with --companion.")
                     .arg(failure.name, failure.reason);
    }
    return false;
}

void PracticeEditor::connectLink()
{
    connect(&m_link, &HostLink::connected, this, &PracticeEditor::onConnected);
    connect(&m_link, &HostLink::received, &m_session, &LessonSession::receive);
    connect(&m_link, &HostLink::problemFound, &m_session, &LessonSession::problemFound);
    connect(&m_link, &HostLink::lost, this, &PracticeEditor::onLost);
    connect(&m_link, &HostLink::silenceChanged, m_control, &StripControl::setSilent);
    connect(&m_session, &LessonSession::sends, &m_link, &HostLink::send);
    connect(&m_session, &LessonSession::started, this, [this] {
        m_link.send(HostCommands::contents(m_course.entry(m_session.lessonName()).numberedTitle()));
    });
    connect(&m_session, &LessonSession::stepReached, this, [this] {
        const QString step = QString::number(m_session.runner().step().id);
        m_link.send(HostCommands::logAppend(m_session.lessonName() + QLatin1Char(' ') + step));
    });
}

void PracticeEditor::connectSession()
{
    connect(&m_session, &LessonSession::problemFound, this,
            [](const QString &problem) { printLine(stderr, problem); });
    connect(&m_session, &LessonSession::stopped, this, [this](const LessonFault &fault) {
        printLine(stderr, fault.message());
        //: %1 is the title of a lesson, %2 the number of one of its steps, %3 a word of its script.
        tellPerson(tr("“%1” cannot be played: its step %2 has the word “%3”, which this editor does not "
                      "know. Install "
                      "the newest version of the editor, or tell whoever wrote the lesson.")
                       .arg(m_course.entry(fault.lesson).title)
                       .arg(fault.item)
                       .arg(fault.word));
    });
    connect(&m_session, &LessonSession::stateLost, this, [this] {
        tellPerson(
            tr("What there was when this step began cannot be brought back: the project in which you were "
               "is gone or cannot be read. Start the lesson again."));
    });
    connect(&m_session, &LessonSession::nextArrived, this, [this] {
        // One of the two alone: a window manager may grant what both ask for in either order.
        if (m_testPlay->isOn()) {
            m_testPlay->takeFocus();
        } else {
            m_windows->takeFocusBack();
        }
    });
    connect(&m_session, &LessonSession::lessonsListed, this, &PracticeEditor::onListed);
    connect(&m_session, &LessonSession::showRequested, this, [this](const ControlSpot &spot) {
        if (const std::optional<QRect> rect = m_windows->rectOf(spot)) {
            Blink::around(*rect);
        }
    });
    connect(&m_course, &LessonCourse::lessonWanted, this, &PracticeEditor::onLessonWanted);
    connect(&m_course, &LessonCourse::problemFound, this, &PracticeEditor::tellPerson);
}

void PracticeEditor::connectStrip()
{
    connect(m_strip, &LessonStrip::used, this, &PracticeEditor::returnFocus);
    connect(m_testPlay.get(), &TestPlay::ended, this, &PracticeEditor::returnFocus);
    auto *const card = new PraiseCard(m_strip->window());
    connect(m_control, &StripControl::praised, card, [this, card](const QString &words, bool hasNextLesson) {
        // Where the person has just read the last hint.
        const std::optional<QPoint> bubble = m_session.bubblePlace();
        const QWidget *const window = card->parentWidget();
        card->praise(words, hasNextLesson,
                     bubble ? *bubble + kBubbleText : window->mapToGlobal(window->rect().center()));
    });
    connect(card, &PraiseCard::nextLessonRequested, m_strip, &LessonStrip::nextLessonRequested);
    connect(&m_course, &LessonCourse::lessonWanted, card, &QWidget::hide);
}

void PracticeEditor::connectProject()
{
    connect(&m_session, &LessonSession::started, &m_lessonProject, &LessonProject::drop);
    connect(&m_session, &LessonSession::filesRequested, &m_lessonProject, &LessonProject::begin);
    connect(&m_session, &LessonSession::filesReceived, &m_lessonProject, &LessonProject::takeFiles);
    connect(m_windows.get(), &EditorWindows::projectLeft, &m_lessonProject, &LessonProject::leaveProject);
    connect(m_windows.get(), &EditorWindows::projectCreated, &m_lessonProject, &LessonProject::takeProject);
    connect(&m_lessonProject, &LessonProject::complete, this, [this](const LessonProject::Files &files) {
        if (m_windows->replaceFiles(files)) {
            m_lessonProject.drop();
            printLine(
                stdout,
                QStringLiteral("The project of the lesson stands in %1").arg(m_windows->projectFolder()));
        }
    });
    connect(m_windows.get(), &EditorWindows::projectLeft, this,
            [this] { m_place.take(m_windows->projectFolder()); });
    connect(&m_lessonProject, &LessonProject::failed, this, &PracticeEditor::tellPerson);
}

void PracticeEditor::onConnected()
{
    Q_EMIT companionConnected(m_link.companionPid());
    m_windows->setTipsShownElsewhere(true);
    m_session.greet(m_options.locale);
}

void PracticeEditor::onListed()
{
    if (!m_course.wanted().isEmpty()) {
        m_course.ask(); // the companion was started again
        return;
    }
    if (std::exchange(m_isBegun, true) || m_options.hasLessonOfItsOwn) {
        return;
    }
    const QString lesson =
        m_options.lesson > 0 ? QStringLiteral("TutorialStep%1").arg(m_options.lesson) : QString();
    if (lesson.isEmpty() || (!m_options.beginsAtOnce && m_course.entry(lesson).progress.step > 0)) {
        m_control->openChooser(lesson); // which one, or from where
    } else {
        m_course.begin(lesson);
    }
}

void PracticeEditor::onLessonWanted()
{
    m_session.stop();
    // A game or a dialog of the lesson before would lie above what the next one points at.
    m_testPlay->stop();
    m_windows->closeDialogs();
    if (m_link.isConnected()) {
        m_course.ask();
    } else {
        restartCompanion();
    }
}

void PracticeEditor::onLost(const QString &lastWords)
{
    m_session.abandon();
    m_windows->setTipsShownElsewhere(false);
    m_control->showLost();
    printLine(stderr, QStringLiteral("The companion ended unexpectedly. Its last lines were:\n") + lastWords);
    Q_EMIT troubled(QStringLiteral("the companion ended"));
    if (m_options.unattended) {
        return;
    }
    auto *box = new QMessageBox(QMessageBox::Warning, m_windows->title(QStringLiteral("MainWindow")),
                                tr("The guide ended unexpectedly. Your project is not affected."),
                                QMessageBox::NoButton, m_strip->window());
    box->setObjectName(QStringLiteral("lostMessageBox"));
    box->setInformativeText(m_course.wanted().isEmpty()
                                //: Asks whether the guide is to be started again.
                                ? tr("Restart it?")
                                //: Asks whether the guide is to be started again.
                                : tr("Restart it? The lesson goes on at the step where you are."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    //: A button: start the guide again.
    QPushButton *const restart = box->addButton(tr("Restart"), QMessageBox::AcceptRole);
    //: A button: go on without the guide.
    box->addButton(tr("Go on without"), QMessageBox::RejectRole);
    connect(box, &QDialog::finished, this, [this, box, restart] {
        if (box->clickedButton() == restart) {
            restartCompanion();
        }
    });
    box->open();
}

void PracticeEditor::restartCompanion()
{
    QString error;
    if (!startLink(&error)) {
        tellPerson(error);
    }
}

void PracticeEditor::tellPerson(const QString &text)
{
    printLine(stderr, text);
    Q_EMIT troubled(text);
    if (m_options.unattended) {
        return;
    }
    // What goes wrong may still close its window, which hands the keyboard on: the message comes after that.
    QTimer::singleShot(0, this, [this, text] {
        auto *box = new QMessageBox(QMessageBox::Warning, m_windows->title(QStringLiteral("MainWindow")),
                                    tr("Something went wrong."), QMessageBox::Ok, m_strip->window());
        box->setInformativeText(text);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
        box->activateWindow();
    });
}

void PracticeEditor::returnFocus()
{
    if (QApplication::activeModalWidget() != nullptr) {
        return; // a question, or the list of lessons
    }
    if (m_testPlay->isOn()) {
        m_testPlay->takeFocus();
        return;
    }
    const QStringList open = m_windows->openWindows();
    for (int i = open.size() - 1; i >= 0; --i) {
        if (m_windows->open(open.at(i))) {
            return; // a popup cannot be opened by its key
        }
    }
}
