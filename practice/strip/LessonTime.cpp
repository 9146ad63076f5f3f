#include "strip/LessonTime.h"

namespace {

// Characters that a beginner reads in a second.
constexpr double kLetters = 15.0;
constexpr double kIdeographs = 7.0;

// Seconds to find the place and act there.
constexpr double kForNext = 1.5;
constexpr double kForClick = 4.0;
constexpr double kForTyping = 8.0;

constexpr int kMinute = 60;

/// Kana and Chinese characters, and what else is as wide.
bool isIdeograph(QChar character)
{
    return character.unicode() >= 0x2E80;
}

double secondsToRead(const QString &text)
{
    double seconds = 0;
    for (const QChar character : text) {
        seconds += 1 / (isIdeograph(character) ? kIdeographs : kLetters);
    }
    return seconds;
}

double secondsToAct(const Step &step)
{
    switch (step.condition.type()) {
    case Condition::Type::kWait:
        return step.condition.waitMs() / 1000.0;
    case Condition::Type::kNext:
    case Condition::Type::kYesNo:
        return kForNext;
    default:
        return step.icon == QLatin1String("keyboard") ? kForTyping : kForClick;
    }
}

} // namespace

int LessonTime::secondsOf(const Step &step)
{
    return qRound(secondsToRead(step.hint) + secondsToAct(step));
}

int LessonTime::minutesFrom(const Scenario &scenario, int index)
{
    int seconds = 0;
    for (int i = qMax(0, index); i < scenario.size(); ++i) {
        seconds += secondsOf(scenario.step(i));
    }
    return (seconds + kMinute - 1) / kMinute;
}
