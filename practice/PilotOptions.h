#pragma once

#include "pilot/Pilot.h"

#include <QCommandLineOption>
#include <QMap>
#include <QStringList>

class QCommandLineParser;

/// What the command line has for the pilot, beside lesson, scenario and locale.
struct PilotOptions
{
    QCommandLineOption pilot{QStringLiteral("pilot"),
                             QStringLiteral("Let the lesson play itself, with real mouse and key events.")};
    QCommandLineOption way{
        QStringLiteral("way"),
        QStringLiteral(
            "With --pilot: what it answers to the questions of a lesson, yes (default), no, yes-no "
            "and the like for one question after the other, or both, yes and then no. --lesson and "
            "--locale take all, too."),
        QStringLiteral("answer"), QStringLiteral("yes")};
    QCommandLineOption shots{QStringLiteral("shots"),
                             QStringLiteral("With --pilot: leave a picture of each step in this folder."),
                             QStringLiteral("folder")};
    QCommandLineOption broken{
        QStringLiteral("broken"),
        QStringLiteral("With --pilot: leave pictures of broken steps in this folder, without --shots; by "
                       "default in one of its own among the temporary files."),
        QStringLiteral("folder")};
    QCommandLineOption mistakes{
        QStringLiteral("mistakes"),
        QStringLiteral("With --pilot: in each step do something wrong first, and follow the arrow back.")};
    QCommandLineOption clock{
        QStringLiteral("clock"),
        QStringLiteral("With --pilot: this program's clock runs so many times as fast as that of the X "
                       "server, as under faketime (scripts/play-all)."),
        QStringLiteral("times"), QStringLiteral("1")};
    QCommandLineOption projects{
        QStringLiteral("projects"),
        QStringLiteral(
            "With --pilot: have the projects in this folder, and leave them there. The way no opens "
            "one of it; where there is none, the data of the lesson are put there. By default it is "
            "a folder of its own that goes away."),
        QStringLiteral("folder")};
    QCommandLineOption outcomes{
        QStringLiteral("outcomes"),
        QStringLiteral(
            "With --pilot: play the project that the lesson leaves by the script of its name in this "
            "folder, such as TutorialStep3.play."),
        QStringLiteral("folder")};

    void addTo(QCommandLineParser *parser) const;

    /// What is wrong with the options; empty when nothing is.
    [[nodiscard]] QString problemOf(const QCommandLineParser &parser) const;
    /// For one play, but for what is the play's own.
    [[nodiscard]] Pilot::Settings settings(const QCommandLineParser &parser) const;
    /// The options that hold for each play of a series.
    [[nodiscard]] QStringList forEachPlay(const QCommandLineParser &parser) const;
    /// The folders of a series, in which each play gets one of its own, by the options that name them.
    [[nodiscard]] QMap<QString, QString> folders(const QCommandLineParser &parser) const;
};
