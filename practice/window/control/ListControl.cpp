#include "window/control/ListControl.h"

#include "window/control/RowList.h"

#include <QCursor>

ControlMaker readList(ControlReader &reader)
{
    const QString source = reader.source();
    const QString field = reader.has(QStringLiteral("field")) ? reader.field() : QString();
    const int rowHeight = reader.rowHeight();
    MapPainter *painter = reader.context().painter;
    return [source, field, rowHeight, painter, description = reader.description()](EditorWindow *window) {
        auto *list = new RowList(window, painter, source, field, rowHeight);
        keepFresh(list, window, [list] { list->refresh(); });
        QObject::connect(list, &RowList::rowChosen, window, [window](int row) {
            window->report(QStringLiteral("list"), QString::number(row), QString());
        });
        QObject::connect(list, &QListWidget::itemDoubleClicked, window,
                         [description, window] { window->act(description.doubleClick, QCursor::pos()); });
        QObject::connect(list, &RowList::menuRequested, window, [description, window](const QPoint &at) {
            window->act(description.contextMenu, at);
        });
        return list;
    };
}
