#include "window/control/RadioButtonControl.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace {

/// Can be clicked wherever it is, beside its text, too: there an arrow points at it.
class WideRadioButton : public QRadioButton
{
public:
    using QRadioButton::QRadioButton;

protected:
    [[nodiscard]] bool hitButton(const QPoint &position) const override { return rect().contains(position); }
};

/// Those of the field in this window: one is on, and the arrow keys go from one to the next.
QButtonGroup *groupOf(EditorWindow *window, const QString &field)
{
    const auto groups = window->findChildren<QButtonGroup *>(QString(), Qt::FindDirectChildrenOnly);
    for (QButtonGroup *group : groups) {
        if (group->objectName() == field) {
            return group;
        }
    }
    auto *group = new QButtonGroup(window);
    group->setObjectName(field);
    return group;
}

void show(QRadioButton *button, bool isOn)
{
    QButtonGroup *group = button->group();
    // None of them is on when the field has another value: an exclusive group would not have that.
    group->setExclusive(false);
    button->setChecked(isOn);
    group->setExclusive(true);
}

} // namespace

ControlMaker readRadioButton(ControlReader &reader)
{
    const QString label = reader.label();
    const QString field = reader.field();
    const QJsonValue value = reader.json().value(QStringLiteral("value"));
    if (value.isUndefined()) {
        reader.json().addError(QStringLiteral("value"),
                               QStringLiteral("is missing; write the field's value that "
                                              "the button stands for"));
    }
    const int index = reader.json().number(QStringLiteral("index"));
    const QJsonValue start = reader.json().value(QStringLiteral("start"));
    return [label, field, value, start, index, name = reader.description().name](EditorWindow *window) {
        auto *button = new WideRadioButton(label, window);
        groupOf(window, field)->addButton(button);
        keepFresh(button, window, [button, window, field, value] {
            show(button, ChoiceSets::isSame(fieldValue(window, field), value));
        });
        QObject::connect(button, &QRadioButton::clicked, window, [window, field, value, start, index, name] {
            window->choose(field, {QString(), 0, 0, GameMap::kEmpty, value, start});
            window->report(QStringLiteral("radioButton"), QStringLiteral("RadioButton"),
                           QString::number(index), window->spot(name));
        });
        return button;
    };
}
