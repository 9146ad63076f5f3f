#pragma once

#include "lesson/description/JsonReader.h"

#include <QVector>

/// One line of a menu in the menu bar. It stands for a tool button of the window or for an entry of a context
/// menu, runs a command, or does what the editor does by itself; one of the four, or it is a line between
/// others.
struct MenuEntryDescription
{
    /// With "&" before its mnemonic. Empty for a line between entries.
    LocalText label;
    /// Name of the tool button that the entry stands for.
    QString button;
    /// Name of a context menu and of its entry, with a slash between them.
    QString entry;
    QString run;
    /// "copy", "paste" and "delete" where the focus is; "quit".
    QString does;
    /// Key combinations such as "Ctrl+Z", the first of which is shown.
    QStringList keys;

    [[nodiscard]] bool isLine() const { return label.isEmpty(); }
};

/// A menu of the menu bar.
struct MenuDescription
{
    LocalText label;
    QVector<MenuEntryDescription> entries;

    /// Reads the "menus" of a window. @p buttons are the names of its tool buttons.
    static QVector<MenuDescription> read(JsonReader &window, const QStringList &buttons);
};
