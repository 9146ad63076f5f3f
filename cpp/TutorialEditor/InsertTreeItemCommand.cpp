#include "TutorialEditor/InsertTreeItemCommand.h"

#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/TutorialItemData.h"
#include "tool/LogLine.h"

#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\InsertTreeItemCommand.cpp)";

} // namespace

InsertTreeItemCommand::InsertTreeItemCommand(ScenarioDocument *document, int parentId, int index, int itemId,
                                             std::unique_ptr<TutorialItemData> data, QString note,
                                             QVariantMap map)
    : m_document(document)
    , m_parentId(parentId)
    , m_index(index)
    , m_itemId(itemId)
    , m_note(std::move(note))
    , m_map(std::move(map))
    , m_data(data.get())
    , m_owned(std::move(data))
{
    setText(QStringLiteral("InsertTreeItemCommand(%1, %2, %3)").arg(parentId).arg(index).arg(itemId));
}

InsertTreeItemCommand::~InsertTreeItemCommand() = default;

void InsertTreeItemCommand::redo()
{
    if (m_document == nullptr) {
        return;
    }
    ItemTree *tree = m_document->tree();
    TreeItem<TutorialItemData> *target = findItem(tree, m_parentId);
    int index = m_index;
    if (target == nullptr) {
        logWarning(kSource, "InsertTreeItemCommand::redo", 71)
            << "parent not found, inserted at the end of the top level" << m_parentId << m_itemId;
        target = &tree->root;
        index = -1;
    } else if (m_parentId >= 0 && !target->folder) {
        int place = -1;
        target = findParent(&tree->root, m_parentId, &place);
        index = m_index < 0 ? place + 1 : m_index;
    }
    const int end = target->children.size();
    target->children.insert(index < 0 ? end : qMin(index, end), TreeItem<TutorialItemData>(m_itemId, false));
    static_cast<void>(m_owned.release());
    m_document->addItem(m_data);

    if (m_firstRedo) {
        m_firstRedo = false;
        return;
    }
    tellUndoNote(m_document->historySource(), m_note);
}

void InsertTreeItemCommand::undo()
{
    if (m_document == nullptr) {
        return;
    }
    ItemTree *tree = m_document->tree();
    removeItem(tree, m_itemId);
    const int index = indexOfData(tree->items, m_itemId);
    if (index >= 0) {
        tree->items.removeAt(index);
    }
    tellUndoNote(m_document->historySource(), m_note);
    // Another item with the same id may have gone instead; what the document still holds is not ours to
    // delete.
    if (m_owned == nullptr && !tree->items.contains(m_data)) {
        m_owned.reset(m_data);
    }
}

void insertTreeItem(ScenarioDocument *document, int parentId, int index, int itemId,
                    std::unique_ptr<TutorialItemData> data, const QString &note, const QVariantMap &map)
{
    if (UndoHistory *history = document->history()) {
        history->addCommand(std::make_unique<InsertTreeItemCommand>(document, parentId, index, itemId,
                                                                    std::move(data), note, map));
    }
}
