#pragma once

#include "lesson/EditorEvent.h"
#include "lesson/Scenario.h"

#include <QObject>

#include <functional>

/// Steps through a lesson: tells which step is reached, and goes on when its condition comes true. It knows
/// no windows, no clock and no link: what happens there is told to it.
class ScenarioRunner : public QObject
{
    Q_OBJECT

public:
    /// Answers with the keys of the windows that are open at the moment of the call.
    using OpenWindows = std::function<QStringList()>;

    explicit ScenarioRunner(OpenWindows openWindows, QObject *parent = nullptr);

    /// Begins at the step with the id, or at the first one for an id that no step has. An empty scenario
    /// finishes at once.
    void start(const Scenario &scenario, int id);

    /// Goes to the step with the id, which is reached even if nothing is left to do there. Does nothing for
    /// an id that no step has.
    void goTo(int id);

    /// Forgets the lesson; nothing is emitted.
    void stop();

    [[nodiscard]] bool isRunning() const { return m_index >= 0; }
    [[nodiscard]] const Scenario &scenario() const { return m_scenario; }
    /// Position of the present step in the scenario, from 0; -1 when not running.
    [[nodiscard]] int index() const { return m_index; }
    /// The present step. Only while running.
    [[nodiscard]] const Step &step() const { return m_scenario.step(m_index); }
    /// The step that the button Next leads to from the present one; nullptr where it has no such button, and
    /// from the last.
    [[nodiscard]] const Step *stepBehind() const;

    void handle(const EditorEvent &event);
    /// The button Next.
    void next();
    /// The buttons Yes and No.
    void answer(bool yes);
    /// The time of a step that waits is over.
    void elapsed();
    /// The person asked to go on without doing what the step says.
    void skip();
    /// The person has done stepBehind() already.
    void runAhead();

Q_SIGNALS:
    /// The present step changed. Not emitted for a step whose condition holds when it is reached.
    void stepReached();
    /// The step that is reached asks for this; emitted before stepReached().
    void commandRequested(const QString &command);
    /// The last step ended.
    void finished();

private:
    /// Index of the step that follows where a step says @p jump; behind the last one it is the size.
    [[nodiscard]] int indexBehind(int index, int jump) const;
    void goOn(int jump);
    void reach(int index);
    void enter(int index);

    OpenWindows m_openWindows;
    Scenario m_scenario;
    int m_index = -1;
};
