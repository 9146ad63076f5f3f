#include "window/control/EventPictures.h"

#include "project/MapTree.h"
#include "project/events/MovementWay.h"
#include "window/MapPainter.h"
#include "window/MessagePicture.h"

namespace {

QString text(const EditorWindow &window, const char *field)
{
    return window.field(QString::fromLatin1(field)).toString();
}

int number(const EditorWindow &window, const char *field)
{
    return window.field(QString::fromLatin1(field)).toInt();
}

} // namespace

QPixmap EventPictures::message(const ControlContext & /*context*/, const EditorWindow &window,
                               const QSize &size)
{
    MessageLook look;
    look.face = text(window, "command/0");
    look.speaker = text(window, "command/4");
    look.lines = text(window, "command/lines").split(QLatin1Char('\n'));
    look.ground = static_cast<MessageLook::Ground>(qBound(0, number(window, "command/2"), 2));
    look.place = static_cast<MessageLook::Place>(qBound(0, number(window, "command/3"), 2));
    return messagePicture(look, size);
}

QPixmap EventPictures::route(const ControlContext &context, const EditorWindow &window, const QSize &size)
{
    const int map = context.project->sources().number(QStringLiteral("maps"), window.layer());
    const QJsonValue file = window.layer().file(MapTree::fileOf(map));
    const QJsonArray steps = QJsonArray::fromVariantList(window.field(QStringLiteral("route/list")).toList());
    const QPoint start = window.field(QStringLiteral("route.start")).toPoint();
    return context.painter->wayPicture(GameMap::fromFile(file), MapEvents(file).all(),
                                       MovementWay::cells(steps, start), size);
}
