#include "window/control/ButtonControl.h"

#include <QPushButton>

ControlMaker readButton(ControlReader &reader)
{
    const QString label = reader.label();
    const bool isDefault = reader.json().flag(QStringLiteral("default"));
    return [label, isDefault, description = reader.description()](EditorWindow *window) {
        auto *button = new QPushButton(label, window);
        if (isDefault) {
            window->setDefaultButton(button);
        }
        wireClick(button, description, window);
        return button;
    };
}
