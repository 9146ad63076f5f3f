#include "window/control/SpinBoxControl.h"

#include "project/MapTree.h"
#include "window/control/NumberBox.h"

#include <QJsonObject>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Tells the largest number that makes sense in a window at present.
using Limit = std::function<int(const EditorWindow *window)>;

/// The last column or row of a map, no larger than @p most. Where there is no such map it is @p most.
Limit lastCell(const QString &map, const QString &side, int most)
{
    return [map, side, most](const EditorWindow *window) {
        const int size = map.isEmpty() ? window->field(QStringLiteral("data/Map{maps}/") + side).toInt()
                                       : window->layer()
                                             .file(MapTree::fileOf(window->field(map).toInt()))
                                             .toObject()
                                             .value(side)
                                             .toInt();
        return size > 0 ? std::min(size - 1, most) : most;
    };
}

Limit readLimit(ControlReader &reader, int most)
{
    const QString cells = reader.json().text(QStringLiteral("cells"), QString());
    const QString map = reader.json().text(QStringLiteral("map"), QString());
    const QString problem = map.isEmpty() ? QString() : reader.context().project->fields().problemOf(map);
    if (!problem.isEmpty()) {
        reader.json().addError(QStringLiteral("map"), problem);
    }
    if (cells.isEmpty()) {
        return [most](const EditorWindow * /*window*/) {
            return most;
        };
    }
    reader.oneOf(QStringLiteral("cells"), cells, {QStringLiteral("columns"), QStringLiteral("rows")});
    return lastCell(map, cells == QLatin1String("rows") ? QStringLiteral("height") : QStringLiteral("width"),
                    most);
}

} // namespace

ControlMaker readSpinBox(ControlReader &reader)
{
    const QString field = reader.field();
    const QVector<int> range = reader.json().numbers(QStringLiteral("range"), 2);
    const QString suffix = reader.json().text(QStringLiteral("suffix"), QString());
    const QJsonValue missing = reader.missing();
    const Limit limit = readLimit(reader, range.size() == 2 ? range.at(1) : 0);
    return [field, range, suffix, missing, limit, name = reader.description().name](EditorWindow *window) {
        auto *spin = new NumberBox(window);
        spin->setRange(range.at(0), range.at(1));
        spin->setSuffix(suffix);
        keepFresh(spin, window, [spin, window, range, field, missing, limit] {
            const QSignalBlocker quiet(spin);
            const int value = fieldValue(window, field, missing).toInt();
            // What stands there is shown, and is not changed by being looked at.
            const int last = std::max(limit(window), std::min(value, range.at(1)));
            if (spin->maximum() != last) {
                spin->setMaximum(last);
            }
            spin->setValue(value);
        });
        settleWhenComing(spin, window, [spin, window, field, missing, limit] {
            const QSignalBlocker quiet(spin);
            spin->setMaximum(limit(window));
            const EditorWindow::Return back = window->returnOf(spin, field);
            if (back.value) {
                spin->setValue(back.value->toInt());
            } else if (back.isOthers) {
                spin->setValue(missing.toInt());
            }
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
