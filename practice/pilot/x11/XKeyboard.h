#pragma once

#include "pilot/x11/XConnection.h"

#include <optional>

/// The keys of the keyboard, as the X server has them at the moment.
class XKeyboard
{
public:
    struct Key
    {
        xcb_keycode_t code = 0;
        /// The modifier that is held meanwhile; 0 for none.
        xcb_keycode_t modifier = 0;
    };

    explicit XKeyboard(const XConnection &x);

    /// What to press for a character; nothing when no key has it, alone or with Shift.
    [[nodiscard]] std::optional<Key> keyFor(uint character) const;
    /// What to press for it as a shortcut with Ctrl.
    [[nodiscard]] std::optional<Key> withControl(uint character) const;
    enum class Named { kEnter, kEscape, kHome, kDown };
    [[nodiscard]] std::optional<Key> named(Named name) const;

private:
    /// The key with a symbol, alone (level 0) or with Shift (level 1); 0 when there is none.
    [[nodiscard]] xcb_keycode_t find(xcb_keysym_t symbol, int level) const;

    xcb_keycode_t m_first;
    int m_count;
    XReply<xcb_get_keyboard_mapping_reply_t> m_mapping;
};
