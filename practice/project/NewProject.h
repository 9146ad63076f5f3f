#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/StateParts.h"

/// What is typed into the dialog for a new project, and the projects there are in the place that it names.
class NewProject
{
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
    /// What is typed now is offered the next time.
    void accept() { m_accepted = m_typed; }

    [[nodiscard]] QString name() const { return m_typed.name; }
    [[nodiscard]] QString location() const { return m_typed.location; }

private:
    struct Form
    {
        QString name;
        QString location;
    };

    /// A field that shows and changes a text of what is typed.
    Fields::Read reader(QString Form::*text) const;
    Fields::Write writer(QString Form::*text, const std::function<void()> &changed);

    Form m_typed;
    /// What was typed when the dialog was accepted last.
    Form m_accepted;
};
