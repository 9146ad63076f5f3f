#pragma once

#include <QHash>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

/// What the host editor has told of its windows: which are open, where they and their controls are.
/// All positions are global screen pixels, as the host editor sent them.
class HostWindows
{
public:
    /// Key of the window on top; "ApplicationWindow" when no window is open.
    [[nodiscard]] QString current() const;

    void push(const QString &windowKey) { m_stack.append(windowKey); }

    /// Takes the top entry away. False when there was none.
    bool pop();

    /// Takes the top entry away if it is an open popup. False when it is not.
    bool popPopup();

    void clear() { m_stack.clear(); }

    /// Remembers where a window or control is; an empty key is not remembered.
    void setPosition(const QString &key, const QPoint &position);

    /// The position under the key, (0, 0) when there is none.
    [[nodiscard]] QPoint position(const QString &key) const { return m_positions.value(key); }

    void setApplicationSize(const QSize &size) { m_applicationSize = size; }
    [[nodiscard]] QSize applicationSize() const { return m_applicationSize; }

private:
    QStringList m_stack;
    QHash<QString, QPoint> m_positions;
    QSize m_applicationSize{0, 0};
};
