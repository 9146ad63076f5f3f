#include "strip/LessonCatalog.h"

#include "lesson/LessonWords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// Of a library's bundle, which nothing else refers to. The macro wants no namespace around it.
static void takeBundle()
{
    Q_INIT_RESOURCE(lessons);
}

LessonCatalog::LessonCatalog(const QString &locale, const QString &path)
{
    takeBundle();
    const QString known =
        LessonWords::locales().contains(locale) ? locale : LessonWords::locales().constFirst();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QJsonObject lessons = QJsonDocument::fromJson(file.readAll()).object();
    for (auto lesson = lessons.constBegin(); lesson != lessons.constEnd(); ++lesson) {
        const QJsonObject object = lesson.value().toObject();
        Entry entry;
        entry.teaches = object.value(QStringLiteral("teaches")).toObject().value(known).toString();
        entry.minutes = object.value(QStringLiteral("minutes")).toInt();
        entry.isWritten = object.value(QStringLiteral("written")).toBool();
        m_entries.insert(lesson.key(), entry);
    }
}
