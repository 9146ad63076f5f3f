#pragma once

#include "TutorialEditor/TreeItem.h"

#include <QVariantMap>

class ScenarioDocument;
class TutorialItemData;
struct ItemTree;
struct UsedValues;

/// Moves the item @p sourceId with its node and all below it from @p source to @p document, below @p parent,
/// as new items: ids, translation ids and names that @p used does not know. Returns the new id, or -1 when
/// the source has no such item.
///
/// In a transaction each item is a step of the undo history, and goes into the document; otherwise the node
/// is appended to @p parent and the item to those of the document. The children of a folder are given the
/// source's folder as parent: outside a transaction their nodes stay behind in @p source, and in one they go
/// where the document has an item with that folder's old id.
int copySubtree(ScenarioDocument *document, UsedValues *used, ItemTree *source,
                TreeItem<TutorialItemData> *parent, int sourceId, const QVariantMap &map);
