#pragma once

#include "player/script/Interpreter.h"

/// The conditions of a conditional branch.
namespace player::Branches {

/// Whether it holds; false, with a problem told, for one that nobody knows.
[[nodiscard]] bool holds(Interpreter &run, const Command &command);

} // namespace player::Branches
