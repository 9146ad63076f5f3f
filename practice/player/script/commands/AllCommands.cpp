#include "player/script/commands/AllCommands.h"

namespace player {

namespace {

CommandTable made()
{
    CommandTable table;
    // The end of a list or branch.
    table.addSilent(0);
    addMessageCommands(&table);
    addFlowCommands(&table);
    addPartyCommands(&table);
    addActorCommands(&table);
    addSceneCommands(&table);
    addPictureCommands(&table);
    addSoundCommands(&table);
    addBattleCommands(&table);
    return table;
}

} // namespace

const CommandTable &allCommands()
{
    static const CommandTable table = made();
    return table;
}

} // namespace player
