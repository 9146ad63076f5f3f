#pragma once

#include "project/Project.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// What the editor starts from, in English.
inline StartData startData()
{
    QStringList errors;
    StartData start = StartData::read(
        str(TUTORIAL_SOURCE_DIR "/practice/descriptions/data"),
        {str("grass"), str("tallGrass"), str("path"),  str("sand"),      str("water"), str("deepWater"),
         str("floor"), str("snow"),      str("tree"),  str("fir"),       str("bush"),  str("flowers"),
         str("rock"),  str("stump"),     str("reeds"), str("mushrooms"), str("wall"),  str("window"),
         str("door"),  str("roof"),      str("fence"), str("well"),      str("sign"),  str("bridge")},
        str("en_US"), &errors);
    const QString descriptions = str(TUTORIAL_SOURCE_DIR "/practice/descriptions");
    start.choices = ChoiceSets::read(descriptions + str("/choices"), str("en_US"), &errors);
    start.eventCommands = EventCommands::read(descriptions + str("/commands"), str("en_US"), &errors);
    if (!errors.isEmpty()) {
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    }
    return start;
}

/// A project in a folder that goes with it, and the words with which windows use it.
class ProjectRoom
{
public:
    ProjectRoom()
        : project(startData(), m_folder.path())
    {
        QObject::connect(&project, &Project::failed, &project,
                         [this](const QString &text) { failures.append(text); });
    }

    /// Makes a project with this name and opens it.
    void create(const char *name = "Quest")
    {
        setField("newProject.name", str(name));
        run("newProject.create");
    }

    void run(const char *command) { project.run(str(command), layer()); }
    [[nodiscard]] std::optional<bool> isOn(const QString &command) const
    {
        return project.commands().isOn(command);
    }
    [[nodiscard]] QVariant field(const char *name) { return project.fields().value(str(name), layer()); }
    void setField(const char *name, const QVariant &value)
    {
        project.fields().setValue(str(name), value, layer());
    }
    [[nodiscard]] QStringList texts(const char *source)
    {
        QStringList texts;
        const QVector<Row> rows = project.sources().rows(str(source), layer());
        for (const Row &row : rows) {
            texts.append(row.text);
        }
        return texts;
    }
    [[nodiscard]] int row(const char *source) { return project.sources().currentRow(str(source), layer()); }
    void choose(const char *source, int row) { project.sources().setCurrentRow(str(source), row, layer()); }
    [[nodiscard]] const GameMap *map() { return project.board().map(); }

    /// That of a window that comes up now.
    [[nodiscard]] DataLayer &layer() { return *project.drafts().top(); }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QByteArray bytes(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;

public:
    QStringList failures;
    Project project;
};
