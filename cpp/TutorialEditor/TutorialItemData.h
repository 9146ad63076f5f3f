#pragma once

#include "TutorialEditor/ItemChanges.h"
#include "TutorialEditor/ItemFields.h"
#include "TutorialEditor/NameData.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class JsonWrapper;
class ScenarioTexts;

/// What one item of a scenario holds, be it a step or a folder.
class TutorialItemData : public QObject, public NameData, public ItemValues
{
    Q_OBJECT

public:
    TutorialItemData() = default;

    /// A new item, or null when @p json is no object with an "id"; the reason is logged.
    /// hint2 is looked up in @p texts. A folder has no fields beyond the id, the name and prohibited.
    [[nodiscard]] static std::unique_ptr<TutorialItemData> fromJson(const JsonWrapper &json,
                                                                    const ScenarioTexts &texts);
    /// One line of JSON with all fields; @p extra, fields that are text already, comes last unless it is
    /// empty.
    [[nodiscard]] QString toJson(const QString &extra) const;

    /// @p changes is asked before the name changes, as long as it lives; null asks nobody. Not owned.
    void setChanges(ItemChanges *changes) { m_changes = changes; }
    /// Outside a transaction of its document, assigns. In one, a step is added to the undo history, and the
    /// name is left alone: no step can reach the name.
    void setName(const QString &value) override;
    void setTranslationId(int value);
    /// What an author's tool shows with an undo of a change to this item.
    [[nodiscard]] QString changeNote() const;

private:
    QPointer<ItemChanges> m_changes;
};
