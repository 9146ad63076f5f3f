#include "project/Project.h"

#include "project/MapTree.h"
#include "project/ProjectFolder.h"

#include <QDir>

#include <algorithm>
#include <utility>

Project::Project(StartData start, const QString &location, QObject *parent)
    : QObject(parent)
    , m_start(std::move(start))
    , m_fields(&m_sources)
    , m_drafts(&m_files)
    , m_tools(&m_start)
    , m_board(&m_files, &m_sources, &m_tools)
    , m_maps(&m_start, &m_sources)
    , m_newProject(m_start.texts.value(QStringLiteral("projectName")), location)
    , m_lists(&m_sources)
    , m_chooser(&m_sources)
    , m_play(&m_start, &m_files, &m_sources)
    , m_sound(&m_sources, &m_fields)
    , m_events({&m_start, &m_files, &m_sources, &m_board, &m_tools})
{
    m_tools.addTo(m_commands, m_sources);
    m_maps.addTo(m_commands, m_fields, m_sources);
    m_newProject.addTo(m_commands, m_fields, m_sources, [this] { Q_EMIT changed(); });
    m_lists.addTo(m_commands, m_fields, m_sources);
    m_chooser.addTo(m_commands, m_fields, m_sources);
    m_play.addTo(m_commands);
    m_sound.addTo(m_commands, m_fields);
    m_events.addTo(m_commands, m_fields, m_sources);
    addOwnWords();
    m_tools.addTo(m_states);
    m_newProject.addTo(m_states);
    m_board.addTo(m_states);
    m_lists.addTo(m_states);
    m_events.addTo(m_states);
    // What was typed belongs to the files that it was typed for.
    connect(&m_files, &DataFiles::left, &m_drafts, &Drafts::clear);
    connect(&m_files, &DataFiles::left, this, &Project::left);
    connect(&m_files, &DataLayer::changed, this, &Project::changed);
    connect(&m_drafts, &Drafts::changed, this, &Project::changed);
    connect(&m_tools, &EditorTools::changed, this, &Project::changed);
}

void Project::addOwnWords()
{
    m_fields.add(QStringLiteral("status"), [this](const DataLayer & /*layer*/) { return status(); });
    m_commands.add(
        QStringLiteral("newProject.accept"),
        [this] {
            m_files.close();
            m_newProject.settle();
        },
        {},
        [this](const DataLayer & /*layer*/, const QString & /*argument*/) {
            return m_newProject.canBeMade();
        });
    m_commands.add(QStringLiteral("newProject.create"), [this] { create(); });
    m_commands.add(
        QStringLiteral("project.open"), [this](DataLayer &layer) { openChosen(layer); }, {},
        [this](const DataLayer &layer, const QString & /*argument*/) {
            return !chosenProject(layer).isEmpty();
        });
    m_commands.add(QStringLiteral("project.save"), [this] { save(); });
    m_commands.add(
        QStringLiteral("edit.undo"), [this] { showMapOf(m_files.undo()); }, {},
        [this](const DataLayer & /*layer*/, const QString & /*argument*/) {
            return m_files.history().canUndo();
        });
    m_commands.add(
        QStringLiteral("edit.redo"), [this] { showMapOf(m_files.redo()); }, {},
        [this](const DataLayer & /*layer*/, const QString & /*argument*/) {
            return m_files.history().canRedo();
        });
    m_commands.add(QStringLiteral("draft.accept"), [](DataLayer &layer) { layer.accept(); });
    m_commands.add(
        QStringLiteral("draft.undo"),
        [](DataLayer &layer) {
            if (auto *const draft = qobject_cast<Draft *>(&layer)) {
                draft->undo();
            }
        },
        {},
        [](const DataLayer &layer, const QString & /*argument*/) {
            const auto *const draft = qobject_cast<const Draft *>(&layer);
            return draft != nullptr && draft->canUndo();
        });
    m_commands.add(
        QStringLiteral("draft.redo"),
        [](DataLayer &layer) {
            if (auto *const draft = qobject_cast<Draft *>(&layer)) {
                draft->redo();
            }
        },
        {},
        [](const DataLayer &layer, const QString & /*argument*/) {
            const auto *const draft = qobject_cast<const Draft *>(&layer);
            return draft != nullptr && draft->canRedo();
        });
}

QString Project::name() const
{
    return isOpen() ? QDir(m_files.folder()).dirName() : QString();
}

void Project::run(const QString &command, DataLayer &layer, const QJsonValue &entry)
{
    m_commands.run(command, layer, entry);
    Q_EMIT changed();
}

