#include "TutorialEditor/ScenarioDocument.h"

#include "TutorialEditor/TutorialItemData.h"

#include <utility>

ScenarioDocument::ScenarioDocument(HistorySource history)
    : m_history(std::move(history))
{
    m_tree.root.id = -1;
    m_tree.root.folder = true;
}

void ScenarioDocument::addItem(TutorialItemData *data)
{
    data->setChanges(this);
    m_tree.items.append(data);
}
