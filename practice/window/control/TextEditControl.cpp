#include "window/control/TextEditControl.h"

#include <QPlainTextEdit>
#include <QSignalBlocker>

ControlMaker readTextEdit(ControlReader &reader)
{
    const bool isFirst = reader.json().flag(QStringLiteral("first"));
    return [isFirst, field = reader.field(), name = reader.description().name](EditorWindow *window) {
        auto *edit = new QPlainTextEdit(window);
        if (isFirst) {
            window->setFirstControl(edit);
        }
        edit->setTabChangesFocus(true);
        keepFresh(edit, window, [edit, window, field] {
            // The cursor stays where it is while the text does.
            const QString text = window->field(field).toString();
            if (edit->toPlainText() != text) {
                const QSignalBlocker quiet(edit);
                edit->setPlainText(text);
            }
        });
        QObject::connect(edit, &QPlainTextEdit::textChanged, window, [edit, window, field, name] {
            const QString text = edit->toPlainText();
            if (window->field(field).toString() != text) {
                window->setField(field, text);
                window->report(QStringLiteral("textLength"), name, QString::number(text.size()),
                               window->spot(name));
            }
        });
        return edit;
    };
}
