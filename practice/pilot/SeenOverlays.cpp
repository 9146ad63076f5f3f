#include "pilot/SeenOverlays.h"

#include <algorithm>

namespace {

constexpr QSize kBubbleSize(640, 480);
constexpr QSize kButtonSize(64, 32);

} // namespace

SeenOverlays SeenOverlays::among(const QVector<Window> &windows)
{
    SeenOverlays overlays;
    for (const Window &window : windows) {
        if (window.rect.size() == kBubbleSize) {
            overlays.bubble = window.rect;
        } else if (window.rect.size() == kButtonSize) {
            overlays.buttons.append(window);
        }
    }
    std::sort(overlays.buttons.begin(), overlays.buttons.end(),
              [](const Window &a, const Window &b) { return a.rect.x() < b.rect.x(); });
    return overlays;
}

QString SeenOverlays::inWords() const
{
    const QString where = bubble ? QStringLiteral("the bubble at (%1, %2)").arg(bubble->x()).arg(bubble->y())
                                 : QStringLiteral("no bubble");
    switch (buttons.size()) {
    case 0:
        return where + QStringLiteral(", no button");
    case 1:
        return where + QStringLiteral(", 1 button");
    default:
        return where + QStringLiteral(", %1 buttons").arg(buttons.size());
    }
}
