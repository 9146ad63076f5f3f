#pragma once

#include "TutorialEditor/ScenarioDocument.h"

#include <QPointer>
#include <QString>
#include <QUndoCommand>
#include <QVariantMap>

#include <memory>

class TutorialItemData;

/// Puts an item into a document. The command owns the item while it is out of the document.
///
/// A parent that is a folder, or whose id is below zero, gets the item among its children; beside any other
/// parent the item becomes a sibling. A negative index is the end of the folder, or the place right behind
/// the sibling. With a parent that does not exist the item goes to the end of the top level, and that is
/// logged. The new node is never a folder.
class InsertTreeItemCommand : public QUndoCommand
{
public:
    /// Without @p document, or when it is gone, undo and redo do nothing. @p note becomes the undo note with
    /// every undo, and every redo but the first; empty sets none. @p map is kept and not read.
    InsertTreeItemCommand(ScenarioDocument *document, int parentId, int index, int itemId,
                          std::unique_ptr<TutorialItemData> data, QString note, QVariantMap map);
    ~InsertTreeItemCommand() override;
    Q_DISABLE_COPY(InsertTreeItemCommand)

    void undo() override;
    void redo() override;

private:
    QPointer<ScenarioDocument> m_document;
    int m_parentId;
    int m_index;
    int m_itemId;
    QString m_note;
    QVariantMap m_map;
    bool m_firstRedo = true;
    TutorialItemData *m_data;
    std::unique_ptr<TutorialItemData> m_owned; // m_data while it is out of the document
};

/// Adds an InsertTreeItemCommand to the undo history of @p document, and so runs it. Without a history
/// nothing happens, and @p data is deleted.
void insertTreeItem(ScenarioDocument *document, int parentId, int index, int itemId,
                    std::unique_ptr<TutorialItemData> data, const QString &note, const QVariantMap &map);
