#include "window/control/LineEditControl.h"

#include <QLineEdit>

ControlMaker readLineEdit(ControlReader &reader)
{
    return [field = reader.field()](EditorWindow *window) {
        auto *edit = new QLineEdit(window);
        keepFresh(edit, window, [edit, window, field] {
            // The cursor stays where it is while the text does.
            const QString text = window->field(field).toString();
            if (edit->text() != text) {
                edit->setText(text);
            }
        });
        QObject::connect(edit, &QLineEdit::textEdited, window,
                         [window, field](const QString &text) { window->setField(field, text); });
        return edit;
    };
}
