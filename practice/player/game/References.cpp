#include "player/game/References.h"

#include <QCoreApplication>

namespace player::References {

namespace {

QString said(const char *text, const QString &name, int number)
{
    return QCoreApplication::translate("TestPlay", text).arg(name, QString::number(number));
}

/// Whether a number leads nowhere; 0 is nothing that one could look for.
template<typename T>
bool isWild(const Entries<T> &entries, int id)
{
    return id != 0 && entries.find(id) == nullptr;
}

class Check
{
public:
    explicit Check(GameData *data)
        : m_data(data)
    {
    }

    void actors()
    {
        each(m_data->actors, "data/Actors.json", [this](const ActorEntry &actor) {
            if (m_data->classes.find(actor.classId) == nullptr) {
                tell(said(QT_TRANSLATE_NOOP("TestPlay",
                                            "The actor “%1” has class %2, which is not there: no HP and "
                                            "MP grow, and no skills are learned."),
                          actor.name, actor.classId));
            }
            if (isWild(m_data->weapons, actor.weapon)) {
                tell(said(QT_TRANSLATE_NOOP("TestPlay",
                                            "The actor “%1” begins with weapon %2, which is not there."),
                          actor.name, actor.weapon));
            }
            if (isWild(m_data->armors, actor.armor)) {
                tell(said(
                    QT_TRANSLATE_NOOP("TestPlay", "The actor “%1” begins with armor %2, which is not there."),
                    actor.name, actor.armor));
            }
        });
    }

    void classes()
    {
        each(m_data->classes, "data/Classes.json", [this](const ClassEntry &entry) {
            for (const Learning &learning : entry.learnings) {
                if (isWild(m_data->skills, learning.skill)) {
                    tell(said(
                        QT_TRANSLATE_NOOP("TestPlay", "The class “%1” learns skill %2, which is not there."),
                        entry.name, learning.skill));
                }
            }
        });
    }

    void skillsAndItems()
    {
        each(m_data->skills, "data/Skills.json", [this](const SkillEntry &entry) {
            effects(entry);
            if (isWild(m_data->animations, entry.animation)) {
                tell(said(
                    QT_TRANSLATE_NOOP("TestPlay", "The skill “%1” shows animation %2, which is not there."),
                    entry.name, entry.animation));
            }
        });
        each(m_data->items, "data/Items.json", [this](const ItemEntry &entry) { effects(entry); });
    }

    /// Without a file of their own, a project has the editor's tile sets.
    void tileSets()
    {
        const QList<int> maps = m_data->tileSets.ids().isEmpty() ? QList<int>() : m_data->maps.ids();
        for (const int id : maps) {
            const MapData &map = *m_data->maps.find(id);
            if (m_data->tileSets.find(map.tileSet) == nullptr) {
                m_file = QStringLiteral("data/Map%1.json").arg(id, 3, 10, QLatin1Char('0'));
                tell(said(QT_TRANSLATE_NOOP("TestPlay",
                                            "The map “%1” has tile set %2, which is not there: its tiles "
                                            "have their usual colours."),
                          map.name, map.tileSet),
                     id);
            }
        }
    }

    void enemies()
    {
        each(m_data->enemies, "data/Enemies.json", [this](const EnemyEntry &enemy) {
            for (const Drop &drop : enemy.drops) {
                if (isWild(m_data->items, drop.item)) {
                    tell(said(
                        QT_TRANSLATE_NOOP("TestPlay", "The enemy “%1” drops item %2, which is not there."),
                        enemy.name, drop.item));
                }
            }
        });
    }

private:
    template<typename T, typename Look>
    void each(const Entries<T> &entries, const char *file, const Look &look)
    {
        m_file = QString::fromLatin1(file);
        const QList<int> ids = entries.ids();
        for (const int id : ids) {
            look(*entries.find(id));
        }
    }

    template<typename T>
    void effects(const T &entry)
    {
        for (const NamedNumber &effect : entry.effects) {
            const bool isState =
                effect.name == QLatin1String("addState") || effect.name == QLatin1String("removeState");
            if (isState && isWild(m_data->states, effect.value)) {
                tell(said(
                    QT_TRANSLATE_NOOP("TestPlay", "An effect of “%1” names state %2, which is not there."),
                    entry.name, effect.value));
            } else if (effect.name == QLatin1String("learnSkill") && isWild(m_data->skills, effect.value)) {
                tell(said(
                    QT_TRANSLATE_NOOP("TestPlay", "An effect of “%1” names skill %2, which is not there."),
                    entry.name, effect.value));
            } else if (effect.name == QLatin1String("commonEvent") &&
                       isWild(m_data->commonEvents, effect.value)) {
                tell(said(QT_TRANSLATE_NOOP("TestPlay",
                                            "An effect of “%1” names common event %2, which is not there."),
                          entry.name, effect.value));
            }
        }
    }

    void tell(const QString &text, int map = 0)
    {
        Problem problem;
        problem.file = m_file;
        problem.map = map;
        problem.text = text;
        m_data->problems.append(problem);
    }

    GameData *m_data;
    QString m_file;
};

} // namespace

void check(GameData *data)
{
    Check check(data);
    check.actors();
    check.classes();
    check.skillsAndItems();
    check.enemies();
    check.tileSets();
}

} // namespace player::References
