#include "pilot/x11/XKeyboard.h"

namespace {

// Names of keys, as X11's keysymdef.h numbers them.
constexpr xcb_keysym_t kReturn = 0xff0d;
constexpr xcb_keysym_t kEscape = 0xff1b;
constexpr xcb_keysym_t kHome = 0xff50;
constexpr xcb_keysym_t kDown = 0xff54;
constexpr xcb_keysym_t kShift = 0xffe1;
constexpr xcb_keysym_t kControl = 0xffe3;

xcb_keysym_t symbolOf(XKeyboard::Named name)
{
    switch (name) {
    case XKeyboard::Named::kEnter:
        return kReturn;
    case XKeyboard::Named::kEscape:
        return kEscape;
    case XKeyboard::Named::kHome:
        return kHome;
    case XKeyboard::Named::kDown:
        return kDown;
    }
    return 0;
}

xcb_keysym_t symbolOf(uint character)
{
    // The characters of Latin-1 have their own numbers, all others those of Unicode with a mark.
    return character < 0x100 ? character : character | 0x01000000U;
}

} // namespace

XKeyboard::XKeyboard(const XConnection &x)
    : m_first(xcb_get_setup(x.get())->min_keycode)
    , m_count(xcb_get_setup(x.get())->max_keycode - m_first + 1)
    , m_mapping(xcb_get_keyboard_mapping_reply(
          x.get(), xcb_get_keyboard_mapping(x.get(), m_first, static_cast<uint8_t>(m_count)), nullptr))
{
}

std::optional<XKeyboard::Key> XKeyboard::keyFor(uint character) const
{
    if (const xcb_keycode_t code = find(symbolOf(character), 0); code != 0) {
        return Key{code, 0};
    }
    const xcb_keycode_t code = find(symbolOf(character), 1);
    const xcb_keycode_t shift = find(kShift, 0);
    if (code == 0 || shift == 0) {
        return {};
    }
    return Key{code, shift};
}

std::optional<XKeyboard::Key> XKeyboard::withControl(uint character) const
{
    const xcb_keycode_t code = find(symbolOf(character), 0);
    const xcb_keycode_t control = find(kControl, 0);
    if (code == 0 || control == 0) {
        return {};
    }
    return Key{code, control};
}

std::optional<XKeyboard::Key> XKeyboard::named(Named name) const
{
    const xcb_keycode_t code = find(symbolOf(name), 0);
    if (code == 0) {
        return {};
    }
    return Key{code, 0};
}

xcb_keycode_t XKeyboard::find(xcb_keysym_t symbol, int level) const
{
    if (m_mapping == nullptr || level >= m_mapping->keysyms_per_keycode) {
        return 0;
    }
    const xcb_keysym_t *const symbols = xcb_get_keyboard_mapping_keysyms(m_mapping.get());
    for (int key = 0; key < m_count; ++key) {
        if (symbols[key * m_mapping->keysyms_per_keycode + level] == symbol) {
            return static_cast<xcb_keycode_t>(m_first + key);
        }
    }
    return 0;
}
