#pragma once

#include <QIcon>
#include <QString>

/// Names of all pictures that toolIcon() knows.
QStringList toolIcons();

/// The picture of a tool button, with a pale one for the disabled state. Empty for an unknown name.
QIcon toolIcon(const QString &name);

/// The picture by which the desktop shows the editor.
QIcon editorIcon();
