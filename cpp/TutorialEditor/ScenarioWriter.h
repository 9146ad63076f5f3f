#pragma once

#include "TutorialEditor/ItemIndex.h"
#include "TutorialEditor/TreeItem.h"

#include <QList>
#include <QString>

class TutorialItemData;

/// Writes items in the form of the scenario files, in one pass over the tree.
class ScenarioWriter
{
public:
    /// Compact text has no line breaks but those between items. Translated text refers to a hint by its
    /// translation call instead of quoting it.
    ScenarioWriter(const QList<TutorialItemData *> &items, bool compact, bool translated);

    /// Appends the children of @p parent as an array to @p out, indented for @p level, which is 0 at the top.
    /// A node whose item is missing is left out and logged.
    void write(int level, const TreeItem<TutorialItemData> &parent, QString *out) const;

private:
    [[nodiscard]] QString fields(int level, const TreeItem<TutorialItemData> &node,
                                 const TutorialItemData &data) const;

    ItemIndex m_items;
    bool m_compact;
    bool m_translated;
};
