#include "host/LessonHistory.h"

#include <QJsonArray>

namespace {

QString lessonMember()
{
    return QStringLiteral("lesson");
}
QString stepMember()
{
    return QStringLiteral("step");
}
QString startMember()
{
    return QStringLiteral("start");
}
QString pastMember()
{
    return QStringLiteral("past");
}

} // namespace

void LessonHistory::begin(const QString &lessonName)
{
    *this = LessonHistory();
    m_lessonName = lessonName;
}

void LessonHistory::resume(const QJsonObject &bookmark)
{
    begin(lessonOf(bookmark));
    const QJsonArray past = bookmark.value(pastMember()).toArray();
    for (const QJsonValue &id : past) {
        m_past.append(Visit{id.toInt(), StepStart()});
    }
}

void LessonHistory::enter(int id)
{
    if (m_hasPresent) {
        m_past.append(m_present);
    }
    m_present = Visit{id, StepStart()};
    m_hasPresent = true;
}

LessonHistory::Visit LessonHistory::goBack()
{
    m_hasPresent = false;
    return m_past.takeLast();
}

QJsonObject LessonHistory::bookmark() const
{
    QJsonArray past;
    for (const Visit &visit : m_past) {
        past.append(visit.id);
    }
    return {{lessonMember(), m_lessonName},
            {stepMember(), m_present.id},
            {startMember(), m_present.start.toJson()},
            {pastMember(), past}};
}

QString LessonHistory::lessonOf(const QJsonObject &bookmark)
{
    return bookmark.value(lessonMember()).toString();
}

int LessonHistory::stepOf(const QJsonObject &bookmark)
{
    return bookmark.value(stepMember()).toInt(-1);
}

StepStart LessonHistory::startOf(const QJsonObject &bookmark)
{
    return StepStart::fromJson(bookmark.value(startMember()).toObject());
}