bool Project::losesChanges(const QString &command) const
{
    return isModified() &&
           (command == QLatin1String("newProject.accept") || command == QLatin1String("project.open"));
}

QString Project::problemOf(const QString &command) const
{
    const QString problem = m_commands.problemOf(command);
    const QString argument = Commands::argumentOf(command);
    return problem.isEmpty() && m_sources.isPath(argument) ? m_sources.problemOfPath(argument) : problem;
}

void Project::addTabs(const QString &name, const QString &field, const QStringList &sets)
{
    if (m_sources.names().contains(name)) {
        return;
    }
    const auto rows = [sets](const DataLayer & /*layer*/) {
        QVector<Row> tabs;
        for (const QString &set : sets) {
            tabs.append({set, int(tabs.size())});
        }
        return tabs;
    };
    const auto tabOf = [this, field, sets](const DataLayer &layer) {
        const QJsonValue value = QJsonValue::fromVariant(m_fields.value(field, layer));
        const auto hasIt = [this, &value](const QString &set) {
            return !m_start.choices.choice(set, value).text.isEmpty();
        };
        const auto found = std::find_if(sets.cbegin(), sets.cend(), hasIt);
        return found != sets.cend() ? int(found - sets.cbegin()) : 0;
    };
    const auto choose = [this, field, sets, tabOf](int tab, DataLayer &layer) {
        const QVector<Choice> choices = m_start.choices.choices(sets.value(tab));
        if (tab != tabOf(layer) && !choices.isEmpty()) {
            const Choice &first = choices.constFirst();
            m_fields.choose(field, {first.text, 0, 0, GameMap::kEmpty, first.value, first.start}, layer);
        }
    };
    m_sources.add(name, rows, RowSources::CurrentIn(tabOf), RowSources::SetCurrentIn(choose));
}

void Project::create()
{
    QString error;
    // A project that is there already was made by this very window, which has come back with an earlier
    // state.
    const QString settled = m_newProject.folder();
    const std::optional<QString> folder =
        !settled.isEmpty() && ProjectFolder::isProject(settled)
            ? settled
            : ProjectFolder::create(m_newProject.location(), m_newProject.name(), m_start.files(), &error);
    if (!folder || !m_files.open(*folder, &error)) {
        m_newProject.drop();
        m_files.takeBack();
        Q_EMIT failed(error);
        return;
    }
    m_newProject.accept();
    Q_EMIT created(name());
}

QString Project::chosenProject(const DataLayer &layer) const
{
    const QStringList projects = ProjectFolder::projectsIn(m_newProject.location());
    return projects.value(m_sources.number(QStringLiteral("projects"), layer));
}

void Project::openChosen(const DataLayer &layer)
{
    const QString chosen = chosenProject(layer);
    if (chosen.isEmpty()) {
        return; // it is gone since the list was read
    }
    QString error;
    if (!m_files.open(QDir(m_newProject.location()).filePath(chosen), &error)) {
        Q_EMIT failed(error);
        return;
    }
    m_newProject.acceptLocation();
}

void Project::save()
{
    QString error;
    if (!m_files.save(&error)) {
        Q_EMIT failed(error);
    }
}

void Project::setPlayer(const PlayWords::Play &play)
{
    m_play.setPlayer(play);
    Q_EMIT changed();
}

void Project::setSoundListener(SoundListener *listener)
{
    m_sound.setListener(listener);
    Q_EMIT changed();
}

void Project::setProjectsFolder(const QString &folder)
{
    m_newProject.setLocation(folder);
    Q_EMIT changed();
}

bool Project::replaceFiles(const DataFiles::Texts &texts)
{
    QString error;
    if (!m_files.replace(texts, &error)) {
        Q_EMIT failed(error);
        return false;
    }
    return true;
}

void Project::showMapOf(const QStringList &files)
{
    const QString maps = QStringLiteral("maps");
    const QVector<Row> rows = m_sources.rows(maps, m_files);
    for (const Row &row : rows) {
        if (files.contains(MapTree::fileOf(row.number))) {
            m_files.select(maps, row.number);
        }
    }
}

QString Project::status() const
{
    const GameMap *shown = m_board.map();
    if (shown == nullptr) {
        return isOpen() ? QString() : m_start.texts.value(QStringLiteral("noProject"));
    }
    return m_start.texts.value(QStringLiteral("status"))
        .arg(shown->name, QString::number(shown->size.width()), QString::number(shown->size.height()),
             QString::number(m_tools.cellPixels() * 100 / EditorTools::kFullSize));
}
