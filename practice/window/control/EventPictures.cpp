#include "window/control/EventPictures.h"

#include "player/view/MessagePreview.h"
#include "project/MapTree.h"
#include "project/events/MovementWay.h"
#include "window/MapPainter.h"
#include "window/Pictures.h"

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
    player::Message message;
    message.face = text(window, "command/0");
    message.background = number(window, "command/2");
    message.place = number(window, "command/3");
    message.speaker = text(window, "command/4");
    message.lines = text(window, "command/lines").split(QLatin1Char('\n'));
    DataRoots files;
    const QStringList names = window.project().files().names();
    for (const QString &name : names) {
        files.insert(name, window.layer().file(name));
    }
    return player::messagePreview(message, files, &Pictures::load, size);
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
