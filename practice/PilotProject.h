#pragma once

#include "PilotPlay.h"

/// Puts the project that @p play opens into @p folder, if it opens one, as it answers first that a project is
/// there, and none stands in @p folder already: the one that the lesson starts from, which the companion
/// @p program has; for a lesson without, one as "New" makes it. The descriptions of the windows have been
/// read. False when it cannot be written, or the companion does not give it; @p error then says why.
[[nodiscard]] bool putProject(const PilotPlay &play, const QString &folder, const QString &program,
                              QString *error);
