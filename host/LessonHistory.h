#pragma once

#include "host/StepStart.h"

#include <QVector>

/// The steps that a person has come through in a lesson, and what another run needs to go on.
class LessonHistory
{
public:
    struct Visit
    {
        int id = 0;
        /// Empty for a step of an earlier run.
        StepStart start;
    };

    /// A lesson begins.
    void begin(const QString &lessonName);
    /// A lesson goes on where @p bookmark was set.
    void resume(const QJsonObject &bookmark);

    /// A step was reached.
    void enter(int id);
    /// How the present step began.
    void setStart(const StepStart &start) { m_present.start = start; }

    [[nodiscard]] bool canGoBack() const { return !m_past.isEmpty(); }
    /// Goes back to the step before; enter() follows.
    Visit goBack();

    /// The lesson's name, the present step's id, how it began, and the ids of the steps before it.
    [[nodiscard]] QJsonObject bookmark() const;

    [[nodiscard]] static QString lessonOf(const QJsonObject &bookmark);
    [[nodiscard]] static int stepOf(const QJsonObject &bookmark);
    [[nodiscard]] static StepStart startOf(const QJsonObject &bookmark);

private:
    QString m_lessonName;
    QVector<Visit> m_past;
    Visit m_present;
    bool m_hasPresent = false;
};
