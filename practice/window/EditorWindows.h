#pragma once

#include "host/HostEditor.h"

#include <QMap>

/// What the rest of the practice editor knows of its windows, beside what any host editor tells a lesson. The
/// windows themselves are built from descriptions; nothing outside this folder sees a widget.
class EditorWindows : public HostEditor
{
    Q_OBJECT

public:
    using HostEditor::HostEditor;

    /// Opens the window with this key, or raises it when it is open. False when no description has the key.
    virtual bool open(const QString &windowKey) = 0;

    /// Closes the window if it is open.
    virtual void close(const QString &windowKey) = 0;

    /// How the window is called in the person's language; empty when no description has the key, or no title.
    [[nodiscard]] virtual QString title(const QString &windowKey) const = 0;

    /// Offers @p folder as the place of a new project.
    virtual void setProjectsFolder(const QString &folder) = 0;

    /// Shows the data files, path inside the project to text, as the contents of the open project; does
    /// nothing while none is open.
    virtual void showProject(const QMap<QString, QString> &files) = 0;

Q_SIGNALS:
    /// The person has made a new project; its folder is @p name inside of @p location.
    void projectCreated(const QString &location, const QString &name);

    /// The person closed the main window: the editor is to end.
    void mainWindowClosed();
};
