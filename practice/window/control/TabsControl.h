#pragma once

#include "window/control/ControlReader.h"

/// Lets other controls require the tabs of these by the "source" that they name: to be called before any of
/// the controls is read. A source that the editor has stays what it is.
void declareTabs(const QVector<ControlDescription> &controls, Project *project);

/// A row of "tabs", or of the rows of a "source"; the current one is that of the source.
[[nodiscard]] ControlMaker readTabs(ControlReader &reader);
