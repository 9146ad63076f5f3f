#pragma once

#include "window/control/ControlReader.h"

#include <QPixmap>

/// Pictures of what is being edited in a window, @p size in pixels.
namespace EventPictures {

/// The message that the command being edited says.
[[nodiscard]] QPixmap message(const ControlContext &context, const EditorWindow &window, const QSize &size);

/// The way that the movement route being edited takes on the map.
[[nodiscard]] QPixmap route(const ControlContext &context, const EditorWindow &window, const QSize &size);

} // namespace EventPictures
