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
    /// What its arrow points at, in pixels from the same origin.
    [[nodiscard]] QPoint spot() const { return QPoint(x, y) + LessonWords::kTip; }
};

/// A word in a step that nobody knows, so that the lesson cannot be played.
struct UnknownWord
{
    int stepId = 0;
    /// The condition or command as it stands there.
    QString word;
    /// A sentence that says what is wrong with it.
    QString problem;
};

/// A lesson: its steps in order, folders opened out.
class Scenario
{
public:
    /// Reads the text "var scenario = [...];" or the bare array. Lines about what is wrong go to @p problems,
    /// each with the id of the step. A text that is no array gives a scenario without steps.
    [[nodiscard]] static Scenario parse(const QString &text, QStringList *problems);

    [[nodiscard]] int size() const { return m_steps.size(); }
    [[nodiscard]] const Step &step(int index) const { return m_steps.at(index); }

    /// -1 when no step has the id.
    [[nodiscard]] int indexOf(int id) const;

    /// Whether a step stands in this window.
    [[nodiscard]] bool hasStepIn(const QString &windowKey) const;

    /// Icons, conditions and commands that cannot be read; a step with such a condition has that of the
    /// button Next.
    [[nodiscard]] const QVector<UnknownWord> &unknownWords() const { return m_unknownWords; }

    /// Whether both have the same steps but for their texts: one lesson, in whatever language.
    [[nodiscard]] bool isSameLesson(const Scenario &other) const;

private:
    QVector<Step> m_steps;
    QVector<UnknownWord> m_unknownWords;
};
