#pragma once

#include "project/Chooser.h"
#include "project/Commands.h"
#include "project/DataFiles.h"
#include "project/Drafts.h"
#include "project/EditorTools.h"
#include "project/Fields.h"
#include "project/ListCommands.h"
#include "project/MapBoard.h"
#include "project/Maps.h"
#include "project/NewProject.h"
#include "project/PlayWords.h"
#include "project/SoundWords.h"
#include "project/StartData.h"
#include "project/StateParts.h"
#include "project/events/Events.h"

/// The open project with all that windows show of it and do with it: the one owner of its data files, their
/// history and their drafts. Windows know fields, lists and commands by the names that descriptions use, and
/// say in which layer they stand.
class Project : public QObject
{
    Q_OBJECT

public:
    /// No project is open at first. Projects are made in @p location.
    explicit Project(StartData start, const QString &location, QObject *parent = nullptr);

    [[nodiscard]] const StartData &start() const { return m_start; }
    [[nodiscard]] const Commands &commands() const { return m_commands; }
    [[nodiscard]] const Fields &fields() const { return m_fields; }
    [[nodiscard]] const RowSources &sources() const { return m_sources; }

    /// The lowest layer.
    [[nodiscard]] DataFiles &files() { return m_files; }
    [[nodiscard]] Drafts &drafts() { return m_drafts; }
    [[nodiscard]] const EditorTools &tools() const { return m_tools; }
    [[nodiscard]] MapBoard &board() { return m_board; }
    /// What there is beside data files and layers.
    [[nodiscard]] StateParts &states() { return m_states; }

    [[nodiscard]] bool isOpen() const { return m_files.isOpen(); }
    [[nodiscard]] bool isModified() const { return !m_files.changedFiles().isEmpty(); }
    /// That of its folder; empty while no project is open.
    [[nodiscard]] QString name() const;

    /// Whether the command would drop changes that are not saved.
    [[nodiscard]] bool losesChanges(const QString &command) const;

    /// Runs a command, with its argument, for a window that stands in @p layer; @p entry is what it adds to a
    /// list. Does nothing where it makes no sense, such as undo with nothing to undo.
    void run(const QString &command, DataLayer &layer,
             const QJsonValue &entry = QJsonValue(QJsonValue::Undefined));
    /// What is wrong with a command or its argument, and how to mend it; empty when nothing is.
    [[nodiscard]] QString problemOf(const QString &command) const;

    /// Adds the list of a row of tabs that a description calls @p name.
    void addTabs(const QString &name, int count) { m_sources.addTabs(name, count); }
    /// The same of tabs that stand for the sets of choices @p sets: the current one is that whose set has the
    /// value of @p field, and another one that is chosen gives the field its first choice.
    void addTabs(const QString &name, const QString &field, const QStringList &sets);

    /// Hands in who plays the project: the commands for it can run from here on.
    void setPlayer(const PlayWords::Play &play);
    /// Hands in who lets sounds be heard while they are chosen; it outlives the project, or nullptr is handed
    /// in before it goes.
    void setSoundListener(SoundListener *listener);

    /// Offers @p folder as the place of projects.
    void setProjectsFolder(const QString &folder);

    /// Gives the open project these data files in place of its own, on the disk, too. False, and failed() is
    /// told, when that cannot be done; it stays as it was then.
    bool replaceFiles(const DataFiles::Texts &texts);

Q_SIGNALS:
    /// Whatever the windows may show.
    void changed();
    /// What was open is gone, and with it what was typed into dialogs: another project is open now, none, or
    /// the same one with other files.
    void left();
    /// The person has made a new project. It is open and stands on the disk, with the files that every new
    /// project has.
    void created(const QString &name);
    /// The person asked for something that cannot be done; @p text says what, why and how to mend it.
    void failed(const QString &text);

private:
    void addOwnWords();
    /// Where there is no way, the project that was open stays the open one.
    void create();
    /// Name of the folder of the project that is selected in @p layer, among those of the place that stands
    /// in the windows now; empty where there is none.
    [[nodiscard]] QString chosenProject(const DataLayer &layer) const;
    /// Opens it.
    void openChosen(const DataLayer &layer);
    void save();
    /// Shows the map among the files that a step of the history has changed.
    void showMapOf(const QStringList &files);
    [[nodiscard]] QString status() const;

    StartData m_start;
    Commands m_commands;
    RowSources m_sources;
    Fields m_fields;
    DataFiles m_files;
    Drafts m_drafts;
    EditorTools m_tools;
    MapBoard m_board;
    Maps m_maps;
    NewProject m_newProject;
    StateParts m_states;
    ListCommands m_lists;
    Chooser m_chooser;
    PlayWords m_play;
    SoundWords m_sound;
    Events m_events;
};
