#pragma once

#include "runner/Condition.h"

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVector>

/// One step of a lesson, as the companion handed it over.
struct ScenarioStep
{
    static constexpr int kNoPosition = -9999;
    /// Where the tip of the arrow lies, from the top left corner of the bubble's window, in pixels.
    static constexpr QPoint kTip{38, 150};
    static constexpr int kNoJump = -1;

    int id = 0;
    /// Where the bubble's window goes, in pixels from the origin of the window windowKey.
    int x = 0;
    int y = 0;
    QString windowKey;
    QString conditionText;
    Condition condition = *Condition::parse(QString());
    QString hint;
    QString icon;
    /// Ids; kNoJump for the next step.
    int jump = kNoJump;
    int jumpNo = kNoJump;
    QString command;
    bool showArrow = true;

    [[nodiscard]] bool hasPosition() const { return x != kNoPosition || y != kNoPosition; }

    /// The number that stands for the icon in the link: 0 to 5, or 6 for none.
    [[nodiscard]] int iconKind() const;
};

/// A lesson: its steps in order, folders opened out.
class Scenario
{
public:
    /// Reads the text "var scenario = [...];" or the bare array. Lines about what is wrong go to @p problems,
    /// each with the id of the step. A condition that cannot be read becomes one that waits for the button
    /// Next, so that nobody gets stuck. A text that is no array gives a scenario without steps.
    [[nodiscard]] static Scenario parse(const QString &text, QStringList *problems);

    [[nodiscard]] int size() const { return m_steps.size(); }
    [[nodiscard]] const ScenarioStep &step(int index) const { return m_steps.at(index); }

    /// -1 when no step has the id.
    [[nodiscard]] int indexOf(int id) const;

private:
    QVector<ScenarioStep> m_steps;
};
