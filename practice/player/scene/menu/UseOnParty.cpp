#include "player/scene/menu/UseOnParty.h"

#include "player/battle/Effects.h"
#include "player/battle/Fighters.h"
#include "player/scene/Game.h"
#include "player/scene/menu/PartyPanel.h"

#include <algorithm>

namespace player {

namespace {

/// Takes points from somebody, or says of which element it is.
bool isForBattle(const NamedNumber &effect)
{
    const bool isPoints = effect.name == QLatin1String("hp") || effect.name == QLatin1String("mp");
    return effect.name == QLatin1String("element") || (isPoints && effect.value <= 0);
}

} // namespace

UseOnParty::UseOnParty()
    : m_list(QStringLiteral("party"), PartyPanel::kRect)
{
}

QString UseOnParty::reasonAgainst(const NamedNumbers &effects, int scope)
{
    const bool isOfUse = std::any_of(effects.cbegin(), effects.cend(),
                                     [](const NamedNumber &effect) { return !isForBattle(effect); });
    const bool isEvent = !Effects::valuesOf(effects, "commonEvent").isEmpty();
    const bool isForAllies = scope == kScopeAlly || scope == kScopeAllies || scope == kScopeUser;
    if (effects.isEmpty() && scope != kScopeEnemy && scope != kScopeEnemies) {
        return tr("It cannot be used.");
    }
    return isOfUse && (isForAllies || isEvent) ? QString() : tr("It is of use in battle only.");
}

void UseOnParty::begin(const NamedNumbers &effects, int scope, int doer, const Game &game)
{
    m_effects = effects;
    m_scope = scope;
    m_doer = doer;
    m_hasWorked = false;
    m_commonEvent = Effects::valuesOf(effects, "commonEvent").value(0);
    m_isAsking = true;
    m_list.setRows(PartyPanel::rows(game.state(), game.data()));
}

QString UseOnParty::help() const
{
    return tr("Use it on whom?");
}

UseOnParty::Result UseOnParty::tick(const Input &input, Game *game)
{
    if (m_scope != kScopeAlly) {
        m_isAsking = false;
        const int count = int(game->state().fighters().size());
        for (int place = 0; place < count; ++place) {
            if (m_scope == kScopeAllies || (m_scope == kScopeUser && place == m_doer)) {
                use(place, game);
            }
        }
        m_hasWorked = m_hasWorked || m_commonEvent > 0;
        return Result::kUsed;
    }
    switch (m_list.tick(input)) {
    case RowCursor::Result::kChosen:
        m_isAsking = false;
        use(m_list.current()->value, game);
        m_hasWorked = m_hasWorked || m_commonEvent > 0;
        return Result::kUsed;
    case RowCursor::Result::kCancelled:
        m_isAsking = false;
        return Result::kCancelled;
    default:
        return Result::kNone;
    }
}

void UseOnParty::use(int target, Game *game)
{
    Fighters party(game->data(), &game->state(), nullptr);
    const QVector<Note> notes = Effects::apply(
        {game->data(), &party, &game->state().random, {false, m_doer}, {false, target}, false}, m_effects);
    m_hasWorked = m_hasWorked || !notes.isEmpty();
}

} // namespace player
