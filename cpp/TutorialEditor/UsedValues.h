#pragma once

#include "TutorialEditor/FreeNumbers.h"
#include "TutorialEditor/UsedNames.h"

#include <QList>

class TutorialItemData;

/// What new items of a document must not repeat. The numbers count from 1.
struct UsedValues
{
    explicit UsedValues(const QList<TutorialItemData *> &items);

    FreeNumbers ids;
    UsedNames names;
    FreeNumbers translationIds;
};
