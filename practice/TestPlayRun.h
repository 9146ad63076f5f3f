#pragma once

#include <QCommandLineOption>
#include <QString>

class QCommandLineParser;

/// What the command line has for test play without a window: a project is played by a script.
struct TestPlayOptions
{
    QCommandLineOption testPlay{
        QStringLiteral("test-play"),
        QStringLiteral("Play the project in this folder by a script, without a window, and say for each line "
                       "that expects something what was seen. The status is 0 when all was as expected, 1 "
                       "when something was not, 2 when project or script cannot be read."),
        QStringLiteral("folder")};
    QCommandLineOption script{
        QStringLiteral("script"),
        QStringLiteral("With --test-play: the file with the script, as docs/test-play.md tells."),
        QStringLiteral("file")};

    void addTo(QCommandLineParser *parser) const;

    /// Plays as the options say, in the language @p locale, and gives the status. Needs a core application.
    [[nodiscard]] int run(const QCommandLineParser &parser, const QString &locale) const;
};
