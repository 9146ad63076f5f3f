#pragma once

#include "window/WindowDescription.h"

#include <QMap>

/// All window descriptions of a folder, by window key.
class DescriptionSet
{
public:
    /// Reads every description in @p folder and checks what they say of each other: windows that are opened,
    /// context menus that pop up, owners of parts, commands and data of the project. Adds a line to @p errors
    /// for each thing that is wrong; a set with errors must not be built from.
    static DescriptionSet read(const QString &folder, QStringList *errors);

    [[nodiscard]] bool contains(const QString &key) const;
    [[nodiscard]] QStringList keys() const;

    /// The description with this key, which must be there.
    [[nodiscard]] const WindowDescription &operator[](const QString &key) const;

    /// The context menu with this name, or nullptr.
    [[nodiscard]] const PopupDescription *popup(const QString &name) const;

    /// Key under which the context menus are described; empty when there are none.
    [[nodiscard]] QString popupKey() const;

private:
    void check(QStringList *errors) const;

    QMap<QString, WindowDescription> m_windows;
    QMap<QString, QString> m_paths;
};
