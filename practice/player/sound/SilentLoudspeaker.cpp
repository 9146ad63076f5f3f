#include "player/sound/Loudspeaker.h"

namespace player {

std::unique_ptr<Loudspeaker> Loudspeaker::make()
{
    return nullptr;
}

} // namespace player
