#pragma once

#include "player/game/Database.h"
#include "player/game/MapData.h"
#include "player/game/Problem.h"

#include <QJsonValue>
#include <QMap>

namespace player {

/// Entries by their numbers.
template<typename T>
class Entries
{
public:
    /// nullptr when there is none.
    [[nodiscard]] const T *find(int id) const
    {
        const auto entry = m_entries.constFind(id);
        return entry == m_entries.constEnd() ? nullptr : &*entry;
    }
    [[nodiscard]] QString name(int id) const
    {
        const T *entry = find(id);
        return entry != nullptr ? entry->name : QString();
    }
    [[nodiscard]] QList<int> ids() const { return m_entries.keys(); }
    [[nodiscard]] bool isEmpty() const { return m_entries.isEmpty(); }
    void insert(const T &entry) { m_entries.insert(entry.id, entry); }

private:
    QMap<int, T> m_entries;
};

/// A project's data files, read once and defensively: whatever they hold, the result can be played, if only
/// to say what is wrong.
struct GameData
{
    /// Data files by name, such as "data/Items.json".
    using Files = QMap<QString, QJsonValue>;

    Entries<ActorEntry> actors;
    Entries<ClassEntry> classes;
    Entries<SkillEntry> skills;
    Entries<ItemEntry> items;
    Entries<GearEntry> weapons;
    Entries<GearEntry> armors;
    Entries<EnemyEntry> enemies;
    Entries<TroopEntry> troops;
    Entries<StateEntry> states;
    Entries<AnimationEntry> animations;
    Entries<TileSetEntry> tileSets;
    Entries<CommonEventEntry> commonEvents;
    Entries<MapData> maps;
    SystemEntry system;
    /// Tells this project's data from others, and from what they were before a change: of a save game.
    QString fingerprint;
    /// What is missing, or wrong as a whole.
    QVector<Problem> problems;
};

} // namespace player
