#include "TutorialEditor/InsertTreeItemCommand.h"

#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/TutorialItemData.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/LogLine.h"

#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\InsertTreeItemCommand.cpp)";

void setUndoNote(const QString &note)
{
    if (!note.isEmpty() && UndoRedo::instance() != nullptr) {
        UndoRedo::instance()->setUndoNote(note);
    }
}

} // namespace

InsertTreeItemCommand::InsertTreeItemCommand(int parentId, int index, int itemId, TutorialItemData *data,
                                             QString note, QVariantMap map)
    : m_parentId(parentId)
    , m_index(index)
    , m_itemId(itemId)
    , m_note(std::move(note))
    , m_map(std::move(map))
    , m_data(data)
{
    setText(QStringLiteral("InsertTreeItemCommand(%1, %2, %3)").arg(parentId).arg(index).arg(itemId));
}

InsertTreeItemCommand::~InsertTreeItemCommand()
{
    if (m_ownsData) {
        delete m_data;
    }
}

void InsertTreeItemCommand::redo()
{
    TutorialEditor::Manager *document = TutorialEditor::Manager::instance();
    if (document == nullptr) {
        return;
    }
    ItemTree *tree = document->tree();
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
    tree->items.append(m_data);
    m_ownsData = false;

    if (m_firstRedo) {
        m_firstRedo = false;
        return;
    }
    setUndoNote(m_note);
}

void InsertTreeItemCommand::undo()
{
    TutorialEditor::Manager *document = TutorialEditor::Manager::instance();
    if (document == nullptr) {
        return;
    }
    ItemTree *tree = document->tree();
    removeItem(tree, m_itemId);
    const int index = indexOfData(tree->items, m_itemId);
    if (index >= 0) {
        tree->items.removeAt(index);
    }
    setUndoNote(m_note);
    // Another item with the same id may have gone instead; what the document still holds is not ours to
    // delete.
    m_ownsData = !tree->items.contains(m_data);
}

void insertTreeItem(int parentId, int index, int itemId, TutorialItemData *data, const QString &note,
                    const QVariantMap &map)
{
    UndoRedo::instance()->addCommand(new InsertTreeItemCommand(parentId, index, itemId, data, note, map));
}
