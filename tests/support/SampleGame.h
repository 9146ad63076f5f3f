#pragma once

#include "SampleGround.h"

#include <QPair>
#include <QSet>
#include <QStringList>

#include <set>

namespace sample {

/// Plays a step by its events, the way somebody does who talks to everybody, says yes, wins every battle and
/// goes everywhere. Of a battle counts that it took place; money, movement by chance and time do not.
class Game
{
public:
    explicit Game(const Files &files);

    /// Goes on until there is nothing new to do.
    void play();

    /// The ending has been shown.
    bool hasEnded() const { return m_hasEnded; }
    QSet<int> switches() const { return m_switches; }
    QSet<int> party() const { return m_party; }
    QSet<int> troopsFought() const { return m_troops; }
    /// How many the party holds of an item.
    int items(int item) const { return m_items.value(item); }
    /// What nobody should meet: an event that begins by itself for ever, a walk into a wall, an item given
    /// that is not there.
    QStringList errors() const { return m_errors; }

private:
    struct Scene
    {
        QString event;
        Place place;
        QJsonObject page;
        int pageNumber = 0;
    };

    /// What can be done from where the player is, on this map and those that transfers lead to.
    struct Chances
    {
        QVector<Scene> talks;
        /// Where the player stands to talk.
        QVector<Place> stands;
        /// Where the player enters a map on which something begins by itself.
        QVector<Place> entries;
    };

    QVector<Scene> scenes(int map) const;
    QVector<Scene> scenes(int map, int trigger) const;
    bool isPage(const QJsonObject &page, const QString &event) const;
    bool canStand(const Place &place) const;
    Chances chances() const;
    bool beginsByItself();
    bool talks();
    bool goes();
    void run(const Scene &scene);
    void runCommon(int id);
    void runCommand(const Scene &scene, int code, const QJsonArray &parameters);
    void give(int item, bool away, int count);
    void walk(const Scene &scene, const QJsonArray &parameters);
    QPair<QSet<int>, QSet<QString>> state() const { return {m_switches, m_selfSwitches}; }

    Files m_files;
    Ground m_ground;
    Place m_player;
    QSet<int> m_switches;
    QSet<QString> m_selfSwitches;
    QSet<int> m_party;
    QSet<int> m_troops;
    QMap<int, int> m_items;
    QSet<QString> m_done;
    QStringList m_errors;
    bool m_hasEnded = false;
};

} // namespace sample
