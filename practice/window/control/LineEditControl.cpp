#include "window/control/LineEditControl.h"

#include <QLineEdit>

ControlMaker readLineEdit(ControlReader &reader)
{
    const bool isFirst = reader.json().flag(QStringLiteral("first"));
    return [isFirst, field = reader.field(), name = reader.description().name](EditorWindow *window) {
        auto *edit = new QLineEdit(window);
        if (isFirst) {
            window->setFirstControl(edit);
        }
        keepFresh(edit, window, [edit, window, field] {
            // The cursor stays where it is while the text does.
            const QString text = window->field(field).toString();
            if (edit->text() != text) {
                edit->setText(text);
            }
        });
        QObject::connect(edit, &QLineEdit::textEdited, window, [window, field, name](const QString &text) {
            window->setField(field, text);
            window->report(QStringLiteral("textLength"), name, QString::number(text.size()),
                           window->spot(name));
        });
        return edit;
    };
}
