#include "author/ControlDump.h"

#include "lesson/description/DescriptionSet.h"
#include "lesson/description/Spot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject positionOf(const Spot &spot)
{
    return {{QStringLiteral("x"), spot.position().x()}, {QStringLiteral("y"), spot.position().y()}};
}

/// The positions of the rows or tabs @p what, as many as fit into the control.
QJsonArray positionsOf(const QVector<ControlDescription> &controls, const QString &name, const QString &what)
{
    QJsonArray positions;
    for (int i = 0;; ++i) {
        const Spot spot(controls, {name, what, QString::number(i)});
        if (!spot.problem().isEmpty()) {
            return positions;
        }
        positions.append(positionOf(spot));
    }
}

QJsonObject controlOf(const QVector<ControlDescription> &controls, const ControlDescription &control)
{
    QJsonObject object = positionOf(Spot(controls, {control.name}));
    object.insert(QStringLiteral("name"), control.name);
    object.insert(QStringLiteral("type"), control.type);
    if (control.rowHeight > 0) {
        object.insert(QStringLiteral("rows"), positionsOf(controls, control.name, QStringLiteral("row")));
    }
    if (!control.tabWidths.isEmpty()) {
        object.insert(QStringLiteral("tabs"), positionsOf(controls, control.name, QStringLiteral("tab")));
    }
    if (control.type == QLatin1String("map")) {
        const QString cell = QStringLiteral("cell");
        const QString zero = QStringLiteral("0");
        const QString one = QStringLiteral("1");
        const Spot first(controls, {control.name, cell, zero, zero});
        const Spot second(controls, {control.name, cell, one, one});
        QJsonObject cells = positionOf(first);
        cells.insert(QStringLiteral("next"), second.position().x() - first.position().x());
        object.insert(QStringLiteral("cells"), cells);
    }
    return object;
}

} // namespace

QByteArray controlDump(const DescriptionSet &windows)
{
    QJsonObject all;
    const QStringList keys = windows.keys();
    for (const QString &key : keys) {
        const QVector<ControlDescription> controls = windows.controlsIn(key);
        QJsonArray list;
        for (const ControlDescription &control : controls) {
            list.append(controlOf(controls, control));
        }
        const QSize size = windows.size(key);
        all.insert(key, QJsonObject{{QStringLiteral("size"), QJsonArray{size.width(), size.height()}},
                                    {QStringLiteral("controls"), list}});
    }
    return QJsonDocument(all).toJson();
}
