#include "lesson/description/ControlSpots.h"

#include <algorithm>

namespace {

using Kind = WindowDescription::Kind;

bool isMap(const ControlDescription &control)
{
    return control.type == QLatin1String("map");
}

int partAt(const ControlDescription &control, const QPoint &inControl)
{
    if (control.rowHeight > 0) {
        return inControl.y() / control.rowHeight;
    }
    if (!control.tabWidths.isEmpty()) {
        return control.tabAt(inControl.x());
    }
    return isMap(control) ? ControlSpot::cell(inControl.x() / kCellPixels, inControl.y() / kCellPixels) : -1;
}

QPoint middleOf(const ControlDescription &control, int part)
{
    const QRect &place = control.geometry;
    const QPoint middle(place.x() + place.width() / 2, place.y() + place.height() / 2);
    if (part < 0) {
        return middle;
    }
    if (control.rowHeight > 0) {
        return {middle.x(), place.y() + part * control.rowHeight + control.rowHeight / 2};
    }
    if (!control.tabWidths.isEmpty()) {
        return {place.x() + control.tabLeft(part) + control.tabWidth(part) / 2, middle.y()};
    }
    if (isMap(control)) {
        const QPoint cell(ControlSpot::columnOf(part), ControlSpot::rowOf(part));
        return place.topLeft() + cell * kCellPixels + QPoint(kCellPixels / 2, kCellPixels / 2);
    }
    return middle;
}

void append(const QVector<ControlDescription> &controls, const QString &key, const QString &prefix,
            const QPoint &position, QVector<ControlSpot> *spots)
{
    for (const ControlDescription &control : controls) {
        if (control.geometry.contains(position)) {
            spots->append(
                {key, prefix + control.name, partAt(control, position - control.geometry.topLeft())});
        }
    }
}

const ControlDescription *named(const QVector<ControlDescription> &controls, const QString &name)
{
    const auto found =
        std::find_if(controls.cbegin(), controls.cend(),
                     [&name](const ControlDescription &control) { return control.name == name; });
    return found != controls.cend() ? &*found : nullptr;
}

} // namespace

QVector<ControlSpot> controlsAt(const DescriptionSet &windows, const QString &windowKey,
                                const QPoint &position)
{
    QVector<ControlSpot> spots;
    if (!windows.contains(windowKey)) {
        return spots;
    }
    const WindowDescription &window = windows[windowKey];
    if (window.kind == Kind::kArea) {
        return windows.contains(window.owner) ? controlsAt(windows, window.owner, position) : spots;
    }
    append(window.controls, windowKey, QString(), position, &spots);
    for (const PopupDescription &popup : window.popups) {
        append(popup.controls, windowKey, popup.name + QLatin1Char('/'), position, &spots);
    }
    const QStringList keys = windows.keys();
    for (const QString &key : keys) {
        const WindowDescription &part = windows[key];
        if (part.kind == Kind::kPart && part.owner == windowKey) {
            append(part.controls, key, QString(), position - part.place, &spots);
        }
    }
    return spots;
}

const ControlDescription *controlOf(const DescriptionSet &windows, const ControlSpot &spot)
{
    if (!windows.contains(spot.windowKey)) {
        return nullptr;
    }
    const WindowDescription &window = windows[spot.windowKey];
    if (window.kind != Kind::kPopup) {
        return named(window.controls, spot.control);
    }
    const PopupDescription *popup = windows.popup(spot.control.section(QLatin1Char('/'), 0, 0));
    return popup != nullptr ? named(popup->controls, spot.control.section(QLatin1Char('/'), 1)) : nullptr;
}

std::optional<QPoint> pointOf(const DescriptionSet &windows, const ControlSpot &spot)
{
    const ControlDescription *control = controlOf(windows, spot);
    return control != nullptr ? std::optional(middleOf(*control, spot.part)) : std::nullopt;
}
