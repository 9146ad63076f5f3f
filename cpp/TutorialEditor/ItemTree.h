#pragma once

#include "TutorialEditor/TreeItem.h"

#include <QList>

class TutorialItemData;

/// The items of a document, and the tree that orders them. A node is the item with the same id.
///
/// The list does not own the items: clearing it leaves them allocated, since a step of the undo history may
/// still hold them.
struct ItemTree
{
    QList<TutorialItemData *> items;
    TreeItem<TutorialItemData> root;
};
