#pragma once

#include "lesson/description/WindowDescription.h"

/// The form of one event command: a part of the window in which commands are edited, which is there while
/// that command is.
namespace FormDescription {

/// Reads the "controls" of a command's file; each has to stand inside of @p size. Their names are
/// "<code>/<name>" in the window.
[[nodiscard]] QVector<ControlDescription> read(JsonReader &file, const QSize &size);

} // namespace FormDescription
