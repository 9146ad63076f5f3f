#include "pilot/OverlayWatch.h"

#include <QMap>

#include <algorithm>

namespace {

constexpr QSize kBubbleSize(640, 480);
constexpr QSize kButtonSize(64, 32);

} // namespace

OverlayWatch OverlayWatch::parse(const QByteArray &geometries)
{
    OverlayWatch overlays;
    QMap<QByteArray, int> values;
    const QList<QByteArray> lines = geometries.split('\n');
    for (const QByteArray &line : lines) {
        const int equals = line.indexOf('=');
        if (equals < 0) {
            continue;
        }
        values.insert(line.left(equals), line.mid(equals + 1).toInt());
        if (!line.startsWith("HEIGHT=")) {
            continue;
        }
        const QRect rect(values.value("X"), values.value("Y"), values.value("WIDTH"), values.value("HEIGHT"));
        if (rect.size() == kBubbleSize) {
            overlays.bubble = rect;
        } else if (rect.size() == kButtonSize) {
            overlays.buttons.append(rect);
        }
    }
    std::sort(overlays.buttons.begin(), overlays.buttons.end(),
              [](const QRect &a, const QRect &b) { return a.x() < b.x(); });
    return overlays;
}
