#include "player/scene/BattleWords.h"

#include "player/battle/Fighters.h"
#include "player/game/GameData.h"
#include "player/game/GameState.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

constexpr int kCannotAct = 4;

} // namespace

QString BattleWords::of(const Note &note, const Fighters &fighters, const GameData &data)
{
    const QString name = fighters.name(note.who);
    const QString points = QString::number(note.amount);
    switch (note.kind) {
    case Note::Kind::kAttacks:
        //: %1 is somebody's name.
        return tr("%1 attacks!").arg(name);
    case Note::Kind::kUsesSkill: {
        const SkillEntry *skill = data.skills.find(note.id);
        if (skill != nullptr && !skill->message.isEmpty()) {
            return name + skill->message;
        }
        //: %1 is somebody's name, %2 that of a skill or an item.
        return tr("%1 uses %2!").arg(name, data.skills.name(note.id));
    }
    case Note::Kind::kUsesItem:
        return tr("%1 uses %2!").arg(name, data.items.name(note.id));
    case Note::Kind::kGuards:
        //: %1 is somebody's name.
        return tr("%1 guards.").arg(name);
    case Note::Kind::kLosesHp:
        //: %1 is somebody's name, %2 a number of points.
        return tr("%1 takes %2 damage.").arg(name, points);
    case Note::Kind::kGainsHp:
        //: %1 is somebody's name, %2 a number of points.
        return tr("%1 recovers %2 HP.").arg(name, points);
    case Note::Kind::kLosesMp:
        //: %1 is somebody's name, %2 a number of points.
        return tr("%1 loses %2 MP.").arg(name, points);
    case Note::Kind::kGainsMp:
        //: %1 is somebody's name, %2 a number of points.
        return tr("%1 recovers %2 MP.").arg(name, points);
    case Note::Kind::kGetsState:
    case Note::Kind::kLosesState:
    case Note::Kind::kKeepsState:
        return stateText(note, name, data);
    case Note::Kind::kLearns:
        //: %1 is somebody's name, %2 that of a skill.
        return tr("%1 learns %2!").arg(name, data.skills.name(note.id));
    case Note::Kind::kNoEffect:
        //: %1 is somebody's name.
        return tr("Nothing happens to %1.").arg(name);
    case Note::Kind::kCannotPay:
        //: %1 is somebody's name, %2 that of a skill.
        return tr("%1 cannot use %2 now.").arg(name, data.skills.name(note.id));
    case Note::Kind::kFlees:
        return tr("You get away safely!");
    case Note::Kind::kCannotFlee:
        return tr("You cannot get away!");
    }
    return {};
}

QString BattleWords::stateText(const Note &note, const QString &name, const GameData &data)
{
    const StateEntry *state = data.states.find(note.id);
    int message = note.who.isEnemy ? 1 : 0;
    if (note.kind == Note::Kind::kKeepsState) {
        message = 2;
    } else if (note.kind == Note::Kind::kLosesState) {
        message = 3;
    }
    if (state != nullptr && !state->messages[message].isEmpty()) {
        return name + state->messages[message];
    }
    if (note.kind == Note::Kind::kGetsState && note.id == Actor::kKnockedOut) {
        //: %1 is the name of somebody who has no HP left.
        return tr("%1 falls!").arg(name);
    }
    if (note.kind == Note::Kind::kKeepsState && state != nullptr && state->restriction >= kCannotAct) {
        //: %1 is somebody's name.
        return tr("%1 cannot act.").arg(name);
    }
    return {};
}

QStringList BattleWords::appear(const Fighters &fighters)
{
    QStringList lines;
    const QVector<Fighter> troop = fighters.standing(true);
    for (const Fighter &enemy : troop) {
        //: %1 is the name of an enemy.
        lines.append(tr("%1 appears!").arg(fighters.name(enemy)));
    }
    return lines;
}

QStringList BattleWords::won(const Spoils &spoils, const QVector<Rise> &rises, const GameState &state,
                             const GameData &data)
{
    QStringList lines{tr("You have won!")};
    if (spoils.gold > 0) {
        //: %1 is an amount of money with its unit.
        lines.append(tr("You get %1.").arg(Terms::gold(spoils.gold, data)));
    }
    for (auto item = spoils.items.cbegin(); item != spoils.items.cend(); ++item) {
        //: %1 is the name of an item, %2 how many of it.
        lines.append(tr("You find %1 × %2.").arg(data.items.name(item.key()), QString::number(item.value())));
    }
    for (const Rise &rise : rises) {
        const Actor *actor = state.knownActor(rise.actor);
        const QString name = actor != nullptr ? actor->name : QString();
        if (rise.exp > 0) {
            //: %1 is somebody's name, %2 a number of points of experience.
            lines.append(tr("%1 gets %2 EXP.").arg(name, QString::number(rise.exp)));
        }
        if (rise.to > rise.from) {
            //: %1 is somebody's name, %2 a number.
            lines.append(tr("%1 is now level %2!").arg(name, QString::number(rise.to)));
        }
        for (const int skill : rise.skills) {
            lines.append(tr("%1 learns %2!").arg(name, data.skills.name(skill)));
        }
    }
    return lines;
}

QString BattleWords::lost()
{
    return tr("You have been defeated…");
}

} // namespace player
