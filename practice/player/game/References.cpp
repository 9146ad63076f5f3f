#include "player/game/References.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace player::References {

namespace {

QString said(const char *text, const QString &name, const QString &what)
{
    return QCoreApplication::translate("TestPlay", text).arg(name, what);
}

QString said(const char *text, const QString &name, int number)
{
    return said(text, name, QString::number(number));
}

/// Whether a number leads nowhere; 0 is nothing that one could look for.
template<typename T>
bool isWild(const Entries<T> &entries, int id)
{
    return id != 0 && entries.find(id) == nullptr;
}

template<std::size_t count>
bool isOneOf(const QString &name, const std::array<const char *, count> &names)
{
    return std::any_of(names.cbegin(), names.cend(),
                       [&name](const char *known) { return name == QLatin1String(known); });
}

constexpr std::array<const char *, 15> kTraits = {
    "hpRate",     "mpRate",      "attackRate",    "defenseRate", "agilityRate",
    "expRate",    "resistState", "attackState",   "addSkill",    "sealSkill",
    "hpEachTurn", "mpEachTurn",  "attackElement", "weakTo",      "resistsElement"};
constexpr std::array<const char *, 7> kEffects = {"hp",         "mp",          "addState", "removeState",
                                                  "learnSkill", "commonEvent", "element"};
/// An enemy uses the skills of its actions, and wins no EXP.
constexpr std::array<const char *, 2> kOfActorsOnly = {"addSkill", "expRate"};
constexpr std::array<const char *, 5> kTitleCommands = {"newGame", "continue", "options", "credits", "quit"};
constexpr std::array<int, 6> kScopes = {kScopeNone, kScopeEnemy,  kScopeEnemies,
                                        kScopeAlly, kScopeAllies, kScopeUser};

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
            traits(entry);
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
            if (std::find(kScopes.cbegin(), kScopes.cend(), entry.scope) == kScopes.cend()) {
                tell(said(QT_TRANSLATE_NOOP(
                              "TestPlay", "The skill “%1” has the target %2, which there is not: it concerns "
                                          "nobody."),
                          entry.name, entry.scope));
            }
            if (isWild(m_data->animations, entry.animation)) {
                tell(said(
                    QT_TRANSLATE_NOOP("TestPlay", "The skill “%1” shows animation %2, which is not there."),
                    entry.name, entry.animation));
            }
        });
        each(m_data->items, "data/Items.json", [this](const ItemEntry &entry) { effects(entry); });
    }

    void gearAndStates()
    {
        each(m_data->weapons, "data/Weapons.json", [this](const GearEntry &entry) { traits(entry); });
        each(m_data->armors, "data/Armors.json", [this](const GearEntry &entry) { traits(entry); });
        each(m_data->states, "data/States.json", [this](const StateEntry &entry) { traits(entry); });
    }

    void system()
    {
        m_file = QStringLiteral("data/System.json");
        m_entry = 0;
        const SystemEntry &system = m_data->system;
        for (const TestBattler &battler : system.testBattlers) {
            if (m_data->actors.find(battler.actor) == nullptr) {
                tell(QCoreApplication::translate("TestPlay",
                                                 "Actor %1 of the party for trial battles is not there.")
                         .arg(battler.actor));
            }
        }
        for (const TitleCommand &command : system.titleCommands) {
            if (!isOneOf(command.command, kTitleCommands)) {
                tell(QCoreApplication::translate("TestPlay",
                                                 "The title screen has the command “%1”, which there is not.")
                         .arg(command.command));
            }
        }
        const QString spoken =
            QCoreApplication::translate("TestPlay", "en_US", "the locale that this translation is in");
        if (!system.locale.isEmpty() && system.locale != spoken) {
            tell(QCoreApplication::translate(
                     "TestPlay", "The game's language is set to %1. Test play says its own words, "
                                 "such as those of menus, in the language of the editor.")
                     .arg(system.locale));
        }
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
            traits(enemy);
            for (const NamedNumber &trait : enemy.traits) {
                if (isOneOf(trait.name, kOfActorsOnly)) {
                    tell(said(QT_TRANSLATE_NOOP(
                                  "TestPlay", "The trait “%2” makes no difference to the enemy “%1”: enemies "
                                              "use the skills of their actions, and win no EXP."),
                              enemy.name, trait.name));
                }
            }
            for (const EnemyAction &action : enemy.actions) {
                if (m_data->skills.find(action.skill) == nullptr) {
                    tell(said(
                        QT_TRANSLATE_NOOP("TestPlay",
                                          "An action of the enemy “%1” uses skill %2, which is not there."),
                        enemy.name, action.skill));
                }
            }
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
            m_entry = id;
            look(*entries.find(id));
        }
    }

    template<typename T>
    void traits(const T &entry)
    {
        for (const NamedNumber &trait : entry.traits) {
            const bool isState =
                trait.name == QLatin1String("resistState") || trait.name == QLatin1String("attackState");
            const bool isSkill =
                trait.name == QLatin1String("addSkill") || trait.name == QLatin1String("sealSkill");
            if (!isOneOf(trait.name, kTraits)) {
                tell(said(QT_TRANSLATE_NOOP("TestPlay", "“%1” has the trait “%2”, which there is not."),
                          entry.name, trait.name));
            } else if (isState && isWild(m_data->states, trait.value)) {
                tell(
                    said(QT_TRANSLATE_NOOP("TestPlay", "A trait of “%1” names state %2, which is not there."),
                         entry.name, trait.value));
            } else if (isSkill && isWild(m_data->skills, trait.value)) {
                tell(
                    said(QT_TRANSLATE_NOOP("TestPlay", "A trait of “%1” names skill %2, which is not there."),
                         entry.name, trait.value));
            }
        }
    }

    template<typename T>
    void effects(const T &entry)
    {
        for (const NamedNumber &effect : entry.effects) {
            const bool isState =
                effect.name == QLatin1String("addState") || effect.name == QLatin1String("removeState");
            if (!isOneOf(effect.name, kEffects)) {
                tell(said(QT_TRANSLATE_NOOP("TestPlay", "“%1” has the effect “%2”, which there is not."),
                          entry.name, effect.name));
            } else if (isState && isWild(m_data->states, effect.value)) {
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
        problem.entry = map > 0 ? 0 : m_entry;
        problem.text = text;
        m_data->problems.append(problem);
    }

    GameData *m_data;
    QString m_file;
    /// Number of the entry that is looked at.
    int m_entry = 0;
};

} // namespace

void check(GameData *data)
{
    Check check(data);
    check.actors();
    check.classes();
    check.skillsAndItems();
    check.gearAndStates();
    check.enemies();
    check.system();
    check.tileSets();
}

} // namespace player::References
