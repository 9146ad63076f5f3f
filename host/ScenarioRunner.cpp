#include "host/ScenarioRunner.h"

#include <utility>

ScenarioRunner::ScenarioRunner(OpenWindows openWindows, QObject *parent)
    : QObject(parent)
    , m_openWindows(std::move(openWindows))
{
}

void ScenarioRunner::start(const Scenario &scenario, int id)
{
    m_scenario = scenario;
    reach(qMax(0, m_scenario.indexOf(id)));
}

void ScenarioRunner::goTo(int id)
{
    const int index = m_scenario.indexOf(id);
    if (index < 0) {
        return;
    }
    enter(index);
    if (isRunning()) {
        Q_EMIT stepReached();
    }
}

void ScenarioRunner::stop()
{
    m_index = -1;
}

void ScenarioRunner::handle(const EditorEvent &event)
{
    if (isRunning() && step().condition.isMetBy(event, step().windowKey)) {
        goOn(step().jump);
    }
}

void ScenarioRunner::next()
{
    if (isRunning() && step().condition.type() == Condition::Type::kNext) {
        goOn(step().jump);
    }
}

void ScenarioRunner::answer(bool yes)
{
    if (isRunning() && step().condition.type() == Condition::Type::kYesNo) {
        goOn(yes ? step().jump : step().jumpNo);
    }
}

void ScenarioRunner::elapsed()
{
    if (isRunning() && step().condition.type() == Condition::Type::kWait) {
        goOn(step().jump);
    }
}

void ScenarioRunner::skip()
{
    if (isRunning()) {
        goOn(step().jump);
    }
}

const Step *ScenarioRunner::stepBehind() const
{
    if (!isRunning() || step().condition.type() != Condition::Type::kNext) {
        return nullptr;
    }
    const int index = indexBehind(m_index, step().jump);
    return index < m_scenario.size() ? &m_scenario.step(index) : nullptr;
}

void ScenarioRunner::runAhead()
{
    if (stepBehind() == nullptr) {
        return;
    }
    enter(indexBehind(m_index, step().jump));
    skip();
}

int ScenarioRunner::indexBehind(int index, int jump) const
{
    const int target = jump == LessonWords::kNoJump ? -1 : m_scenario.indexOf(jump);
    return target < 0 ? index + 1 : target;
}

void ScenarioRunner::goOn(int jump)
{
    reach(indexBehind(m_index, jump));
}

void ScenarioRunner::enter(int index)
{
    m_index = index;
    if (!step().command.isEmpty()) {
        Q_EMIT commandRequested(step().command);
    }
}

void ScenarioRunner::reach(int index)
{
    // Steps that have nothing to wait for are passed; jumps among them could go round for ever.
    for (int passed = 0; index < m_scenario.size(); ++passed) {
        enter(index);
        if (!isRunning()) {
            return;
        }
        if (passed >= m_scenario.size() || !step().condition.holds(m_openWindows())) {
            Q_EMIT stepReached();
            return;
        }
        index = indexBehind(m_index, step().jump);
    }
    m_index = -1;
    Q_EMIT finished();
}
