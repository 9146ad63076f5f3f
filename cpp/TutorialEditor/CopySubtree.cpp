#include "TutorialEditor/CopySubtree.h"

#include "TutorialEditor/InsertTreeItemCommand.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/ScenarioDocument.h"
#include "TutorialEditor/TutorialItemData.h"
#include "TutorialEditor/UsedValues.h"

#include <memory>
#include <utility>

namespace {

using Node = TreeItem<TutorialItemData>;

} // namespace

int copySubtree(ScenarioDocument *document, UsedValues *used, ItemTree *source, Node *parent, int sourceId,
                const QVariantMap &map)
{
    const Node *node = findItem(source, sourceId);
    const int place = indexOfData(source->items, sourceId);
    if (node == nullptr || place < 0) {
        return -1;
    }
    std::unique_ptr<TutorialItemData> data(source->items.takeAt(place));
    data->id = used->ids.take();
    data->name = used->names.unique(data->name, -1);
    data->translationId = used->translationIds.take();
    used->names.add(data->name);

    const int newId = data->id;
    const bool folder = node->folder;
    const QList<Node> children = node->children;
    const UndoHistory *history = document->history();
    if (history != nullptr && history->inTransaction()) {
        insertTreeItem(document, parent->id, -1, newId, std::move(data), QString(), map);
    } else {
        parent->children.append(Node(newId, folder));
        document->addItem(data.release());
    }
    if (folder) {
        for (const Node &child : children) {
            copySubtree(document, used, source, findItem(source, sourceId), child.id, map);
        }
    }
    return newId;
}
