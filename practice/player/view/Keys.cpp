#include "player/view/Keys.h"

#include <QKeyEvent>

#include <utility>

namespace player {

namespace {

constexpr bool repeats(GameKey key)
{
    return key == GameKey::kUp || key == GameKey::kDown || key == GameKey::kLeft || key == GameKey::kRight;
}

QVector<GameKey> meaningOfLetter(int key)
{
    switch (key) {
    case Qt::Key_W:
        return {GameKey::kUp};
    case Qt::Key_S:
        return {GameKey::kDown};
    case Qt::Key_A:
        return {GameKey::kLeft};
    case Qt::Key_D:
        return {GameKey::kRight};
    case Qt::Key_Z:
    case Qt::Key_Space:
        return {GameKey::kAct};
    case Qt::Key_X:
        return {GameKey::kCancel, GameKey::kMenu};
    default:
        return {};
    }
}

} // namespace

QVector<GameKey> Keys::meaningOf(int key) const
{
    switch (key) {
    case Qt::Key_Up:
        return {GameKey::kUp};
    case Qt::Key_Down:
        return {GameKey::kDown};
    case Qt::Key_Left:
        return {GameKey::kLeft};
    case Qt::Key_Right:
        return {GameKey::kRight};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return {GameKey::kAct};
    case Qt::Key_Escape:
        return {GameKey::kCancel};
    case Qt::Key_Backspace:
        return m_isTyping ? QVector<GameKey>{GameKey::kCancel} : QVector<GameKey>();
    default:
        return m_isTyping ? QVector<GameKey>() : meaningOfLetter(key);
    }
}

bool Keys::press(const QKeyEvent &event)
{
    const QVector<GameKey> keys = meaningOf(event.key());
    if (keys.isEmpty()) {
        const QString text = event.text();
        const bool isLetter = m_isTyping && !text.isEmpty() && text.at(0).isPrint();
        if (isLetter) {
            m_input.typed += text;
        }
        return isLetter;
    }
    for (const GameKey key : keys) {
        if (!event.isAutoRepeat() || repeats(key)) {
            m_input.pressed.append(key);
        }
    }
    m_down.insert(event.key(), keys);
    return true;
}

bool Keys::release(const QKeyEvent &event)
{
    // A key that repeats is let go and pressed again in between.
    return event.isAutoRepeat() || m_down.remove(event.key()) > 0;
}

void Keys::strike(GameKey key)
{
    m_input.pressed.append(key);
}

Input Keys::take()
{
    Input input = std::exchange(m_input, {});
    for (const QVector<GameKey> &keys : std::as_const(m_down)) {
        input.held += keys;
    }
    return input;
}

void Keys::letGo()
{
    m_down.clear();
    m_input = {};
}

} // namespace player
