#include "window/AccessibleNames.h"

#include "window/EditorWindow.h"

#include <QAbstractButton>
#include <QLabel>

namespace {

/// How far the label is from the control that it stands left of or above, in pixels; -1 when it does not.
int distance(const QRect &label, const QRect &control)
{
    const bool isBeside =
        label.right() < control.left() && label.bottom() >= control.top() && label.top() <= control.bottom();
    if (isBeside) {
        return control.left() - label.right();
    }
    const bool isAbove =
        label.bottom() <= control.top() && label.right() >= control.left() && label.left() <= control.right();
    return isAbove ? control.top() - label.bottom() : -1;
}

QLabel *labelOf(const QWidget *control, const QVector<QLabel *> &labels)
{
    QLabel *nearest = nullptr;
    int shortest = -1;
    for (QLabel *label : labels) {
        if (label->objectName() == control->objectName() + QLatin1String("Label")) {
            return label;
        }
        const int away = distance(label->geometry(), control->geometry());
        if (away >= 0 && (shortest < 0 || away < shortest)) {
            nearest = label;
            shortest = away;
        }
    }
    return nearest;
}

bool hasTextOfItsOwn(const QWidget *control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return qobject_cast<const QLabel *>(control) != nullptr ||
           (button != nullptr && !button->text().isEmpty());
}

} // namespace

void nameControls(EditorWindow *window, const QVector<ControlDescription> &descriptions, const QString &title)
{
    QVector<QLabel *> labels;
    QVector<QWidget *> nameless;
    for (const ControlDescription &description : descriptions) {
        auto *control = window->findChild<QWidget *>(description.name, Qt::FindDirectChildrenOnly);
        auto *label = qobject_cast<QLabel *>(control);
        if (label != nullptr && !description.label.isEmpty()) {
            labels.append(label); // what shows a field names nothing: it is a value itself
        } else if (control != nullptr && !hasTextOfItsOwn(control) && control->accessibleName().isEmpty()) {
            nameless.append(control);
        }
    }
    for (QWidget *control : qAsConst(nameless)) {
        QLabel *const label = labelOf(control, labels);
        control->setAccessibleName(label != nullptr ? label->text() : title);
        if (label != nullptr && label->buddy() == nullptr) {
            label->setBuddy(control);
        }
    }
}
