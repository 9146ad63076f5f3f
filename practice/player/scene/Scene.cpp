#include "player/scene/Scene.h"

namespace player {

Scene::~Scene() = default;

void Scene::resume(int, Game *) {}

} // namespace player
