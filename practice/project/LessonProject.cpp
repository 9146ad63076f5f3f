#include "project/LessonProject.h"

#include <utility>

LessonProject::LessonProject(QObject *parent)
    : QObject(parent)
{
    m_filesMissing.setSingleShot(true);
    m_filesMissing.setInterval(kFilesMs);
    connect(&m_filesMissing, &QTimer::timeout, this, [this] {
        //: %1 is the name of the project.
        Q_EMIT failed(tr("The data files of the lesson have not come, so \"%1\" is without them. "
                         "Start the lesson again.")
                          .arg(m_place->name));
    });
}

void LessonProject::begin()
{
    drop();
    m_waits = true;
}

void LessonProject::drop()
{
    m_filesMissing.stop();
    m_waits = false;
    m_files.reset();
    m_place.reset();
}

void LessonProject::takeFiles(const QMap<QString, QString> &files)
{
    if (m_waits) {
        m_filesMissing.stop();
        m_files = files;
        makeWhenComplete();
    }
}

void LessonProject::takePlace(const QString &location, const QString &name)
{
    if (m_waits) {
        m_place = Place{location, name};
        if (!m_files) {
            m_filesMissing.start();
        }
        makeWhenComplete();
    }
}

void LessonProject::makeWhenComplete()
{
    if (!m_files || !m_place) {
        return;
    }
    const Place place = *std::exchange(m_place, std::nullopt);
    QString error;
    if (!m_store.create(place.location, place.name, *m_files, &error)) {
        Q_EMIT failed(error);
        return;
    }
    const QMap<QString, QString> files = *m_files;
    drop();
    Q_EMIT made(m_store.path(), files);
}
