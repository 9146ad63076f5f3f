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
    fields.add(QStringLiteral("newProject.folder"), [this](const DataLayer & /*layer*/) {
        return m_typed.name.isEmpty() ? QString() : ProjectFolder::freeName(location(), m_typed.name);
    });
    commands.add(QStringLiteral("newProject.begin"), [this] { m_typed = m_accepted; });
    sources.add(QStringLiteral("projects"), [this](const DataLayer & /*layer*/) {
        QVector<Row> rows;
        const QStringList names = ProjectFolder::projectsIn(location());
        for (const QString &name : names) {
            rows.append({name, int(rows.size())});
        }
        return rows;
    });
}

void NewProject::addTo(StateParts &states)
{
    const QString name = QStringLiteral("name");
    const QString location = QStringLiteral("location");
    states.add(
        QStringLiteral("newProject"),
        [this, name, location] {
            return QJsonObject{{name, m_typed.name}, {location, m_typed.location}};
        },
        [this, name, location](const QJsonValue &value) {
            const QJsonObject typed = value.toObject();
            m_typed = {typed.value(name).toString(), typed.value(location).toString()};
        });
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
