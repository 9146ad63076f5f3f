#pragma once

#include "lesson/Condition.h"
#include "lesson/LessonWords.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One step of a lesson, as the companion handed it over.
struct Step
{
    int id = 0;
    /// Where the bubble's window goes, in pixels from the origin of the window windowKey.
    int x = 0;
    int y = 0;
    QString windowKey;
    QString conditionText;
    Condition condition = *Condition::parse(QString());
    QString hint;
    QString icon;
    /// Ids; LessonWords::kNoJump for the next step.
    int jump = LessonWords::kNoJump;
    int jumpNo = LessonWords::kNoJump;
    QString command;
    bool showArrow = true;

    [[nodiscard]] bool hasPosition() const
    {
        return x != LessonWords::kNoPosition || y != LessonWords::kNoPosition;
    }
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
    [[nodiscard]] const Step &step(int index) const { return m_steps.at(index); }

    /// -1 when no step has the id.
    [[nodiscard]] int indexOf(int id) const;

private:
    QVector<Step> m_steps;
};
