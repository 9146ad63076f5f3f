#pragma once

#include "lesson/description/DescriptionSet.h"
#include "project/Project.h"
#include "window/MapPainter.h"

#include <memory>

/// What the editor's windows stand on: their descriptions, and the project that they show.
struct EditorGround
{
    DescriptionSet descriptions;
    std::unique_ptr<Project> project;
    std::unique_ptr<MapPainter> painter;
    /// Name of the locale of all texts.
    QString locale;

    /// Reads the descriptions and what projects start from in @p folder, with the texts of @p locale, English
    /// where that is not one of the three. Adds a line to @p errors for each thing that is wrong with a file;
    /// nothing must be built then.
    static EditorGround read(const QString &locale, const QString &folder, QStringList *errors);
};
