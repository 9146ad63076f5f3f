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
        /// Empty where the editor gives nothing away.
        StepStart start;
    };

    /// A lesson begins.
    void begin(const QString &lessonName);
    /// A lesson goes on where @p bookmark was set.
    void resume(const QJsonObject &bookmark);
    /// The present step is entered anew.
    void goOn() { m_hasPresent = false; }

    /// A step was reached.
    void enter(int id);
    /// How the present step began.
    void setStart(const StepStart &start) { m_present.start = start; }

    /// The present step is left with something gone wrong in it that was not put back.
    void noteDamage();

    [[nodiscard]] bool canGoBack() const { return !m_past.isEmpty(); }
    /// Goes back to the step before; enter() follows.
    Visit goBack();
    /// Goes back to the last step that began when nothing had gone wrong yet, as far as that is known.
    Visit goBackToGood();

    /// The lesson's name, the present step with how it began, and the same of the steps before it, of which
    /// only what changed from one to the next is kept.
    [[nodiscard]] QJsonObject bookmark() const;

    [[nodiscard]] static QString lessonOf(const QJsonObject &bookmark);
    [[nodiscard]] static int stepOf(const QJsonObject &bookmark);
    [[nodiscard]] static StepStart startOf(const QJsonObject &bookmark);

private:
    void leave(const Visit &visit);

    QString m_lessonName;
    QVector<Visit> m_past;
    /// What a bookmark keeps of each of them.
    QVector<QJsonObject> m_kept;
    /// Index of the first of them in which something has gone wrong, that step having begun well; -1 for
    /// none.
    int m_firstDamaged = -1;
    /// How the last of them began.
    QJsonObject m_lastKept;
    Visit m_present;
    bool m_hasPresent = false;
};
