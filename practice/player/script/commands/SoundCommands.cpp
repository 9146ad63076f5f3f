#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"

namespace player {

namespace {

void music(Interpreter &run, const Command &command)
{
    run.stage().setMusic(Sound::fromJson(command.parameters.at(0)), 0);
}

void fadeOutMusic(Interpreter &run, const Command &command)
{
    run.stage().setMusic({}, qBound(0, command.number(0), 60) * GameState::kTicksPerSecond);
}

void sound(Interpreter &run, const Command &command)
{
    const Sound sound = Sound::fromJson(command.parameters.at(0));
    if (!sound.file.isEmpty()) {
        run.stage().play(sound);
    }
}

} // namespace

void addSoundCommands(CommandTable *table)
{
    table->add(241, &music);
    table->add(242, &fadeOutMusic);
    table->add(243, &sound);
}

} // namespace player
