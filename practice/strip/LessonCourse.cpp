#include "strip/LessonCourse.h"

#include <utility>

LessonCourse::LessonCourse(LessonSession *session, const LessonCatalog &catalog, const QString &folder,
                           QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_catalog(catalog)
    , m_progress(folder)
{
    connect(session, &LessonSession::lessonsListed, this,
            [this](const QVector<LessonSession::Lesson> &lessons) {
                m_lessons = lessons;
                tellProblems(); // what was wrong with the files from the start
                Q_EMIT changed();
            });
    connect(session, &LessonSession::started, this, &LessonCourse::onStarted);
    connect(session, &LessonSession::stepReached, this, &LessonCourse::onStepReached);
    connect(session, &LessonSession::bookmarkChanged, this, &LessonCourse::keepPlace);
    connect(session, &LessonSession::finished, this, [this] {
        m_progress.finish(m_session->lessonName());
        m_wanted.clear();
        tellProblems();
        Q_EMIT changed();
    });
    connect(session, &LessonSession::refused, this, &LessonCourse::giveUp);
    connect(session, &LessonSession::stopped, this,
            [this](const LessonFault &fault) { giveUp(fault.lesson); });
}

QString LessonCourse::Entry::numberedTitle() const
{
    return number > 0 ? QStringLiteral("%1. %2").arg(QString::number(number), title) : title;
}

void LessonCourse::setOwnLesson(const QString &lessonName, PlayOwn play)
{
    m_ownLesson = lessonName;
    m_playOwn = std::move(play);
}

QVector<LessonCourse::Entry> LessonCourse::entries() const
{
    QVector<Entry> entries;
    entries.reserve(m_lessons.size() + 1);
    bool hasOwn = m_ownLesson.isEmpty() || m_lessons.isEmpty();
    for (const LessonSession::Lesson &lesson : m_lessons) {
        entries.append(entry(lesson.name));
        hasOwn = hasOwn || lesson.name == m_ownLesson;
    }
    if (!hasOwn) {
        entries.append(entry(m_ownLesson));
    }
    return entries;
}

LessonCourse::Entry LessonCourse::entry(const QString &lessonName) const
{
    Entry entry;
    entry.name = lessonName;
    entry.title = lessonName;
    int number = 0;
    for (const LessonSession::Lesson &lesson : m_lessons) {
        ++number;
        if (lesson.name == lessonName) {
            entry.title = lesson.title;
            entry.number = number;
        }
    }
    const LessonCatalog::Entry known = m_catalog.entry(lessonName);
    entry.teaches = known.teaches;
    entry.minutes = known.minutes;
    entry.isWritten = known.isWritten || lessonName == m_ownLesson;
    entry.isRefused = m_refused.contains(lessonName);
    entry.progress = m_progress.record(lessonName);
    return entry;
}

QString LessonCourse::lessonAfter(const QString &lessonName) const
{
    bool isBehind = false;
    for (const LessonSession::Lesson &lesson : m_lessons) {
        if (isBehind && entry(lesson.name).canBePlayed()) {
            return lesson.name;
        }
        isBehind = isBehind || lesson.name == lessonName;
    }
    return {};
}

void LessonCourse::begin(const QString &lessonName)
{
    want(lessonName, false);
}

void LessonCourse::goOn(const QString &lessonName)
{
    want(lessonName, true);
}

void LessonCourse::want(const QString &lessonName, bool goesOn)
{
    m_wanted = lessonName;
    m_goesOn = goesOn;
    m_refused.remove(lessonName);
    Q_EMIT lessonWanted();
}

void LessonCourse::leave()
{
    m_wanted.clear();
    m_session->stop();
    Q_EMIT changed();
}

void LessonCourse::ask()
{
    if (m_wanted.isEmpty()) {
        return;
    }
    if (m_wanted == m_ownLesson) {
        m_playOwn(m_goesOn);
        return;
    }
    const QJsonObject bookmark = m_goesOn ? m_progress.bookmark(m_wanted) : QJsonObject();
    tellProblems();
    m_awaited = bookmark.isEmpty() ? 0 : m_progress.record(m_wanted).step;
    if (bookmark.isEmpty()) {
        m_session->request(m_wanted);
    } else {
        m_session->resume(bookmark);
    }
}

void LessonCourse::giveUp(const QString &lessonName)
{
    m_refused.insert(lessonName);
    m_wanted.clear();
    Q_EMIT changed();
}

void LessonCourse::onStarted()
{
    const QString lesson = m_session->lessonName();
    m_refused.remove(lesson);
    if (lesson == m_ownLesson) {
        m_wanted = lesson; // nobody asked for the first time that it is played, and for what has changed
    }
    // Should the companion end now, the lesson goes on where it is.
    m_goesOn = true;
}

void LessonCourse::onStepReached()
{
    const int awaited = std::exchange(m_awaited, 0);
    if (awaited > 1 && m_session->runner().index() == 0) {
        //: %1 is the title of a lesson.
        Q_EMIT problemFound(
            tr("“%1” cannot go on where it was left: the project in which you were is gone or has "
               "changed. It begins again.")
                .arg(entry(m_session->lessonName()).title));
    }
}

void LessonCourse::keepPlace()
{
    const ScenarioRunner &runner = m_session->runner();
    if (!runner.isRunning()) {
        return;
    }
    if (runner.index() == 0) {
        m_progress.forgetPlace(m_session->lessonName()); // that is its beginning
    } else {
        m_progress.reach(m_session->lessonName(), runner.index() + 1, runner.scenario().size(),
                         m_session->bookmark());
    }
    tellProblems();
    Q_EMIT changed();
}

void LessonCourse::tellProblems()
{
    const QStringList problems = m_progress.takeProblems();
    for (const QString &problem : problems) {
        Q_EMIT problemFound(problem);
    }
}
