#include "window/control/MapCellControl.h"

#include "project/MapTree.h"
#include "window/control/CellPicker.h"

#include <QCursor>

namespace {

/// The name of the field that stands in @p member.
QString fieldIn(ControlReader &reader, const QString &member)
{
    QString name = reader.json().text(member);
    const QString problem = reader.context().project->fields().problemOf(name);
    if (!name.isEmpty() && !problem.isEmpty()) {
        reader.json().addError(member, problem);
    }
    return name;
}

} // namespace

ControlMaker readMapCell(ControlReader &reader)
{
    const QString target = reader.json().text(QStringLiteral("target"));
    const QString map = fieldIn(reader, QStringLiteral("map"));
    const QString x = fieldIn(reader, QStringLiteral("x"));
    const QString y = fieldIn(reader, QStringLiteral("y"));
    MapPainter *painter = reader.context().painter;
    return [target, map, x, y, painter, name = reader.description().name,
            doubleClick = reader.description().doubleClick](EditorWindow *window) {
        auto *picker = new CellPicker(painter, window);
        keepFresh(picker, window, [picker, window, map, x, y] {
            const QJsonValue file = window->layer().file(MapTree::fileOf(window->field(map).toInt()));
            picker->setMap(GameMap::fromFile(file), MapEvents(file).all(),
                           {window->field(x).toInt(), window->field(y).toInt()});
        });
        QObject::connect(picker, &CellPicker::cellChosen, window,
                         [target, x, y, name, window](const QPoint &cell) {
                             window->setField(x, cell.x());
                             window->setField(y, cell.y());
                             window->report(QStringLiteral("mouseEvent"), target, QStringLiteral("click"),
                                            window->spot(name));
                         });
        QObject::connect(picker, &CellPicker::cellOpened, window, [doubleClick, name, window] {
            window->act(doubleClick, QCursor::pos(), window->spot(name));
        });
        return picker;
    };
}
