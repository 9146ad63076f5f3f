#include "window/control/MapControl.h"

#include "window/control/MapKeys.h"
#include "window/control/MapView.h"

#include <QScrollArea>

ControlMaker readMap(ControlReader &reader)
{
    const QString target = reader.json().text(QStringLiteral("target"));
    MapPainter *painter = reader.context().painter;
    const ControlAction contextMenu = reader.description().contextMenu;
    return [target, painter, contextMenu, name = reader.description().name](EditorWindow *window) {
        auto *area = new QScrollArea(window);
        area->setFrameShape(QFrame::NoFrame);
        area->setBackgroundRole(QPalette::Dark);
        auto *view = new MapView(&window->project().board(), &window->project().tools(), painter);
        area->setWidget(view);
        area->setFocusPolicy(Qt::NoFocus); // the map itself has the keys
        new MapKeys(view);
        keepFresh(view, window, [view] { view->refresh(); });
        QObject::connect(view, &MapView::pressed, window, [window, name] {
            window->report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"),
                           window->spot(name));
        });
        QObject::connect(view, &MapView::clicked, window, [window, target, name] {
            window->report(QStringLiteral("mouseEvent"), target, QStringLiteral("click"), window->spot(name));
        });
        QObject::connect(view, &MapView::menuRequested, window,
                         [window, target, contextMenu, name](const QPoint &at) {
                             window->report(QStringLiteral("menuEvent"), target, QStringLiteral("click"),
                                            window->spot(name));
                             window->act(contextMenu, at, window->spot(name));
                         });
        return area;
    };
}
