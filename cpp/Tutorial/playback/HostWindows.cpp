#include "Tutorial/playback/HostWindows.h"

QString HostWindows::current() const
{
    return m_stack.isEmpty() ? QStringLiteral("ApplicationWindow") : m_stack.last();
}

bool HostWindows::pop()
{
    if (m_stack.isEmpty()) {
        return false;
    }
    m_stack.removeLast();
    return true;
}

bool HostWindows::popPopup()
{
    return !m_stack.isEmpty() && m_stack.last() == QLatin1String("Popup") && pop();
}

void HostWindows::setPosition(const QString &key, const QPoint &position)
{
    if (!key.isEmpty()) {
        m_positions.insert(key, position);
    }
}
