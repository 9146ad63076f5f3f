#include "window/control/ButtonControl.h"

#include "window/SecondClick.h"

#include <QPushButton>

ControlMaker readButton(ControlReader &reader)
{
    const QString label = reader.label();
    if (!reader.description().actionName.isEmpty()) {
        reader.readAction();
    }
    const bool isDefault = reader.json().flag(QStringLiteral("default"));
    const bool repeats = reader.json().flag(QStringLiteral("repeats"));
    return [label, isDefault, repeats, description = reader.description()](EditorWindow *window) {
        auto *button = new QPushButton(label, window);
        if (isDefault) {
            window->setDefaultButton(button);
        }
        SecondClick::setRepeats(button, repeats);
        wireClick(button, description, window);
        return button;
    };
}
