#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/StateParts.h"

#include <QCoreApplication>

/// What is typed into the dialog for a new project, and the projects there are in the place that it names.
class NewProject
{
    Q_DECLARE_TR_FUNCTIONS(NewProject)

public:
    /// @p name is offered for a project, @p location for the folder that holds all of them.
    NewProject(QString name, QString location);

    /// Adds what the dialogs show and do until a project is made or opened. @p changed is called when
    /// something was typed.
    void addTo(Commands &commands, Fields &fields, RowSources &sources, const std::function<void()> &changed);

    /// Keeps what is typed as a part of the editor's state.
    void addTo(StateParts &states);

    /// Offers another folder.
    void setLocation(const QString &location);
    /// Whether a project can be made of what is typed.
    [[nodiscard]] bool canBeMade() const;
    /// What is typed is the project to make; its folder is settled with this.
    void settle();
    /// Path of the folder that is settled; empty when there is none, or the project was made.
    [[nodiscard]] QString folder() const { return m_folder; }
    /// The project was made: what is typed now is offered the next time, the place with its full path.
    void accept();
    /// The same of the place alone.
    void acceptLocation();
    /// It could not be made: what was offered last is offered again.
    void drop();

    [[nodiscard]] QString name() const { return m_typed.name; }
    /// Full path of the place that is typed. What begins with no root is below the folder that was offered at
    /// first, which is also what nothing stands for.
    [[nodiscard]] QString location() const;

private:
    /// The name of the folder that would be made, or why there can be none.
    [[nodiscard]] QString folderInWords() const;

    struct Form
    {
        QString name;
        QString location;
    };

    /// A field that shows and changes a text of what is typed.
    Fields::Read reader(QString Form::*text) const;
    Fields::Write writer(QString Form::*text, const std::function<void()> &changed);

    /// The folder that was offered at first.
    QString m_home;
    Form m_typed;
    /// What was typed when the dialog was accepted last.
    Form m_accepted;
    QString m_folder;
};
