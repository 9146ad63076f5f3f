#include "window/control/PictureControl.h"

#include "window/MapPainter.h"
#include "window/control/PictureBox.h"

#include <QMap>

namespace {

/// Draws what has this number into a picture of this size, in pixels.
using Draw = QPixmap (*)(const ControlContext &context, int number, const QSize &size);

QPixmap tileSet(const ControlContext &context, int number, const QSize &size)
{
    return context.painter->tileSetPicture(qMax(0, number - 1), size);
}

QPixmap sampleMap(const ControlContext &context, int number, const QSize &size)
{
    return context.painter->mapPicture(context.project->start().sampleMaps.value(number), size);
}

const QMap<QString, Draw> &drawings()
{
    static const QMap<QString, Draw> drawings{{QStringLiteral("tileSet"), tileSet},
                                              {QStringLiteral("sampleMap"), sampleMap}};
    return drawings;
}

} // namespace

ControlMaker readPicture(ControlReader &reader)
{
    const QString picture = reader.json().text(QStringLiteral("picture"));
    reader.oneOf(QStringLiteral("picture"), picture, drawings().keys());
    const bool hasField = reader.has(QStringLiteral("field"));
    const QString name = hasField ? reader.field() : reader.source();
    return [picture, hasField, name, context = reader.context(),
            description = reader.description()](EditorWindow *window) {
        auto *box = new PictureBox(
            [picture, hasField, name, context, window](const QSize &size) {
                const int number = hasField ? window->field(name).toInt()
                                            : context.project->sources().number(name, window->layer());
                return drawings().value(picture)(context, number, size);
            },
            window);
        keepFresh(box, window, [box] { box->update(); });
        wireClick(box, description, window);
        return box;
    };
}
