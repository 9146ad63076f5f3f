#include "project/LessonProject.h"

#include <utility>

void LessonProject::begin()
{
    drop();
    m_waits = true;
}

void LessonProject::drop()
{
    m_waits = false;
    m_files.reset();
    m_place.reset();
}

void LessonProject::takeFiles(const QMap<QString, QString> &files)
{
    if (m_waits) {
        m_files = files;
        makeWhenComplete();
    }
}

void LessonProject::takePlace(const QString &location, const QString &name)
{
    if (m_waits) {
        m_place = Place{location, name};
        makeWhenComplete();
    }
}

void LessonProject::makeWhenComplete()
{
    if (!m_files || !m_place) {
        return;
    }
    const QMap<QString, QString> files = *std::exchange(m_files, std::nullopt);
    const Place place = *std::exchange(m_place, std::nullopt);
    m_waits = false;
    QString error;
    if (m_store.create(place.location, place.name, files, &error)) {
        Q_EMIT made(m_store.path(), files);
    } else {
        Q_EMIT failed(error);
    }
}
