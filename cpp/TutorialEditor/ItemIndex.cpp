#include "TutorialEditor/ItemIndex.h"

#include "TutorialEditor/TutorialItemData.h"

ItemIndex::ItemIndex(const QList<TutorialItemData *> &items)
{
    m_byId.reserve(items.size());
    for (TutorialItemData *data : items) {
        if (!m_byId.contains(data->id)) {
            m_byId.insert(data->id, data);
        }
    }
}
