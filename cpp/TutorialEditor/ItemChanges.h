#pragma once

#include <QObject>

class QString;
class TutorialItemData;

/// Who is asked before an item changes: the document that has it. An object, so that an item notices when its
/// document is gone.
class ItemChanges : public QObject
{
    Q_OBJECT

public:
    /// @p item is to be called @p name. True when a step of the undo history stands for that, and the item
    /// leaves its name alone; false when it may assign the name.
    [[nodiscard]] virtual bool recordName(const TutorialItemData &item, const QString &name) = 0;
};
