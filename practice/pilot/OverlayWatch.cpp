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
    quint64 window = 0;
    const QList<QByteArray> lines = geometries.split('\n');
    for (const QByteArray &line : lines) {
        const int equals = line.indexOf('=');
        if (equals < 0) {
            continue;
        }
        values.insert(line.left(equals), line.mid(equals + 1).toInt());
        if (line.startsWith("WINDOW=")) {
            window = line.mid(equals + 1).toULongLong();
        }
        if (!line.startsWith("HEIGHT=")) {
            continue;
        }
        const QRect rect(values.value("X"), values.value("Y"), values.value("WIDTH"), values.value("HEIGHT"));
        if (rect.size() == kBubbleSize) {
            overlays.bubble = rect;
        } else if (rect.size() == kButtonSize) {
            overlays.buttons.append({rect, window});
        }
    }
    std::sort(overlays.buttons.begin(), overlays.buttons.end(),
              [](const Button &a, const Button &b) { return a.rect.x() < b.rect.x(); });
    return overlays;
}
