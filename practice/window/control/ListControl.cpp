#include "window/control/ListControl.h"

#include "window/control/ControlState.h"
#include "window/control/EditKeys.h"
#include "window/control/RowList.h"

#include <QCursor>

namespace {

/// Shows the list of event commands whose path stands in "list". Gives what says that this one is edited from
/// here on.
QString readCommands(ControlReader &reader, const QString &path, RowList::Settings *settings)
{
    const QString problem = reader.context().project->sources().problemOf(path);
    if (!path.isEmpty() && !problem.isEmpty()) {
        reader.json().addError(QStringLiteral("list"), problem);
    }
    settings->source = QStringLiteral("commands ") + path;
    settings->rows = [source = settings->source](const EditorWindow *window) {
        return window->rows(source);
    };
    return QStringLiteral("commands.of ") + path;
}

} // namespace

ControlMaker readList(ControlReader &reader)
{
    const ControlDescription &description = reader.description();
    RowList::Settings settings;
    QString begin;
    if (reader.has(QStringLiteral("list"))) {
        reader.oneOf(QStringLiteral("source"), reader.json().text(QStringLiteral("source")),
                     {QStringLiteral("commands")});
        begin = readCommands(reader, reader.json().text(QStringLiteral("list")), &settings);
    } else {
        settings.rows = reader.rows(false);
        settings.source = description.own.object.value(QStringLiteral("source")).toString();
    }
    if (reader.hasChoices() || reader.has(QStringLiteral("field"))) {
        settings.field = reader.field();
    }
    settings.rowHeight = reader.rowHeight();
    settings.isOpened = !description.doubleClick.isEmpty();
    settings.isDeletedFrom = !description.deleteKey.isEmpty();
    settings.isCopiedFrom = !description.copyKey.isEmpty();
    settings.isPastedTo = !description.pasteKey.isEmpty();
    MapPainter *painter = reader.context().painter;
    return [settings, painter, description, begin](EditorWindow *window) {
        auto *list = new RowList(window, painter, settings);
        keepFresh(list, window, [list] { list->refresh(); });
        settleWhenComing(list, window, [list] { list->settle(); });
        new EditKeys(list, description, [window, begin](const ControlAction &action) {
            window->run(begin);
            return window->chosen(action) != nullptr && canRun(action, window);
        });
        const auto act = [list, window, begin, name = description.name](const ControlAction &action,
                                                                        const QPoint &at) {
            window->run(begin);
            if (canRun(action, window)) {
                window->act(action, at, window->spot(name, list->currentRow()));
            }
        };
        QObject::connect(list, &RowList::rowChosen, window, [window, name = description.name](int row) {
            window->report(QStringLiteral("list"), QString::number(row), QString(), window->spot(name, row));
        });
        QObject::connect(list, &RowList::rowTaken, window, [window, name = description.name](int row) {
            window->tellUse(window->spot(name, row));
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
