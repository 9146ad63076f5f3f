#pragma once

#include "lesson/description/WindowDescription.h"

class EditorWindow;

/// Names the controls of @p window, which are made from @p descriptions, for those who cannot see what stands
/// beside them. A control without a text of its own is called as the label that has its name with "Label"
/// behind it, else as the nearest label left of it or above it, else as the window, whose title is @p title.
void nameControls(EditorWindow *window, const QVector<ControlDescription> &descriptions,
                  const QString &title);
