#pragma once

#include "TutorialEditor/ItemTree.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class ItemIndex;
class JsonWrapper;
class ScenarioTexts;
class TutorialItemData;

// Walks over the tree and the list of items. A node or an item that is not there is a normal result.

/// The first node with @p id, each node before its children; -1 is the root. Null when there is none.
[[nodiscard]] TreeItem<TutorialItemData> *findItem(ItemTree *tree, int id);
/// The node below @p root whose child has @p id, with the child's place in @p index; otherwise null, and -1.
/// The root itself has no parent.
[[nodiscard]] TreeItem<TutorialItemData> *findParent(TreeItem<TutorialItemData> *root, int id, int *index);
/// Takes the first node with @p id out of the tree, with all below it. The root stays.
void removeItem(ItemTree *tree, int id);
/// Takes one node out of @p children; an index outside changes nothing.
void removeChildAt(QList<TreeItem<TutorialItemData>> *children, int index);
/// The first item with @p id, or null.
[[nodiscard]] TutorialItemData *findData(const QList<TutorialItemData *> *items, int id);
/// The place of the first item with @p id, or -1.
[[nodiscard]] int indexOfData(const QList<TutorialItemData *> &items, int id);

/// Reads an item with all below it. Appends what the nodes hold to @p items, parents before children, and
/// returns the node.
///
/// An item below that cannot be read is left out, and @p errors gets a line that names its place, beginning
/// with @p place. When the item itself cannot be read the result is null, @p items is as before, and @p
/// errors has its line. @p errors may be null.
[[nodiscard]] std::unique_ptr<TreeItem<TutorialItemData>>
createFromJson(const JsonWrapper &json, QList<TutorialItemData *> *items, const ScenarioTexts &texts,
               QStringList *errors, const QString &place);

/// One line of JSON of @p node, with its children when it is a folder; empty when its item is missing.
[[nodiscard]] QString toJson(const TreeItem<TutorialItemData> &node, const ItemIndex &items);

/// The lowest number from @p start on that @p list leaves free, or the number behind the highest. Every entry
/// takes one place, so a number that stands in the list twice can hide a gap: 1, 1, 3 gives 4.
[[nodiscard]] int nextFreeNumber(QList<int> list, int start);

/// A name that @p names does not hold. With @p digits of 0 or more, @p base and a number one above the
/// highest in use, filled up with zeros to @p digits places. With -2, @p base and such a number in brackets;
/// with any other negative @p digits only if @p base is taken.
[[nodiscard]] QString uniqueName(const QStringList &names, const QString &base, int digits);
