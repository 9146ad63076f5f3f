#include "lesson/description/FormDescription.h"

QVector<ControlDescription> FormDescription::read(JsonReader &file, const QSize &size)
{
    const int code = file.number(QStringLiteral("code"));
    QVector<ControlDescription> controls = ControlDescription::readAll(file, size);
    for (ControlDescription &control : controls) {
        control.name.prepend(QStringLiteral("%1/").arg(code));
        ControlRequirement isEdited;
        isEdited.field = QStringLiteral("command/code");
        isEdited.values = {code};
        // What asks whose turn it is ends here for all other forms.
        control.shownWhen.prepend(isEdited);
    }
    return controls;
}
