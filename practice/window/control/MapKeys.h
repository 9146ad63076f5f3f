#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>

class MapView;

/// Lets the map be used from the keyboard: the arrow keys move the marked cell, Space is the left mouse
/// button there, which is held while it is held, and the return key is a double click.
class MapKeys : public QObject
{
    Q_OBJECT

public:
    /// For @p view, which owns the keys.
    explicit MapKeys(MapView *view);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(int key, bool isRepeated);
    void moveBy(const QPoint &step);
    void letGo();
    void send(QEvent::Type type, Qt::MouseButton button);

    MapView *m_view;
    /// Space is held.
    bool m_isDown = false;
};
