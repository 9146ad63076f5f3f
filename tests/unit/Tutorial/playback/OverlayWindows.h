#pragma once

#include "Tutorial/overlay/TutorialIndicator.h"

#include <QApplication>
#include <QList>
#include <QWidget>

/// The top-level widgets of one class.
template<typename Widget>
QList<Widget *> topLevels()
{
    QList<Widget *> found;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *match = qobject_cast<Widget *>(widget)) {
            found.append(match);
        }
    }
    return found;
}

/// Deletes the overlays that their host left behind, which it does not own. Call it when the host is gone.
inline void deleteOverlays()
{
    // An indicator owns its windows, so the indicators go first.
    qDeleteAll(topLevels<TutorialIndicator>());
    const QWidgetList others = QApplication::topLevelWidgets();
    qDeleteAll(others);
}
