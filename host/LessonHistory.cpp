#include "host/LessonHistory.h"

#include "host/JsonChange.h"

#include <QJsonArray>

namespace {

// The members of a bookmark.
const QLatin1String kLesson("lesson");
const QLatin1String kStep("step");
const QLatin1String kStart("start");
const QLatin1String kPast("past");
/// Of a step before the present one: what makes its start out of that of the step before it.
const QLatin1String kChange("change");

} // namespace

void LessonHistory::begin(const QString &lessonName)
{
    *this = LessonHistory();
    m_lessonName = lessonName;
}

void LessonHistory::resume(const QJsonObject &bookmark)
{
    begin(lessonOf(bookmark));
    const QJsonArray past = bookmark.value(kPast).toArray();
    QJsonObject start;
    for (const QJsonValue &value : past) {
        const QJsonObject visit = value.toObject();
        if (!visit.contains(kStep)) {
            continue; // of a version that kept less
        }
        start = JsonChange::applied(start, visit.value(kChange).toObject());
        leave({visit.value(kStep).toInt(), StepStart::fromJson(start)});
    }
}

void LessonHistory::enter(int id)
{
    if (m_hasPresent) {
        leave(m_present);
    }
    m_present = Visit{id, StepStart()};
    m_hasPresent = true;
}

void LessonHistory::leave(const Visit &visit)
{
    const QJsonObject start = visit.start.toJson();
    m_past.append(visit);
    m_kept.append(QJsonObject{{kStep, visit.id}, {kChange, JsonChange::between(m_lastKept, start)}});
    m_lastKept = start;
}

void LessonHistory::noteDamage()
{
    if (m_hasPresent && m_firstDamaged < 0) {
        m_firstDamaged = int(m_past.size());
    }
}

LessonHistory::Visit LessonHistory::goBackToGood()
{
    Visit visit = goBack();
    while (m_firstDamaged >= 0) {
        visit = goBack();
    }
    return visit;
}

LessonHistory::Visit LessonHistory::goBack()
{
    m_hasPresent = false;
    Visit visit = m_past.takeLast();
    m_kept.removeLast();
    if (m_past.size() <= m_firstDamaged) {
        m_firstDamaged = -1;
    }
    m_lastKept = m_past.isEmpty() ? QJsonObject() : m_past.constLast().start.toJson();
    return visit;
}

QJsonObject LessonHistory::bookmark() const
{
    QJsonArray past;
    for (const QJsonObject &kept : m_kept) {
        past.append(kept);
    }
    return {
        {kLesson, m_lessonName}, {kStep, m_present.id}, {kStart, m_present.start.toJson()}, {kPast, past}};
}

QString LessonHistory::lessonOf(const QJsonObject &bookmark)
{
    return bookmark.value(kLesson).toString();
}

int LessonHistory::stepOf(const QJsonObject &bookmark)
{
    return bookmark.value(kStep).toInt(-1);
}

StepStart LessonHistory::startOf(const QJsonObject &bookmark)
{
    return StepStart::fromJson(bookmark.value(kStart).toObject());
}
