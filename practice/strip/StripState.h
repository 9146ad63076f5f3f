#pragma once

#include <QString>

/// What the lesson strip shows. A plain value: what is shown when is decided without a widget.
struct StripState
{
    enum class Phase {
        /// No lesson runs.
        kIdle,
        /// A lesson runs; all below is of its present step.
        kPlaying,
        /// The lesson was played to its end.
        kFinished,
    };

    Phase phase = Phase::kIdle;
    /// Of the lesson, with its number; empty before one is chosen.
    QString title;
    /// Number of the step, from 1, and how many there are.
    int step = 0;
    int steps = 0;
    int minutesLeft = 0;
    /// What the bubble says, or what the strip has to tell by itself.
    QString text;
    /// The step ends with the button Next, or with Yes or No.
    bool hasNext = false;
    bool hasYesNo = false;
    /// The hint asks to drag.
    bool drags = false;
    bool canGoBack = false;
    bool offersHelp = false;
    bool canPutBack = false;
    /// Another lesson follows, which can be played.
    bool hasNextLesson = false;
};
