#pragma once

#include "lesson/description/MenuDescription.h"
#include "lesson/description/WindowDescription.h"

#include <functional>

class EditorWindow;
class QMenuBar;

/// An entry of a context menu.
struct PopupEntry
{
    EditorWindow *popup = nullptr;
    ControlDescription control;
};

/// The entry with this name: context menu, slash, entry.
using FindPopupEntry = std::function<PopupEntry(const QString &name)>;

/// Fills the menu bar of the main window, whose contents are @p main, with what the description tells. An
/// entry that stands for a tool button does what a click on it does, is grey or checked as it is, and gives
/// it its keys for a tool tip. One that stands for an entry of a context menu does what that does.
void fillMenuBar(QMenuBar *bar, const QVector<MenuDescription> &menus, EditorWindow *main,
                 const QString &locale, const FindPopupEntry &find);
