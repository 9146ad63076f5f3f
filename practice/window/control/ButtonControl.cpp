#include "window/control/ButtonControl.h"

#include <QPushButton>

ControlMaker readButton(ControlReader &reader)
{
    const QString label = reader.label();
    if (!reader.description().actionName.isEmpty()) {
        reader.readAction();
    }
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
