#include "Tutorial/overlay/X11Window.h"

#ifdef TUTORIAL_X11

#include <QGuiApplication>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QX11Info>
#endif

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>

namespace {

template<typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

// The property WM_HINTS, as the conventions between X11 programs lay it out.
constexpr int kHintFlags = 0;
constexpr int kHintGroup = 8;
constexpr quint32 kHasGroup = 1U << 6U;
using Hints = std::array<quint32, 9>;

/// The connection that Qt's own requests take. To be asked only on an X11 platform.
xcb_connection_t *connectionOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QX11Info::connection();
#else
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
#endif
}

bool isPlatformX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

Hints hintsOf(xcb_window_t window)
{
    xcb_connection_t *const connection = connectionOfQt();
    const xcb_get_property_cookie_t cookie =
        xcb_get_property(connection, 0, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 0, Hints().size());
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr),
                                                &std::free);
    Hints hints{};
    if (reply != nullptr && reply->format == 32) {
        const auto bytes = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
        std::memcpy(hints.data(), xcb_get_property_value(reply.get()), qMin(bytes, sizeof(hints)));
    }
    return hints;
}

xcb_atom_t frameExtents()
{
    constexpr char kName[] = "_GTK_FRAME_EXTENTS";
    xcb_connection_t *const connection = connectionOfQt();
    const Owned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, sizeof(kName) - 1, kName), nullptr),
        &std::free);
    return reply != nullptr ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

template<std::size_t Size>
void set(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const std::array<quint32, Size> &values)
{
    xcb_change_property(connectionOfQt(), XCB_PROP_MODE_REPLACE, window, property, type, 32,
                        static_cast<quint32>(values.size()), values.data());
}

} // namespace

namespace X11Window {

void setOwnGroup(WId window)
{
    if (!isPlatformX11()) {
        return;
    }
    const auto id = static_cast<xcb_window_t>(window);
    Hints hints = hintsOf(id);
    hints[kHintFlags] |= kHasGroup;
    hints[kHintGroup] = id;
    set(id, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
}

void setInvisibleFrame(WId window, const QMargins &margins)
{
    if (!isPlatformX11()) {
        return;
    }
    static const xcb_atom_t property = frameExtents();
    const std::array<quint32, 4> sides{
        static_cast<quint32>(margins.left()), static_cast<quint32>(margins.right()),
        static_cast<quint32>(margins.top()), static_cast<quint32>(margins.bottom())};
    if (property != XCB_ATOM_NONE) {
        set(static_cast<xcb_window_t>(window), property, XCB_ATOM_CARDINAL, sides);
    }
}

} // namespace X11Window

#else

namespace X11Window {

void setOwnGroup(WId window)
{
    Q_UNUSED(window)
}

void setInvisibleFrame(WId window, const QMargins &margins)
{
    Q_UNUSED(window)
    Q_UNUSED(margins)
}

} // namespace X11Window

#endif
