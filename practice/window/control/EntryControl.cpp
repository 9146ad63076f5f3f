#include "window/control/EntryControl.h"

#include <QPushButton>

ControlMaker readEntry(ControlReader &reader)
{
    const QString label = reader.label();
    return [label, description = reader.description()](EditorWindow *window) {
        auto *entry = new QPushButton(label, window);
        entry->setFlat(true);
        entry->setFocusPolicy(Qt::NoFocus);
        entry->setStyleSheet(QStringLiteral(
            "QPushButton { text-align: left; padding-left: 10px; border: none; }"
            "QPushButton:default { background: palette(highlight); color: palette(highlighted-text); }"));
        wireClick(entry, description, window);
        return entry;
    };
}
