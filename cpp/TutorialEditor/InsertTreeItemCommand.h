#pragma once

#include <QString>
#include <QUndoCommand>
#include <QVariantMap>

class TutorialItemData;

/// Puts an item into the document. The command owns the item while it is out of the document.
///
/// A parent that is a folder, or whose id is below zero, gets the item among its children; beside any other
/// parent the item becomes a sibling. A negative index is the end of the folder, or the place right behind
/// the sibling. With a parent that does not exist the item goes to the end of the top level, and that is
/// logged. The new node is never a folder.
class InsertTreeItemCommand : public QUndoCommand
{
public:
    /// @p note becomes the undo note with every undo, and every redo but the first; empty sets none. @p map
    /// is kept and not read.
    InsertTreeItemCommand(int parentId, int index, int itemId, TutorialItemData *data, QString note,
                          QVariantMap map);
    ~InsertTreeItemCommand() override;
    Q_DISABLE_COPY(InsertTreeItemCommand)

    void undo() override;
    void redo() override;

private:
    int m_parentId;
    int m_index;
    int m_itemId;
    QString m_note;
    QVariantMap m_map;
    bool m_firstRedo = true;
    TutorialItemData *m_data;
    bool m_ownsData = false;
};

/// Adds an InsertTreeItemCommand to the undo history, which must be there, and so runs it. The document takes
/// over @p data.
void insertTreeItem(int parentId, int index, int itemId, TutorialItemData *data, const QString &note,
                    const QVariantMap &map);
