#include "host/StepAhead.h"

#include "host/HostEditor.h"
#include "host/StepRule.h"

StepAhead::StepAhead(const HostEditor *editor, const Step &step)
    : m_editor(editor)
    , m_step(step)
    , m_pointed(editor->controlFor(step))
{
    if (m_pointed) {
        m_meaning = editor->meaningOf(*m_pointed);
    }
}

bool StepAhead::isDoneBy(const EditorEvent &event) const
{
    // Where neither says through which control, it may have come about by itself.
    if (!m_pointed || event.cause.isNone() || !m_step.condition.isMetBy(event, m_step.windowKey) ||
        !StepRule(m_editor, m_step, m_pointed).counts(event)) {
        return false;
    }
    const QString meaning = m_editor->meaningOf(*m_pointed);
    return meaning.isEmpty() || meaning == m_meaning;
}
