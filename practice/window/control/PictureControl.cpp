#include "window/control/PictureControl.h"

#include "project/TileSets.h"
#include "window/MapPainter.h"
#include "window/Pictures.h"
#include "window/TroopPicture.h"
#include "window/control/EventPictures.h"
#include "window/control/PictureBox.h"

#include <QJsonArray>
#include <QMap>

#include <algorithm>

namespace {

/// Draws what @p value says, for a window that stands in this layer, into a picture of this size, in pixels.
using Draw = std::function<QPixmap(const ControlContext &context, const DataLayer &layer,
                                   const QVariant &value, const QSize &size)>;

QPixmap tileSet(const ControlContext &context, const DataLayer &layer, const QVariant &value,
                const QSize &size)
{
    return context.painter->tileSetPicture(TileSets::lookOf(value.toInt(), layer, context.project->start()),
                                           size);
}

/// The tile set whose picture has this name.
QPixmap tileSetImage(const ControlContext &context, const DataLayer & /*layer*/, const QVariant &value,
                     const QSize &size)
{
    const QVector<StartData::TileSet> &tileSets = context.project->start().tileSets;
    const auto isIt = [name = value.toString()](const StartData::TileSet &tileSet) {
        return tileSet.image == name;
    };
    const auto found = std::find_if(tileSets.cbegin(), tileSets.cend(), isIt);
    return found != tileSets.cend() ? context.painter->tileSetPicture(int(found - tileSets.cbegin()), size)
                                    : QPixmap();
}

QPixmap troop(const ControlContext & /*context*/, const DataLayer &layer, const QVariant &value,
              const QSize &size)
{
    return troopPicture(QJsonArray::fromVariantList(value.toList()),
                        layer.file(QStringLiteral("data/Enemies.json")).toArray(), size);
}

QPixmap sampleMap(const ControlContext &context, const DataLayer & /*layer*/, const QVariant &value,
                  const QSize &size)
{
    return context.painter->mapPicture(context.project->start().sampleMaps.value(value.toInt()), size);
}

/// The drawing with this name in a folder of pictures; nothing for a name that has none.
Draw ofFolder(const QString &folder)
{
    return [folder](const ControlContext & /*context*/, const DataLayer & /*layer*/, const QVariant &value,
                    const QSize &size) {
        const QPixmap picture =
            value.toString().isEmpty() ? QPixmap() : Pictures::load(folder, value.toString());
        return picture.isNull() ? picture
                                : picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    };
}

const QMap<QString, Draw> &drawings()
{
    static const QMap<QString, Draw> drawings{
        {QStringLiteral("tileSet"), tileSet},
        {QStringLiteral("tileSetImage"), tileSetImage},
        {QStringLiteral("sampleMap"), sampleMap},
        {QStringLiteral("troop"), troop},
        {QStringLiteral("backdrop"), ofFolder(QStringLiteral("backdrops"))},
        {QStringLiteral("picture"), ofFolder(QStringLiteral("pictures"))},
        {QStringLiteral("character"), ofFolder(QStringLiteral("characters"))},
        {QStringLiteral("enemy"), ofFolder(QStringLiteral("enemies"))},
        {QStringLiteral("face"), ofFolder(QStringLiteral("faces"))},
        {QStringLiteral("title"), ofFolder(QStringLiteral("titles"))},
    };
    return drawings;
}

/// What is drawn of all that is being edited, and of no field alone.
const QMap<QString, decltype(&EventPictures::message)> &drawingsOfWindow()
{
    static const QMap<QString, decltype(&EventPictures::message)> drawings{
        {QStringLiteral("message"), EventPictures::message}, {QStringLiteral("route"), EventPictures::route}};
    return drawings;
}

} // namespace

ControlMaker readPicture(ControlReader &reader)
{
    const QString picture = reader.json().text(QStringLiteral("picture"));
    reader.oneOf(QStringLiteral("picture"), picture, drawings().keys() + drawingsOfWindow().keys());
    const auto ofWindow = drawingsOfWindow().value(picture);
    const bool hasField = reader.has(QStringLiteral("field"));
    const QString name = hasField ? reader.field() : ofWindow == nullptr ? reader.source() : QString();
    return [picture, ofWindow, hasField, name, context = reader.context(),
            description = reader.description()](EditorWindow *window) {
        auto *box = new PictureBox(
            [picture, ofWindow, hasField, name, context, window](const QSize &size) {
                if (ofWindow != nullptr) {
                    return ofWindow(context, *window, size);
                }
                if (hasField) {
                    return drawings().value(picture)(context, window->layer(), window->field(name), size);
                }
                const Row row = window->rows(name).value(window->currentRow(name), {QString(), -1});
                return drawings().value(picture)(context, window->layer(), row.chosen().toVariant(), size);
            },
            window);
        // A picture that nothing comes of is no stop of the tabulator key.
        if (description.click.isEmpty()) {
            box->setFocusPolicy(Qt::NoFocus);
        }
        keepFresh(box, window, [box] { box->update(); });
        wireClick(box, description, window);
        return box;
    };
}
