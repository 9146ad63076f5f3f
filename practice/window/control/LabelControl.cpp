#include "window/control/LabelControl.h"

#include "project/RowText.h"

#include <QLabel>

ControlMaker readLabel(ControlReader &reader)
{
    if (!reader.has(QStringLiteral("field"))) {
        return [label = reader.label()](EditorWindow *window) {
            return new QLabel(label, window);
        };
    }
    const QString field = reader.field();
    const std::shared_ptr<const RowText> text = reader.rowText();
    return [field, text](EditorWindow *window) {
        auto *label = new QLabel(window);
        keepFresh(label, window, [label, window, field, text] {
            label->setText(text != nullptr ? text->text(fieldValue(window, field), 0, window->layer())
                                           : window->field(field).toString());
        });
        return label;
    };
}
