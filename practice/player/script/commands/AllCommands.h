#pragma once

#include "player/script/CommandTable.h"

namespace player {

/// All commands, each with its one handler.
[[nodiscard]] const CommandTable &allCommands();

// One for each file beside this one, which has the commands of a tab of the command window.
void addMessageCommands(CommandTable *table);
void addFlowCommands(CommandTable *table);
void addPartyCommands(CommandTable *table);
void addActorCommands(CommandTable *table);
void addSceneCommands(CommandTable *table);
void addPictureCommands(CommandTable *table);
void addSoundCommands(CommandTable *table);
void addBattleCommands(CommandTable *table);

} // namespace player
