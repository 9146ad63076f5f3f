#include "window/control/CheckBoxControl.h"

#include <QCheckBox>

ControlMaker readCheckBox(ControlReader &reader)
{
    const QString label = reader.label();
    const QString field = reader.field();
    return [label, field, name = reader.description().name](EditorWindow *window) {
        auto *box = new QCheckBox(label, window);
        keepFresh(box, window, [box, window, field] { box->setChecked(window->field(field).toBool()); });
        QObject::connect(box, &QCheckBox::clicked, window, [window, field, name](bool checked) {
            window->setField(field, checked);
            window->report(QStringLiteral("checked"), name, QString::number(checked ? 1 : 0),
                           window->spot(name));
        });
        return box;
    };
}
