#pragma once

#include "lesson-check/ScenarioItem.h"

/// A scenario file that has been read.
struct Lesson
{
    QString name; ///< base name of the file, which is also the context of its texts
    QString file; ///< relative to the project's root
    ScenarioItems steps;
};
