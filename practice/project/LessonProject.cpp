#include "project/LessonProject.h"

LessonProject::LessonProject(QObject *parent)
    : QObject(parent)
{
    m_filesMissing.setSingleShot(true);
    m_filesMissing.setInterval(kFilesMs);
    connect(&m_filesMissing, &QTimer::timeout, this, [this] {
        //: %1 is the name of the project.
        Q_EMIT failed(tr("The data files of the lesson have not come, so “%1” is without them. "
                         "Start the lesson again.")
                          .arg(*m_project));
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
    m_project.reset();
}

void LessonProject::takeFiles(const Files &files)
{
    if (m_waits) {
        m_filesMissing.stop();
        m_files = files;
        tellWhenComplete();
    }
}

void LessonProject::takeProject(const QString &name)
{
    if (m_waits) {
        m_project = name;
        if (!m_files) {
            m_filesMissing.start();
        }
        tellWhenComplete();
    }
}

void LessonProject::leaveProject()
{
    m_filesMissing.stop();
    m_project.reset();
}

void LessonProject::tellWhenComplete()
{
    if (m_files && m_project) {
        m_project.reset();
        Q_EMIT complete(Files(*m_files));
    }
}
