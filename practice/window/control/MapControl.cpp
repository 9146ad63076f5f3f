#include "window/control/MapControl.h"

#include "window/control/ControlState.h"
#include "window/control/EditKeys.h"
#include "window/control/MapKeys.h"
#include "window/control/MapView.h"

#include <QCursor>
#include <QScrollArea>

namespace {

/// The cell in which a stroke began; the whole map for a tool to which all of its cells are one.
ControlSpot strokeSpot(const EditorWindow &window, const MapView &view, const QString &name)
{
    const bool fills = window.project().tools().tool() == EditorTools::Tool::kFill;
    const QPoint cell = view.strokeStart();
    return window.spot(name, fills ? -1 : ControlSpot::cell(cell.x(), cell.y()));
}

/// The cell at @p place, in global screen pixels.
ControlSpot spotAt(const EditorWindow &window, const MapView &view, const QString &name, const QPoint &place)
{
    const QPoint inMap = view.mapFromGlobal(place);
    const int pixels = window.project().tools().cellPixels();
    return window.spot(name, ControlSpot::cell(inMap.x() / pixels, inMap.y() / pixels));
}

/// The marked cell.
ControlSpot markedSpot(const EditorWindow &window, const MapView &view, const QString &name)
{
    const QPoint cell = view.markedCell();
    return window.spot(name, ControlSpot::cell(cell.x(), cell.y()));
}

} // namespace

ControlMaker readMap(ControlReader &reader)
{
    const QString target = reader.json().text(QStringLiteral("target"));
    MapPainter *painter = reader.context().painter;
    return [target, painter, description = reader.description()](EditorWindow *window) {
        const QString name = description.name;
        auto *area = new QScrollArea(window);
        area->setFrameShape(QFrame::NoFrame);
        area->setBackgroundRole(QPalette::Dark);
        auto *view = new MapView(&window->project().board(), &window->project().tools(), painter);
        area->setWidget(view);
        area->setFocusPolicy(Qt::NoFocus); // the map itself has the keys
        new MapKeys(view);
        new EditKeys(view, description, [window](const ControlAction &action) {
            return window->chosen(action) != nullptr && canRun(action, window);
        });
        keepFresh(view, window, [view] { view->refresh(); });
        QObject::connect(view, &MapView::pressed, window, [window, view, name] {
            window->report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"),
                           strokeSpot(*window, *view, name));
        });
        QObject::connect(view, &MapView::clicked, window, [window, view, target, name] {
            const QString how = QLatin1String(view->strokeEnd() == view->strokeStart() ? "click" : "drag");
            window->report(QStringLiteral("mouseEvent"), target, how, strokeSpot(*window, *view, name));
        });
        QObject::connect(view, &MapView::menuRequested, window,
                         [window, view, target, description, name](const QPoint &at) {
                             window->report(QStringLiteral("menuEvent"), target, QStringLiteral("click"),
                                            window->spot(name));
                             window->act(description.contextMenu, at, spotAt(*window, *view, name, at));
                         });
        QObject::connect(view, &MapView::opened, window, [window, view, description, name] {
            window->act(description.doubleClick, QCursor::pos(), markedSpot(*window, *view, name));
        });
        const auto onWish = [window, view, name](auto wish, const ControlAction &action) {
            QObject::connect(view, wish, window, [window, action, name] {
                if (canRun(action, window)) {
                    window->act(action, QCursor::pos(), window->spot(name));
                }
            });
        };
        onWish(&MapView::deleteRequested, description.deleteKey);
        onWish(&MapView::copyRequested, description.copyKey);
        onWish(&MapView::pasteRequested, description.pasteKey);
        return area;
    };
}
