#pragma once

#include <QCommandLineOption>
#include <QString>

#include <optional>

class EditorWindows;
class PracticeEditor;
class QCommandLineParser;

/// What the command line has for lesson authors.
struct AuthorOptions
{
    QCommandLineOption scenario{
        QStringLiteral("scenario"),
        QStringLiteral("Play this scenario file with the texts of the catalogue beside it, and play it anew, "
                       "at the step that is on, when one of them changes."),
        QStringLiteral("file")};
    QCommandLineOption from{QStringLiteral("from"),
                            QStringLiteral("Begin the lesson at the item with this id."),
                            QStringLiteral("id")};
    QCommandLineOption record{
        QStringLiteral("record"),
        QStringLiteral("Write what is done in the editor to this new scenario file, step by step, with "
                       "catalogues of its texts beside it."),
        QStringLiteral("file")};
    QCommandLineOption dumpControls{
        QStringLiteral("dump-controls"),
        QStringLiteral("Print the windows with their controls and the position of a step that points at "
                       "each, as JSON.")};

    void addTo(QCommandLineParser *parser) const;

    /// What is wrong with the options; empty when nothing is.
    [[nodiscard]] QString problemOf(const QCommandLineParser &parser) const;

    /// Lets @p editor and its @p windows do what the options say, in the language @p locale; to be called
    /// before its start. What is wrong with the author's files goes to the error output.
    void apply(const QCommandLineParser &parser, const QString &locale, PracticeEditor *editor,
               EditorWindows *windows) const;
};

/// The output of --dump-controls. Empty, with lines in @p errors, when the descriptions cannot be read.
[[nodiscard]] QByteArray controlsForAuthors(QStringList *errors);
