#pragma once

#include "TutorialEditor/PropertyHash.h"
#include "UndoRedo/UndoMergeableCommand.h"

#include <QString>
#include <QVariant>

/// Changes one field of one item of the document. The property "target" is the key of the field in
/// itemFields. Any other target, the name among them, and an item that is gone change nothing.
///
/// Commands with equal properties are folded into one whatever their items are: the item is not a property.
class ModifyTutorialItemDataCommand : public UndoMergeableCommand
{
public:
    static constexpr int kType = 1;

    /// @p note becomes the undo note with every undo, and every redo but the first; empty sets none.
    ModifyTutorialItemDataCommand(int id, const PropertyHash &properties, const QVariant &value,
                                  QString note);

    void doUndo() override;
    void doRedo() override;
    [[nodiscard]] int commandType() const override;
    bool mergeSame(const UndoMergeableCommand &other) override;
    bool apply(const QVariant &value, bool saveOld, const UndoMergeableCommand *source) override;
    [[nodiscard]] UndoMergeableCommand *clone() const override;

private:
    int m_tutorialItemId;
    QVariant m_oldValue;
    PropertyHash m_properties;
    QString m_note;
    bool m_firstRedo = true;
};
