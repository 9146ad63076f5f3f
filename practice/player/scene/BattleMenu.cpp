#include "player/scene/BattleMenu.h"

#include "player/battle/Battle.h"
#include "player/battle/Effects.h"
#include "player/game/GameData.h"
#include "player/game/GameState.h"
#include "player/scene/Terms.h"

namespace player {

namespace {

const QRect kCommandRect(8, 184, 180, 168);
const QRect kWideRect(8, 208, 624, 144);
const QRect kTargetRect = kCommandRect;

} // namespace

void BattleMenu::begin(const Battle &battle)
{
    m_asked.clear();
    m_open.clear();
    m_place = 0;
    m_isListed = false;
    const QVector<Fighter> party = battle.fighters().party();
    for (const Fighter &fighter : party) {
        if (battle.asks(fighter)) {
            m_asked.append(fighter);
        }
    }
}

Fighter BattleMenu::asked() const
{
    return m_place < m_asked.size() ? m_asked.at(m_place) : Fighter();
}

bool BattleMenu::isWide() const
{
    const Step step = m_open.isEmpty() ? Step::kCommands : m_open.constLast().step;
    return step == Step::kSkills || step == Step::kItems;
}

Fighter BattleMenu::aimedAt() const
{
    if (m_open.isEmpty() || m_open.constLast().step != Step::kTargets) {
        return {};
    }
    const ListRow *row = m_open.constLast().list.current();
    return row != nullptr ? Fighter{m_isAimingAtEnemies, row->value} : Fighter();
}

BattleMenu::Answer BattleMenu::tick(const Input &input, Battle *battle, const GameData &data,
                                    const GameState &state)
{
    if (m_place >= m_asked.size()) {
        return Answer::kReady;
    }
    if (!m_isListed) {
        listCommands(*battle, data, state);
        return Answer::kNone;
    }
    switch (m_open.last().list.tick(input)) {
    case RowCursor::Result::kChosen:
        return chosen(battle, data, state);
    case RowCursor::Result::kCancelled:
        back(battle, data, state);
        return Answer::kNone;
    default:
        return Answer::kNone;
    }
}

BattleMenu::Answer BattleMenu::chosen(Battle *battle, const GameData &data, const GameState &state)
{
    const int value = m_open.constLast().list.current()->value;
    switch (m_open.constLast().step) {
    case Step::kCommands:
        return chosenCommand(value, battle, data, state);
    case Step::kSkills:
        m_deed = {Deed::Kind::kSkill, asked(), value, {}};
        return aim(battle, data.skills.find(value)->scope);
    case Step::kItems:
        m_deed = {Deed::Kind::kItem, asked(), value, {}};
        return aim(battle, Effects::scopeOf(*data.items.find(value)));
    case Step::kTargets:
        m_deed.target = {m_isAimingAtEnemies, value};
        break;
    }
    return give(battle);
}

BattleMenu::Answer BattleMenu::chosenCommand(int command, Battle *battle, const GameData &data,
                                             const GameState &state)
{
    m_deed = {Deed::Kind::kAttack, asked(), 0, {}};
    switch (command) {
    case kAttack:
        return aim(battle, kScopeEnemy);
    case kSkills:
        listSkills(*battle, data);
        return Answer::kNone;
    case kItems:
        listItems(data, state);
        return Answer::kNone;
    case kGuard:
        m_deed.kind = Deed::Kind::kGuard;
        return give(battle);
    default:
        return Answer::kFlee;
    }
}

BattleMenu::Answer BattleMenu::aim(Battle *battle, int scope)
{
    if (scope != kScopeEnemy && scope != kScopeAlly) {
        return give(battle);
    }
    listTargets(battle->fighters(), scope == kScopeEnemy);
    return Answer::kNone;
}

BattleMenu::Answer BattleMenu::give(Battle *battle)
{
    battle->give(m_deed);
    ++m_place;
    m_open.clear();
    m_isListed = false;
    return m_place >= m_asked.size() ? Answer::kReady : Answer::kNone;
}

void BattleMenu::back(Battle *battle, const GameData &data, const GameState &state)
{
    if (m_open.size() > 1) {
        m_open.removeLast();
    } else if (m_place > 0) {
        --m_place;
        listCommands(*battle, data, state);
    }
}

void BattleMenu::open(Step step, const ListPanel &list)
{
    m_open.append({step, list});
}

void BattleMenu::listCommands(const Battle &battle, const GameData &data, const GameState &state)
{
    const Actor *actor = battle.fighters().actor(asked());
    const bool hasSkills = actor != nullptr && !actor->usableSkills(data).isEmpty();
    ListPanel list(QStringLiteral("commands"), kCommandRect);
    list.setTitle(battle.fighters().name(asked()));
    list.setRows({
        {tr("Attack"), {}, tr("Hits an enemy with the weapon."), {}, kAttack},
        {Terms::skills(), {}, tr("Uses a skill."), hasSkills ? QString() : tr("No skills yet."), kSkills},
        {Terms::items(),
         {},
         tr("Uses an item from the bag."),
         state.items.isEmpty() ? tr("The bag is empty.") : QString(),
         kItems},
        {tr("Guard"), {}, tr("Halves the damage of this turn."), {}, kGuard},
        {tr("Flee"),
         {},
         tr("All of you try to get away."),
         battle.canFlee() ? QString() : tr("There is no way out of this battle."),
         kFlee},
    });
    m_open.clear();
    open(Step::kCommands, list);
    m_isListed = true;
}

void BattleMenu::listSkills(const Battle &battle, const GameData &data)
{
    const Actor *actor = battle.fighters().actor(asked());
    QVector<ListRow> rows;
    const QVector<int> skills = actor->usableSkills(data);
    for (const int id : skills) {
        const SkillEntry *skill = data.skills.find(id);
        if (skill == nullptr) {
            continue;
        }
        const QString cost = QStringLiteral("%1 MP").arg(skill->mpCost);
        const QString reason = battle.fighters().canUse(asked(), *skill) ? QString() : tr("Not enough MP.");
        rows.append({skill->name, skill->mpCost > 0 ? cost : QString(), skill->description, reason, id});
    }
    ListPanel list(QStringLiteral("skills"), kWideRect, 2);
    list.setEmptyText(tr("No skills yet."));
    list.setRows(rows);
    open(Step::kSkills, list);
}

void BattleMenu::listItems(const GameData &data, const GameState &state)
{
    QVector<ListRow> rows;
    for (auto held = state.items.cbegin(); held != state.items.cend(); ++held) {
        const ItemEntry *item = data.items.find(held.key());
        if (item != nullptr && held.value() > 0) {
            const QString reason = item->effects.isEmpty() ? tr("This cannot be used here.") : QString();
            rows.append({item->name, QStringLiteral("× %1").arg(held.value()), item->description, reason,
                         held.key()});
        }
    }
    ListPanel list(QStringLiteral("items"), kWideRect, 2);
    list.setEmptyText(tr("The bag is empty."));
    list.setRows(rows);
    open(Step::kItems, list);
}

void BattleMenu::listTargets(const Fighters &fighters, bool ofEnemies)
{
    m_isAimingAtEnemies = ofEnemies;
    QVector<ListRow> rows;
    const QVector<Fighter> possible = ofEnemies ? fighters.standing(true) : fighters.party();
    for (const Fighter &fighter : possible) {
        rows.append({fighters.name(fighter), {}, tr("Whom?"), {}, fighter.place});
    }
    ListPanel list(ofEnemies ? QStringLiteral("enemies") : QStringLiteral("party"), kTargetRect);
    list.setRows(rows);
    open(Step::kTargets, list);
}

void BattleMenu::show(Frame *frame) const
{
    if (m_open.isEmpty()) {
        return;
    }
    frame->panels.append(ListPanel::helpPanel(m_open.constLast().list.help()));
    frame->panels.append(m_open.constLast().list.panel());
}

} // namespace player
