#pragma once

#include "lesson/description/MenuDescription.h"

class EditorWindow;
class QMenuBar;

/// Fills the menu bar of the main window, whose contents are @p main, with what the description tells. An
/// entry that stands for a tool button does what a click on it does, is grey or checked as it is, and gives
/// it its keys for a tool tip.
void fillMenuBar(QMenuBar *bar, const QVector<MenuDescription> &menus, EditorWindow *main,
                 const QString &locale);
