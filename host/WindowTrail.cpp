#include "host/WindowTrail.h"

#include <algorithm>

namespace {

/// The entry of the open windows that stands for any context menu.
bool isMenuEntry(const QString &key)
{
    return key == QLatin1String("Popup");
}

bool agree(const ControlSpot &one, const ControlSpot &another)
{
    return one.isNone() || another.isNone() || one.isLike(another);
}

} // namespace

bool OpenWindow::isLike(const OpenWindow &other) const
{
    return name == other.name && isMenu == other.isMenu && agree(cause, other.cause) &&
           agree(menuCause, other.menuCause);
}

void WindowTrail::follow(const QStringList &openWindows)
{
    OpenWindows open;
    for (const QString &key : openWindows) {
        const auto isIt = [&key](const OpenWindow &window) {
            return window.isMenu ? isMenuEntry(key) : window.name == key;
        };
        const auto known = std::find_if(m_open.cbegin(), m_open.cend(), isIt);
        if (known != m_open.cend()) {
            open.append(*known);
        } else {
            open.append({isMenuEntry(key) ? QString() : key, isMenuEntry(key), {}, {}});
        }
    }
    m_open = open;
}

void WindowTrail::take(const EditorEvent &event)
{
    const bool opens = event.type == QLatin1String("windowState") && event.value == QLatin1String("open");
    const bool popsUp = event.type == QLatin1String("popup");
    if (!opens && !popsUp) {
        return;
    }
    const auto isIt = [&](const OpenWindow &window) {
        return window.isMenu ? popsUp : opens && window.name == event.target;
    };
    const auto window = std::find_if(m_open.begin(), m_open.end(), isIt);
    if (window == m_open.end()) {
        return;
    }
    window->name = event.target;
    window->cause = event.cause;
    window->menuCause = ControlSpot();
    if (popsUp) {
        m_lastMenu = *window;
    } else if (event.cause.control.startsWith(m_lastMenu.name + QLatin1Char('/'))) {
        window->menuCause = m_lastMenu.cause;
    }
    m_lastCauses.insert(event.target, event.cause);
}

QJsonObject WindowTrail::toJson(const ControlSpot &spot)
{
    return {{QStringLiteral("window"), spot.windowKey},
            {QStringLiteral("control"), spot.control},
            {QStringLiteral("part"), spot.part}};
}

ControlSpot WindowTrail::spotFromJson(const QJsonObject &json)
{
    return {json.value(QLatin1String("window")).toString(), json.value(QLatin1String("control")).toString(),
            json.value(QLatin1String("part")).toInt(-1)};
}

QJsonObject WindowTrail::toJson(const OpenWindow &window)
{
    return {{QStringLiteral("name"), window.name},
            {QStringLiteral("menu"), window.isMenu},
            {QStringLiteral("cause"), toJson(window.cause)},
            {QStringLiteral("menuCause"), toJson(window.menuCause)}};
}

OpenWindow WindowTrail::fromJson(const QJsonObject &json)
{
    return {json.value(QLatin1String("name")).toString(), json.value(QLatin1String("menu")).toBool(),
            spotFromJson(json.value(QLatin1String("cause")).toObject()),
            spotFromJson(json.value(QLatin1String("menuCause")).toObject())};
}
