#include "player/scene/SceneMaker.h"

namespace player {

SceneMaker::~SceneMaker() = default;

} // namespace player
