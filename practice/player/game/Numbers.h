#pragma once

namespace player {

/// Switches, variables and goods have numbers from 1 to this.
constexpr int kLargestNumber = 9999;

} // namespace player
