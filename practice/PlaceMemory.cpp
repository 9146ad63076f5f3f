#include "PlaceMemory.h"

#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace {

const QLatin1String kProjects("projects");

} // namespace

PlaceMemory::PlaceMemory(QString file)
    : m_file(std::move(file))
{
}

QString PlaceMemory::place() const
{
    if (m_file.isEmpty()) {
        return {};
    }
    const QString place = QSettings(m_file, QSettings::IniFormat).value(kProjects).toString();
    return QFileInfo(place).isDir() ? place : QString();
}

void PlaceMemory::take(const QString &projectFolder) const
{
    if (!m_file.isEmpty() && !projectFolder.isEmpty()) {
        QSettings(m_file, QSettings::IniFormat).setValue(kProjects, QFileInfo(projectFolder).path());
    }
}
