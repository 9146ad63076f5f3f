#include "window/control/CheckBoxControl.h"

#include <QCheckBox>
#include <QJsonObject>

namespace {

/// Can be clicked wherever it is, beside its text, too: there an arrow points at it.
class WideCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    [[nodiscard]] bool hitButton(const QPoint &position) const override { return rect().contains(position); }
};

/// What else begins to be there with the box, by its field.
QVariantMap readOthers(ControlReader &reader)
{
    const QString kOthers = QStringLiteral("startsToo");
    if (!reader.has(kOthers)) {
        return {};
    }
    const QVariantMap others = reader.json().value(kOthers).toObject().toVariantMap();
    for (auto other = others.cbegin(); other != others.cend(); ++other) {
        const QString problem = reader.context().project->fields().problemOf(other.key());
        if (!problem.isEmpty()) {
            reader.json().addError(kOthers, problem);
        }
    }
    return others;
}

} // namespace

ControlMaker readCheckBox(ControlReader &reader)
{
    const QString label = reader.label();
    const QString field = reader.field();
    const QJsonValue start = reader.json().value(QStringLiteral("start"));
    const QVariantMap others = readOthers(reader);
    return [label, field, start, others, name = reader.description().name](EditorWindow *window) {
        auto *box = new WideCheckBox(label, window);
        keepFresh(box, window, [box, window, field, start] {
            box->setChecked(start.isUndefined() ? window->field(field).toBool()
                                                : window->field(field).isValid());
        });
        QObject::connect(box, &QCheckBox::clicked, window,
                         [window, field, start, others, name](bool checked) {
                             const QVariant there = checked ? start.toVariant() : QVariant();
                             window->setField(field, start.isUndefined() ? QVariant(checked) : there);
                             for (auto other = others.cbegin(); checked && other != others.cend(); ++other) {
                                 if (!window->field(other.key()).isValid()) {
                                     window->setField(other.key(), other.value());
                                 }
                             }
                             window->report(QStringLiteral("checked"), name, QString::number(checked ? 1 : 0),
                                            window->spot(name));
                         });
        return box;
    };
}
