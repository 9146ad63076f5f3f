#pragma once

#include <QHash>
#include <QList>

class TutorialItemData;

/// For many searches in one list: the first item of every id. Neither the list nor the ids change meanwhile.
class ItemIndex
{
public:
    explicit ItemIndex(const QList<TutorialItemData *> &items);

    /// As findData.
    [[nodiscard]] TutorialItemData *find(int id) const { return m_byId.value(id); }

private:
    QHash<int, TutorialItemData *> m_byId;
};
