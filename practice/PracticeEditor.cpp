#include "PracticeEditor.h"

#include "window/EditorWindows.h"

#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

constexpr QPoint kPanelPlace(490, 40);

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
    , m_link(options.companionProgram, options.key, options.locale)
{
    if (options.lesson > 0) {
        m_lessonName = QStringLiteral("TutorialStep%1").arg(options.lesson);
    }
    connect(m_windows.get(), &EditorWindows::mainWindowClosed, this, [this] { Q_EMIT ended(0); });
    connect(m_windows.get(), &EditorWindows::visibilityChanged, &m_panel, &QWidget::setVisible);
    connect(&m_panel, &LessonPanel::lessonChosen, this, &PracticeEditor::play);
    connect(&m_panel, &LessonPanel::skipRequested, this, [this] { m_session.skipStep(); });
    connect(&m_link, &HostLink::connected, this, &PracticeEditor::onConnected);
    connect(&m_link, &HostLink::received, &m_session, &LessonSession::receive);
    connect(&m_link, &HostLink::problemFound, &m_session, &LessonSession::problemFound);
    connect(&m_link, &HostLink::lost, this, &PracticeEditor::onLost);
    connect(&m_link, &HostLink::silenceChanged, &m_panel, &LessonPanel::setSilent);
    if (!options.projectsFolder.isEmpty()) {
        m_windows->setProjectsFolder(options.projectsFolder);
    }
    connectSession();
    connectProject();
}

PracticeEditor::~PracticeEditor()
{
    // What the windows do while they go away is nobody's business any more.
    m_windows->disconnect();
    m_link.stop();
}

bool PracticeEditor::start(QString *error)
{
    if (!m_windows->open(QStringLiteral("MainWindow"))) {
        *error = QStringLiteral("The main window has no description.");
        return false;
    }
    m_panel.move(kPanelPlace);
    m_panel.show();
    return startLink(error);
}

bool PracticeEditor::startLink(QString *error)
{
    HostLink::Failure failure;
    if (m_link.start(&failure)) {
        return true;
    }
    if (failure.what == HostLink::Failure::What::kListen) {
        //: %1 is the name of a local server, %2 the system's reason.
        *error = tr("The editor cannot listen on \"%1\": %2. Start it again with another --key, or without "
                    "one.")
                     .arg(failure.name, failure.reason);
    } else {
        //: The guide is the companion program; %1 is its path, %2 the system's reason.
        *error = tr("The guide \"%1\" does not start: %2. Build the target Tutorial, or name the program "
                    "with --companion.")
                     .arg(failure.name, failure.reason);
    }
    return false;
}

void PracticeEditor::connectSession()
{
    connect(&m_session, &LessonSession::sends, &m_link, &HostLink::send);
    connect(&m_session, &LessonSession::problemFound, this,
            [](const QString &problem) { printLine(stderr, problem); });
    connect(&m_session, &LessonSession::lessonsListed, this,
            [this](const QVector<LessonSession::Lesson> &lessons) {
                m_panel.setLessons(lessons);
                if (!m_lessonName.isEmpty()) {
                    m_session.request(m_lessonName);
                }
            });
    connect(&m_session, &LessonSession::stepTold, this, &PracticeEditor::showStep);
    // On the way back to the step's window.
    connect(m_windows.get(), &EditorWindows::pushed, this, &PracticeEditor::showStep);
    connect(m_windows.get(), &EditorWindows::popped, this, &PracticeEditor::showStep);
    connect(&m_session, &LessonSession::finished, this, [this] {
        m_lessonName.clear();
        m_panel.showFinished();
    });
    connect(&m_session, &LessonSession::refused, &m_panel, &LessonPanel::showRefused);
}

void PracticeEditor::showStep()
{
    const ScenarioRunner &runner = m_session.runner();
    if (!runner.isRunning()) {
        return;
    }
    m_panel.showStep(m_session.lessonName(), runner.index() + 1, runner.scenario().size());
    const QString toOpen = m_session.windowToOpen();
    if (!toOpen.isEmpty()) {
        m_panel.showClosed(m_windows->title(toOpen));
    }
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
    connect(m_windows.get(), &EditorWindows::problemFound, this, &PracticeEditor::tellPerson);
    connect(&m_lessonProject, &LessonProject::failed, this, &PracticeEditor::tellPerson);
}

void PracticeEditor::onConnected()
{
    Q_EMIT companionConnected(m_link.companionPid());
    m_session.greet(m_options.locale);
}

void PracticeEditor::onLost(const QString &lastWords)
{
    m_session.abandon();
    printLine(stderr, QStringLiteral("The companion ended unexpectedly. Its last lines were:\n") + lastWords);
    Q_EMIT troubled(QStringLiteral("the companion ended"));
    if (m_options.unattended) {
        return;
    }
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Practice editor"),
                                //: Asks whether the guide is to be started again.
                                tr("The guide ended unexpectedly. Your project is not affected.\n"
                                   "Restart it? The lesson begins again."));
    box->setObjectName(QStringLiteral("lostMessageBox"));
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
    m_lostBox = box;
    box->open();
}

void PracticeEditor::closeDialogs()
{
    const QStringList open = m_windows->openWindows();
    for (int i = open.size() - 1; i > 0; --i) {
        m_windows->close(open.at(i));
    }
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
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Practice editor"), tr("Something went wrong."),
                                QMessageBox::Ok);
    box->setInformativeText(text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void PracticeEditor::play(const QString &lessonName)
{
    m_lessonName = lessonName;
    if (m_lostBox != nullptr) {
        m_lostBox->close();
    }
    closeDialogs();
    if (m_link.isConnected()) {
        m_session.request(lessonName);
    } else {
        restartCompanion();
    }
}
