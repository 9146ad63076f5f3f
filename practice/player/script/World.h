#pragma once

#include "player/game/GameData.h"
#include "player/game/GameState.h"

#include <QVector>

namespace player {

/// The map that the game is on, with its events as they are now: which page of each holds, where it stands,
/// and who is in whose way.
class World
{
public:
    struct Event
    {
        const MapEvent *entry = nullptr;
        /// nullptr while no page holds.
        const EventPage *page = nullptr;
        /// From 1; 0 for none.
        int pageNumber = 0;
        Character character;
        bool isErased = false;
        /// Its commands run: it stands still, and does not begin once more.
        bool isBusy = false;
        /// The next step of the page's own route.
        int ownStep = 0;
    };

    /// Both have to outlive it.
    World(const GameData *data, GameState *state);

    /// The events stand as the data file of the state's map has them.
    void enter();
    /// nullptr when there is no such map, or it has no cells.
    [[nodiscard]] const MapData *map() const { return m_map; }

    /// Gives each event the last page whose conditions hold.
    void refresh();

    [[nodiscard]] QVector<Event> &events() { return m_events; }
    [[nodiscard]] const QVector<Event> &events() const { return m_events; }
    /// nullptr when there is none.
    [[nodiscard]] Event *event(int id);
    /// The hero, or an event that is there; nullptr for others.
    [[nodiscard]] Character *character(int id);
    void erase(int id);

    /// Whether nothing is in the way of @p who on this cell.
    [[nodiscard]] bool canEnter(const Character &who, const QPoint &cell) const;
    /// The event is there and stands in the way.
    [[nodiscard]] static bool isObstacle(const Event &event);

    /// The events that walked into the hero since the last call.
    [[nodiscard]] QVector<int> takeMeetings();
    void addMeeting(int event) { m_meetings.append(event); }

    [[nodiscard]] GameState &state() { return *m_state; }

private:
    [[nodiscard]] bool holds(const Event &event, const PageConditions &conditions) const;
    static void takePage(Event *event, int number);

    const GameData *m_data;
    GameState *m_state;
    const MapData *m_map = nullptr;
    QVector<Event> m_events;
    QVector<int> m_meetings;
};

} // namespace player
