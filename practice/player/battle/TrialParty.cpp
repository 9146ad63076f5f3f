#include "player/battle/TrialParty.h"

#include "player/game/GameData.h"
#include "player/game/GameState.h"

namespace player {

void joinTrialParty(const GameData &data, GameState *state)
{
    const QVector<TestBattler> &battlers = data.system.testBattlers;
    if (battlers.isEmpty()) {
        return;
    }
    state->party.clear();
    for (const TestBattler &battler : battlers) {
        if (state->party.contains(battler.actor)) {
            continue; // nobody fights at two places
        }
        state->join(battler.actor, data, true);
        Actor *actor = state->actor(battler.actor, data);
        if (actor == nullptr) {
            continue;
        }
        actor->changeLevel(battler.level - actor->level, data);
        actor->weapon = data.weapons.find(battler.weapon) != nullptr ? battler.weapon : 0;
        actor->armor = data.armors.find(battler.armor) != nullptr ? battler.armor : 0;
        actor->recoverAll(data);
    }
}

} // namespace player
