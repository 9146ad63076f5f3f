#include "window/control/LabelControl.h"

#include <QLabel>

ControlMaker readLabel(ControlReader &reader)
{
    if (!reader.has(QStringLiteral("field"))) {
        return [label = reader.label()](EditorWindow *window) {
            return new QLabel(label, window);
        };
    }
    return [field = reader.field()](EditorWindow *window) {
        auto *label = new QLabel(window);
        keepFresh(label, window, [label, window, field] { label->setText(window->field(field).toString()); });
        return label;
    };
}
