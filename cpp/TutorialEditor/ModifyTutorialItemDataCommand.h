#pragma once

#include "TutorialEditor/PropertyHash.h"
#include "TutorialEditor/ScenarioDocument.h"
#include "UndoRedo/UndoMergeableCommand.h"

#include <QPointer>
#include <QString>
#include <QVariant>

#include <memory>

/// Changes one field of one item of a document. The property "target" is the key of the field in
/// itemFields. Any other target, the name among them, and an item that is gone change nothing.
///
/// Commands with equal properties are folded into one whatever their items are: the item is not a property.
class ModifyTutorialItemDataCommand : public UndoMergeableCommand
{
public:
    static constexpr int kType = 1;

    /// Without @p document, or when it is gone, nothing is changed. @p note becomes the undo note with every
    /// undo, and every redo but the first; empty sets none.
    ModifyTutorialItemDataCommand(ScenarioDocument *document, int id, const PropertyHash &properties,
                                  const QVariant &value, QString note);

    void doUndo() override;
    void doRedo() override;
    [[nodiscard]] int commandType() const override;
    bool mergeSame(const UndoMergeableCommand &other) override;
    bool apply(const QVariant &value, bool saveOld, const UndoMergeableCommand *source) override;
    [[nodiscard]] std::unique_ptr<UndoMergeableCommand> clone() const override;

private:
    QPointer<ScenarioDocument> m_document;
    int m_tutorialItemId;
    QVariant m_oldValue;
    PropertyHash m_properties;
    QString m_note;
    bool m_firstRedo = true;
};

/// Changes one field of the item @p id of @p document as a step of its undo history, with a note that names
/// the item. @p field is a key of itemFields. Returns false, and changes nothing, when there is no such
/// field, no such item or no history.
bool changeItem(ScenarioDocument *document, int id, const QString &field, const QVariant &value);
