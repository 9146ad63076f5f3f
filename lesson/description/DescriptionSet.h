#pragma once

#include "lesson/description/WindowDescription.h"

#include <QMap>

/// All window descriptions of a folder, by window key. Pixels, relative to the contents of the window.
class DescriptionSet
{
public:
    /// Reads every description in @p folder, with the forms of event commands in its "commands", and checks
    /// what they say of each other: windows that are opened, context menus that pop up, owners of parts; and,
    /// where @p commands are given, that they run no others. Adds a line to @p errors for each thing that is
    /// wrong, which begins with the file's path, a colon and a blank; a set with errors must not be built
    /// from.
    static DescriptionSet read(const QString &folder, const QStringList *commands, QStringList *errors);

    [[nodiscard]] bool contains(const QString &key) const;
    [[nodiscard]] QStringList keys() const;

    /// The description with this key, which must be there.
    [[nodiscard]] const WindowDescription &operator[](const QString &key) const;

    /// The context menu with this name, or nullptr.
    [[nodiscard]] const PopupDescription *popup(const QString &name) const;

    /// Key under which the context menus are described; empty when there are none.
    [[nodiscard]] QString popupKey() const;

    /// Size of the window's contents; empty for a key that is not there.
    [[nodiscard]] QSize size(const QString &key) const;

    /// Keys of the windows in which a person opens the window: with a control of theirs or of their parts, or
    /// with an entry of a context menu that pops up there. Empty for one that no control opens.
    [[nodiscard]] QStringList openedFrom(const QString &key) const;

    /// The controls that a lesson can point at in the window: its own, those of its context menus under the
    /// names "<menu>/<entry>", then those of its parts, all with their geometry in the window. Empty for a
    /// key that is not there.
    [[nodiscard]] QVector<ControlDescription> controlsIn(const QString &key) const;

    /// What the action @p name reports as its last word, one for each control that has it ("" is one, too).
    /// Empty when no window has the action.
    [[nodiscard]] QStringList actionStates(const QString &name) const;

private:
    /// Adds the controls of an event command's form to the window in which commands are edited.
    void addForm(const QString &path, QStringList *errors);
    [[nodiscard]] bool leadsTo(const QString &key, const ControlAction &action) const;
    void check(const QStringList *commands, QStringList *errors) const;

    QMap<QString, WindowDescription> m_windows;
    QMap<QString, QString> m_paths;
};
