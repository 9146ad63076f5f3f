#include "project/NewProject.h"

#include "project/ProjectFolder.h"

#include <QDir>

#include <utility>

NewProject::NewProject(QString name, QString location)
    : m_home(location)
    , m_typed{std::move(name), std::move(location)}
    , m_accepted(m_typed)
{
}

void NewProject::addTo(Commands &commands, Fields &fields, RowSources &sources,
                       const std::function<void()> &changed)
{
    fields.add(QStringLiteral("newProject.name"), reader(&Form::name), writer(&Form::name, changed));
    fields.add(QStringLiteral("newProject.location"), reader(&Form::location),
               writer(&Form::location, changed));
    fields.add(QStringLiteral("newProject.folder"),
               [this](const DataLayer & /*layer*/) { return folderInWords(); });
    commands.add(QStringLiteral("newProject.begin"), [this] { m_typed = m_accepted; });
    sources.add(QStringLiteral("projects"), [this](const DataLayer & /*layer*/) {
        QVector<Row> rows;
        const QStringList names = ProjectFolder::projectsIn(location());
        for (const QString &name : names) {
            rows.append({name, int(rows.size())});
        }
        return rows;
    });
    fields.add(QStringLiteral("projects.there"), [this](const DataLayer & /*layer*/) {
        return !ProjectFolder::projectsIn(location()).isEmpty();
    });
}

void NewProject::addTo(StateParts &states)
{
    const QString name = QStringLiteral("name");
    const QString location = QStringLiteral("location");
    const QString folder = QStringLiteral("folder");
    states.add(
        QStringLiteral("newProject"),
        [this, name, location, folder] {
            return QJsonObject{{name, m_typed.name}, {location, m_typed.location}, {folder, m_folder}};
        },
        [this, name, location, folder](const QJsonValue &value) {
            const QJsonObject typed = value.toObject();
            m_typed = {typed.value(name).toString(), typed.value(location).toString()};
            m_folder = typed.value(folder).toString();
        });
}

bool NewProject::canBeMade() const
{
    return ProjectFolder::isName(m_typed.name) && ProjectFolder::isPlace(location());
}

QString NewProject::folderInWords() const
{
    if (m_typed.name.isEmpty()) {
        return {};
    }
    if (!ProjectFolder::isName(m_typed.name)) {
        //: Beside the name of a new project, which cannot be that of a folder.
        return tr("Choose another name, without “/”.");
    }
    if (!ProjectFolder::isPlace(location())) {
        //: Below the place of a new project; there is little room.
        return tr("No folder can be made at this place.");
    }
    return ProjectFolder::freeName(location(), m_typed.name);
}

void NewProject::settle()
{
    m_folder = QDir(location()).absoluteFilePath(ProjectFolder::freeName(location(), m_typed.name));
}

void NewProject::setLocation(const QString &location)
{
    m_home = location;
    m_typed.location = location;
    m_accepted.location = location;
}

void NewProject::accept()
{
    acceptLocation();
    m_accepted = m_typed;
    m_folder.clear();
}

void NewProject::drop()
{
    m_typed = m_accepted;
    m_folder.clear();
}

void NewProject::acceptLocation()
{
    m_typed.location = location();
    m_accepted.location = m_typed.location;
}

QString NewProject::location() const
{
    return QDir::cleanPath(QDir(m_home).absoluteFilePath(m_typed.location.trimmed()));
}

Fields::Read NewProject::reader(QString Form::*text) const
{
    return [this, text](const DataLayer & /*layer*/) {
        return m_typed.*text;
    };
}

Fields::Write NewProject::writer(QString Form::*text, const std::function<void()> &changed)
{
    return [this, text, changed](DataLayer & /*layer*/, const QVariant &value) {
        m_typed.*text = value.toString();
        changed();
    };
}
