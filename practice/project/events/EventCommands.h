#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// The commands that events are made of, as the files in descriptions/commands have them: one table for the
/// lists in maps, common events and troops. Texts are those of one locale.
class EventCommands
{
public:
    /// Code of the entry that ends a list.
    static constexpr int kEnd = 0;

    /// One way that a battle can end.
    struct Outcome
    {
        int code = 0;
        /// The way is there when the parameter with this number is true; kAny: when one of the others is
        /// there.
        int when = 0;
    };
    static constexpr int kAny = -1;

    /// Which lists of commands belong to a command. Each of them begins behind an entry that says so, and all
    /// end with an entry of the code @c end.
    struct Branches
    {
        /// One for each text in parameter 0, and one for the way out when parameter 1 is kWayOut.
        bool areChoices = false;
        /// Code of the entry ahead of the second list, which may be missing; 0 for none.
        int otherwise = 0;
        QVector<Outcome> outcomes;
        /// 0 when the command has no lists.
        int end = 0;
    };
    /// Choices: their code, that of the entry ahead of a choice's commands, and of that for the way out.
    static constexpr int kChoices = 102;
    static constexpr int kChoice = 402;
    static constexpr int kCancelled = 403;
    static constexpr int kWayOut = -2;

    /// What the row of a command says whose form has these members. One that is not there counts as 0, as the
    /// empty text and as false; the text "{0}" stands for the member "0".
    struct RowForm
    {
        QJsonObject is;
        QString text;
    };

    struct Command
    {
        int code = 0;
        QString name;
        /// Where it is offered, one of tabs(); empty when it is not.
        QString tab;
        /// What its row in a list says, in the words of RowText: the first that fits its form.
        QVector<RowForm> rows;
        /// Those of a new one.
        QJsonArray parameters;
        /// Code of the entries that follow it with a line of text each; 0 for none.
        int lines = 0;
        /// Code of the entries that follow it with parameters of their own; 0 for none.
        int entries = 0;
        /// Whether parameters 0 and 1 are the first and the last of something.
        bool isRange = false;
        Branches branches;
        /// Whether there is anything to be said of one.
        bool hasForm = false;

        /// What the row of a command with this form says.
        [[nodiscard]] QString rowOf(const QJsonObject &form) const;
        /// Codes of the entries that stand between its lists and behind the last one.
        [[nodiscard]] QVector<int> markers() const;
        /// Code of the entries that follow it, whatever they hold; 0 for none.
        [[nodiscard]] int followUp() const { return lines != 0 ? lines : entries; }
    };

    static QStringList tabs();

    /// Reads every file in @p folder with the texts of @p locale; none where there is no such folder. Adds a
    /// line to @p errors for each thing that is wrong; the result is then of no use.
    static EventCommands read(const QString &folder, const QString &locale, QStringList *errors);

    void add(const Command &command) { m_commands.insert(command.code, command); }

    /// The command with this code; nullptr for one that is unknown. Valid until the next one is added.
    [[nodiscard]] const Command *find(int code) const;
    /// Codes of the commands that are offered in a tab, from the lowest.
    [[nodiscard]] QVector<int> codesIn(const QString &tab) const;

private:
    QMap<int, Command> m_commands;
};
