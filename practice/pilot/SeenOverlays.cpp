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
