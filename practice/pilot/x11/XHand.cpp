#include "pilot/x11/XHand.h"

#include "pilot/Action.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <utility>

#include <xcb/xtest.h>

namespace {

constexpr uint8_t kLeftButton = 1;
constexpr uint8_t kRightButton = 3;
constexpr QPoint kBeside(2, 2);

/// What to press, one after the other.
QVector<std::optional<XKeyboard::Key>> keysOf(const Action &action, const XKeyboard &keyboard)
{
    using Named = XKeyboard::Named;
    QVector<std::optional<XKeyboard::Key>> keys;
    switch (action.kind) {
    case Action::Kind::kSelectAll:
        return {keyboard.withControl('a')};
    case Action::Kind::kEnter:
        return {keyboard.named(Named::kEnter)};
    case Action::Kind::kEscape:
        return {keyboard.named(Named::kEscape)};
    case Action::Kind::kChoose:
        keys.append(keyboard.named(Named::kHome));
        keys.append(QVector<std::optional<XKeyboard::Key>>(action.row, keyboard.named(Named::kDown)));
        keys.append(keyboard.named(Named::kEnter));
        return keys;
    default:
        break;
    }
    const QVector<uint> characters = action.text.toUcs4();
    for (const uint character : characters) {
        keys.append(keyboard.keyFor(character));
    }
    return keys;
}

} // namespace

XHand::XHand(std::shared_ptr<const XConnection> x)
    : m_x(std::move(x))
{
}

Hand::Result XHand::perform(const Action &action)
{
    switch (action.kind) {
    case Action::Kind::kClick:
        return click(m_x->root(), action.place, kLeftButton);
    case Action::Kind::kDoubleClick:
        return click(m_x->root(), action.place, kLeftButton, 2);
    case Action::Kind::kRightClick:
        return click(m_x->root(), action.place, kRightButton);
    case Action::Kind::kPress:
    case Action::Kind::kCarry:
    case Action::Kind::kRelease:
        return drag(action);
    case Action::Kind::kPressButton:
        return click(action.window, action.place, kLeftButton);
    case Action::Kind::kRest:
        goTo(m_x->root(), action.place);
        m_x->sync();
        return Result::kDone;
    default:
        return strike(keysOf(action, XKeyboard(*m_x)));
    }
}

Hand::Result XHand::click(xcb_window_t window, const QPoint &place, uint8_t button, int times)
{
    QElapsedTimer clock;
    clock.start();
    // A window that moved between the way there and the last click would let the rest go elsewhere.
    xcb_grab_server(m_x->get());
    const bool isThere = isVisible(window);
    if (isThere) {
        goTo(window, place);
        for (int i = 0; i < times; ++i) {
            fake(XCB_BUTTON_PRESS, button);
            fake(XCB_BUTTON_RELEASE, button);
        }
    }
    xcb_ungrab_server(m_x->get());
    m_x->sync();
    const bool isTooSlow =
        times > 1 && clock.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    return isThere && !isTooSlow ? Result::kDone : Result::kMissed;
}

Hand::Result XHand::drag(const Action &action)
{
    goTo(m_x->root(), action.place);
    if (action.kind == Action::Kind::kPress) {
        fake(XCB_BUTTON_PRESS, kLeftButton);
    } else if (action.kind == Action::Kind::kRelease) {
        fake(XCB_BUTTON_RELEASE, kLeftButton);
    }
    m_x->sync();
    return Result::kDone;
}

void XHand::goTo(xcb_window_t window, const QPoint &place)
{
    // The window below hears of a way and not only of a pointer that has come: to Qt a press is the second
    // half of a double click, wherever it is, until the pointer has moved.
    for (const QPoint &stop : {place + kBeside, place}) {
        xcb_warp_pointer(m_x->get(), XCB_NONE, window, 0, 0, 0, 0, static_cast<int16_t>(stop.x()),
                         static_cast<int16_t>(stop.y()));
    }
}

Hand::Result XHand::strike(const QVector<std::optional<XKeyboard::Key>> &keys)
{
    if (!std::all_of(keys.begin(), keys.end(),
                     [](const std::optional<XKeyboard::Key> &key) { return key.has_value(); })) {
        return Result::kImpossible;
    }
    for (const std::optional<XKeyboard::Key> &key : keys) {
        if (key->modifier != 0) {
            fake(XCB_KEY_PRESS, key->modifier);
        }
        fake(XCB_KEY_PRESS, key->code);
        fake(XCB_KEY_RELEASE, key->code);
        if (key->modifier != 0) {
            fake(XCB_KEY_RELEASE, key->modifier);
        }
    }
    m_x->sync();
    return Result::kDone;
}

bool XHand::isVisible(xcb_window_t window) const
{
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(m_x->get(), xcb_get_window_attributes(m_x->get(), window), nullptr));
    return attributes != nullptr && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

void XHand::fake(uint8_t what, uint8_t which)
{
    xcb_test_fake_input(m_x->get(), what, which, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}
