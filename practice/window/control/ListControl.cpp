#include "window/control/ListControl.h"

#include "window/control/ControlState.h"
#include "window/control/RowList.h"

#include <QCursor>

ControlMaker readList(ControlReader &reader)
{
    const ControlDescription &description = reader.description();
    RowList::Settings settings;
    settings.rows = reader.rows(false);
    if (reader.hasChoices() || reader.has(QStringLiteral("field"))) {
        settings.field = reader.field();
    }
    settings.source = description.own.object.value(QStringLiteral("source")).toString();
    settings.rowHeight = reader.rowHeight();
    settings.isOpened = !description.doubleClick.isEmpty();
    settings.isDeletedFrom = !description.deleteKey.isEmpty();
    settings.isCopiedFrom = !description.copyKey.isEmpty();
    settings.isPastedTo = !description.pasteKey.isEmpty();
    MapPainter *painter = reader.context().painter;
    return [settings, painter, description](EditorWindow *window) {
        auto *list = new RowList(window, painter, settings);
        keepFresh(list, window, [list] { list->refresh(); });
        const auto act = [list, window, name = description.name](const ControlAction &action,
                                                                 const QPoint &at) {
            if (canRun(action, window)) {
                window->act(action, at, window->spot(name, list->currentRow()));
            }
        };
        QObject::connect(list, &RowList::rowChosen, window, [window, name = description.name](int row) {
            window->report(QStringLiteral("list"), QString::number(row), QString(), window->spot(name, row));
        });
        QObject::connect(list, &RowList::rowOpened, window,
                         [act, action = description.doubleClick] { act(action, QCursor::pos()); });
        QObject::connect(list, &RowList::menuRequested, window,
                         [act, action = description.contextMenu](const QPoint &at) { act(action, at); });
        QObject::connect(list, &RowList::deleteRequested, window,
                         [act, action = description.deleteKey] { act(action, QCursor::pos()); });
        QObject::connect(list, &RowList::copyRequested, window,
                         [act, action = description.copyKey] { act(action, QCursor::pos()); });
        QObject::connect(list, &RowList::pasteRequested, window,
                         [act, action = description.pasteKey] { act(action, QCursor::pos()); });
        return list;
    };
}
