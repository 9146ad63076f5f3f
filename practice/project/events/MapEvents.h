#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QPoint>
#include <QSize>
#include <QVector>

/// The events of one map's data file. Each has a number, its place in the list, which it keeps; a cell holds
/// one. Cells are (column, row) from the top left. Members that nobody knows stay what they are.
class MapEvents
{
public:
    struct Event
    {
        int number = 0;
        QPoint cell;
        QString name;
        /// Name of the picture that its first page shows; empty for none.
        QString picture;
    };

    /// The list of the events of the map on show, as a path.
    static QString path();

    explicit MapEvents(const QJsonValue &mapFile);

    /// The data file with these events.
    [[nodiscard]] QJsonValue toFile() const;

    [[nodiscard]] QVector<Event> all() const;
    /// Number of the event on the cell; 0 for none.
    [[nodiscard]] int at(const QPoint &cell) const;
    /// The event with this number; empty where there is none.
    [[nodiscard]] QJsonObject event(int number) const;
    /// Whether the cell is on the map and holds no event.
    [[nodiscard]] bool isFree(const QPoint &cell) const;

    /// Puts an event like this one on the cell and gives its number, the lowest that is free.
    int add(const QJsonObject &event, const QPoint &cell);
    void remove(int number);
    void move(int number, const QPoint &cell);
    void rename(int number, const QString &name);

    /// Moves the events that stand outside of a map of this size to the nearest cells that are free; one for
    /// which there is none goes.
    void keepInside(const QSize &size);
    /// How many stand outside of it.
    [[nodiscard]] int countOutside(const QSize &size) const;

    /// An event with one page, and a page, that say nothing.
    [[nodiscard]] static QJsonObject blank(const QString &name);
    [[nodiscard]] static QJsonObject blankPage();

private:
    [[nodiscard]] static QPoint cellOf(const QJsonValue &event);
    [[nodiscard]] QPoint nearestFree(const QPoint &cell) const;

    QJsonObject m_file;
    QSize m_size;
    QJsonArray m_events;
};
