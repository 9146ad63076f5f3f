#include "window/control/CheckBoxControl.h"

#include <QCheckBox>

namespace {

/// Can be clicked wherever it is, beside its text, too: there an arrow points at it.
class WideCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    [[nodiscard]] bool hitButton(const QPoint &position) const override { return rect().contains(position); }
};

} // namespace

ControlMaker readCheckBox(ControlReader &reader)
{
    const QString label = reader.label();
    const QString field = reader.field();
    const QJsonValue start = reader.json().value(QStringLiteral("start"));
    return [label, field, start, name = reader.description().name](EditorWindow *window) {
        auto *box = new WideCheckBox(label, window);
        keepFresh(box, window, [box, window, field, start] {
            box->setChecked(start.isUndefined() ? window->field(field).toBool()
                                                : window->field(field).isValid());
        });
        QObject::connect(box, &QCheckBox::clicked, window, [window, field, start, name](bool checked) {
            const QVariant there = checked ? start.toVariant() : QVariant();
            window->setField(field, start.isUndefined() ? QVariant(checked) : there);
            window->report(QStringLiteral("checked"), name, QString::number(checked ? 1 : 0),
                           window->spot(name));
        });
        return box;
    };
}
