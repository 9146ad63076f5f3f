#pragma once

#include "Tutorial/localisation/TranslateText.h"

#include <QString>

class QJsonArray;

/// How a walk over event commands ended.
struct EventWalk
{
    bool changed;
    bool finished; ///< False when a warning ended the walk.
};

/// Translates the texts in a list of event commands: what is said, the choices, and scrolling text. Changes
/// are written into @p list as they come, so what was changed before the walk ended stays.
EventWalk translateEventCommands(const TranslateText &translate, const QString &context, QJsonArray &list);
