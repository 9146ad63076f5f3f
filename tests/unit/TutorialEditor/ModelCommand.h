#pragma once

#include "DocumentModel.h"

#include <QString>
#include <QVariant>

#include <vector>

/// A step of the expected history, or a part of one.
struct ModelCommand
{
    enum class Kind { kInsert, kModify, kMarker, kMacro };

    explicit ModelCommand(Kind what)
        : kind(what)
    {
    }

    Kind kind;
    int parentId = -1;
    int index = -1;
    int id = -1;
    ModelItemPtr item;
    QString target;
    QVariant value;
    QVariant old;
    std::vector<ModelCommandPtr> parts; // merged into a modification, or held by a macro
};
