#include "player/script/Battlefield.h"

namespace player {

Battlefield::~Battlefield() = default;

} // namespace player
