#include "window/control/SpinBoxControl.h"

#include <QSignalBlocker>
#include <QSpinBox>

ControlMaker readSpinBox(ControlReader &reader)
{
    const QString field = reader.field();
    const QVector<int> range = reader.json().numbers(QStringLiteral("range"), 2);
    const QString suffix = reader.json().text(QStringLiteral("suffix"), QString());
    const QJsonValue missing = reader.missing();
    return [field, range, suffix, missing, name = reader.description().name](EditorWindow *window) {
        auto *spin = new QSpinBox(window);
        spin->setRange(range.at(0), range.at(1));
        spin->setSuffix(suffix);
        keepFresh(spin, window, [spin, window, field, missing] {
            const QSignalBlocker quiet(spin);
            spin->setValue(fieldValue(window, field, missing).toInt());
        });
        settleWhenComing(spin, window, [spin, window, field, missing] {
            if (spin->value() != fieldValue(window, field, missing).toInt()) {
                window->setField(field, spin->value());
            }
        });
        QObject::connect(spin, qOverload<int>(&QSpinBox::valueChanged), window,
                         [spin, window, field, name](int value) {
                             window->setField(field, value);
                             window->report(QStringLiteral("spinBox"), QStringLiteral("="), spin->text(),
                                            window->spot(name));
                         });
        return spin;
    };
}
