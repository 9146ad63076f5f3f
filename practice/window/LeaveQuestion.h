#pragma once

#include <QCoreApplication>
#include <QPointer>

#include <functional>

class QMessageBox;
class QWidget;

/// Asks the person what becomes of changes that would be lost. Nothing waits for the answer.
class LeaveQuestion
{
    Q_DECLARE_TR_FUNCTIONS(LeaveQuestion)

public:
    /// Asks above @p window about the project @p name, in place of what is asked already. The answer is one
    /// of
    /// @p save, @p leave, which drops the changes, or nothing at all.
    void ask(QWidget *window, const QString &name, const std::function<void()> &save,
             const std::function<void()> &leave);

    /// Takes the question back, if one is open: it was answered with nothing.
    void takeBack();

private:
    QPointer<QMessageBox> m_box;
};
