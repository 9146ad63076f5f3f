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
    /// Which way it takes where the lesson asks: "yes" or "no", or several answers for as many questions,
    /// such as "yes-no". The last one holds for all further questions.
    QString way;

    /// The name that the companion has for the lesson, such as "TutorialStep3".
    [[nodiscard]] QString lessonName() const;
    /// The sample project that the lesson starts from, such as "step3"; empty for one without.
    [[nodiscard]] QString step() const;
    /// Whether it answers yes, question by question; at least one.
    [[nodiscard]] QVector<bool> answers() const;
    /// As messages call it, such as "lesson 1 (ja_JP, yes)".
    [[nodiscard]] QString title() const;
    /// A name for its folder of pictures.
    [[nodiscard]] QString folderName() const;
};

/// Every play that the options lesson or scenario, locale and way of @p parser ask for, by lesson, language
/// and way. Empty, with a sentence in @p problem, when one of them says what there is not.
[[nodiscard]] QVector<PilotPlay> pilotPlays(const QCommandLineParser &parser, QString *problem);
