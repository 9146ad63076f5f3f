#pragma once

#include <QString>
#include <QVector>

class QCommandLineParser;

/// One lesson as the pilot is to play it.
struct PilotPlay
{
    /// Its number, and 0 for the one of the file at the path scenario.
    int lesson = 0;
    QString scenario;
    QString locale;
    /// Which way it takes where the lesson asks a question: "yes" or "no".
    QString way;

    /// As messages call it, such as "lesson 1 (ja_JP, yes)".
    [[nodiscard]] QString title() const;
    /// A name for its folder of pictures.
    [[nodiscard]] QString folderName() const;
};

/// Every play that the options lesson or scenario, locale and way of @p parser ask for, by lesson, language
/// and way. Empty, with a sentence in @p problem, when one of them says what there is not.
[[nodiscard]] QVector<PilotPlay> pilotPlays(const QCommandLineParser &parser, QString *problem);
