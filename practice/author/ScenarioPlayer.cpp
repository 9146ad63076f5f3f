#include "author/ScenarioPlayer.h"

#include "host/LessonSession.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

constexpr int kSettledMs = 200;

} // namespace

ScenarioPlayer::ScenarioPlayer(ScenarioFile file, int firstStep, LessonSession *session, QObject *parent)
    : QObject(parent)
    , m_file(std::move(file))
    , m_step(firstStep)
    , m_session(session)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(kSettledMs);
    connect(&m_settled, &QTimer::timeout, this, &ScenarioPlayer::reload);
    const auto wait = qOverload<>(&QTimer::start);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settled, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settled, wait);
    connect(session, &LessonSession::lessonsListed, this, [this] {
        if (!std::exchange(m_isBegun, true)) {
            play(m_step);
        }
    });
    connect(session, &LessonSession::stepReached, this, [this] {
        if (m_session->lessonName() == m_file.name()) {
            m_step = m_session->runner().step().id;
        }
    });
    m_contents = contents();
    watch();
}

void ScenarioPlayer::begin()
{
    playOrRefuse(-1);
}

void ScenarioPlayer::goOn()
{
    playOrRefuse(m_step);
}

void ScenarioPlayer::playOrRefuse(int step)
{
    if (!play(step)) {
        m_session->play(m_file.name(), QString(), step);
    }
}

void ScenarioPlayer::watch()
{
    // A file that was replaced is another one, and one that comes is heard of in its folder.
    const QStringList files = m_file.files();
    for (const QString &file : files) {
        for (const QString &path : {file, QFileInfo(file).path()}) {
            if (QFileInfo::exists(path)) {
                m_watcher.addPath(path);
            }
        }
    }
}

QByteArray ScenarioPlayer::contents() const
{
    QByteArray all;
    const QStringList paths = m_file.files();
    for (const QString &path : paths) {
        QFile file(path);
        all += file.open(QIODevice::ReadOnly) ? '+' + file.readAll() : QByteArray("-");
    }
    return all;
}

void ScenarioPlayer::reload()
{
    watch();
    const QByteArray now = contents();
    // Other files of the folders change, too; and the author may have gone on to another lesson.
    const bool isOn = m_session->lessonName() == m_file.name();
    if (std::exchange(m_contents, now) != now && isOn && play(m_step)) {
        Q_EMIT reloaded();
    }
}

bool ScenarioPlayer::play(int step)
{
    QStringList problems;
    const QString scenario = m_file.read(&problems);
    for (const QString &problem : qAsConst(problems)) {
        Q_EMIT problemFound(problem);
    }
    if (!scenario.isEmpty()) {
        m_session->play(m_file.name(), scenario, step);
    }
    return !scenario.isEmpty();
}
