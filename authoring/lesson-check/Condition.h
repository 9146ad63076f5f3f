#pragma once

#include <QString>

/// The condition of a step, checked for its form.
class Condition
{
public:
    /// @p text as it stands in the field.
    explicit Condition(const QString &text);

    /// First word: "click", "windowState", ...
    [[nodiscard]] const QString &type() const { return m_type; }

    /// The window that a "windowState" condition waits for; empty for every other type.
    [[nodiscard]] const QString &windowKey() const { return m_windowKey; }

    /// Name and last word of an "action" condition; empty for every other type.
    [[nodiscard]] const QString &action() const { return m_action; }
    [[nodiscard]] const QString &actionState() const { return m_actionState; }

    /// What is wrong with the form; empty when nothing is.
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    QString m_type;
    QString m_windowKey;
    QString m_action;
    QString m_actionState;
    QString m_problem;
};
