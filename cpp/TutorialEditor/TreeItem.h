#pragma once

#include <QList>

/// A node of the tree of scenario items: which item it is, whether it is a folder, and its children in the
/// order in which they are shown and played. What the item holds is a @p T with the same id elsewhere.
///
/// Nodes are values: a copy has copies of all nodes below it.
template<typename T>
class TreeItem
{
public:
    TreeItem() = default;
    TreeItem(int itemId, bool isFolder)
        : id(itemId)
        , folder(isFolder)
    {
    }
    TreeItem(const TreeItem &) = default;
    TreeItem &operator=(const TreeItem &) = default;
    virtual ~TreeItem() = default;

    int id = -1;
    bool folder = false;
    QList<TreeItem> children;
};
