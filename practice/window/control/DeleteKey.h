#pragma once

#include <QKeyEvent>

/// Whether this is the Delete key by itself. The standard key of Qt has Ctrl+D and others beside it on some
/// systems, where many a program has something harmless.
inline bool isDeleteKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Delete && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}
