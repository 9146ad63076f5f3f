#pragma once

#include "TutorialEditor/ItemFields.h"
#include "TutorialEditor/NameData.h"

#include <QObject>
#include <QString>

class JsonWrapper;
class ScenarioTexts;

/// What one item of a scenario holds, be it a step or a folder.
class TutorialItemData : public QObject, public NameData, public ItemValues
{
    Q_OBJECT

public:
    TutorialItemData() = default;

    /// A new item that the caller owns, or null when @p json is no object with an "id"; the reason is logged.
    /// hint2 is looked up in @p texts. A folder has no fields beyond the id, the name and prohibited.
    [[nodiscard]] static TutorialItemData *fromJson(const JsonWrapper &json, const ScenarioTexts &texts);
    /// One line of JSON with all fields; @p extra, fields that are text already, comes last unless it is
    /// empty.
    [[nodiscard]] QString toJson(const QString &extra) const;

    /// Outside a transaction, assigns. In one, adds a step to the undo history and leaves the name alone: no
    /// step can reach the name.
    void setName(const QString &value) override;
    void setTranslationId(int value);
    /// What an author's tool shows with an undo of a change to this item.
    [[nodiscard]] QString changeNote() const;
};
