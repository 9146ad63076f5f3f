#pragma once

#include "lesson/Scenario.h"

/// How long a lesson takes someone who reads each hint and does what it says. An estimate, by the length of
/// the hints and by what the steps ask for.
namespace LessonTime {

[[nodiscard]] int secondsOf(const Step &step);

/// The steps from the one at @p index, from 0, to the end as they stand in the file, in whole minutes; at
/// least 1 while there is a step left.
[[nodiscard]] int minutesFrom(const Scenario &scenario, int index);

} // namespace LessonTime
