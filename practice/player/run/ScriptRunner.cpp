#include "player/run/ScriptRunner.h"

#include "player/run/Expectations.h"
#include "player/run/Steps.h"

#include <utility>

namespace player {

namespace {

QString unknownLine(const ScriptLine &line)
{
    return QStringLiteral("line %1: nobody knows what to do: %2").arg(line.number).arg(line.text);
}

} // namespace

ScriptRunner::ScriptRunner(Game *game, Say say)
    : m_hand(game)
    , m_say(std::move(say))
{
}

const WordTable &ScriptRunner::words()
{
    static const WordTable table = [] {
        WordTable words;
        addSteps(&words);
        addChanges(&words);
        addExpectations(&words);
        addExpectationsOfSight(&words);
        addExpectationsOfBattle(&words);
        return words;
    }();
    return table;
}

QStringList ScriptRunner::patterns()
{
    return words().patterns();
}

QStringList ScriptRunner::unknown(const QVector<ScriptLine> &lines)
{
    QStringList errors;
    for (const ScriptLine &line : lines) {
        if (!words().knows(line.words)) {
            errors.append(unknownLine(line));
        }
    }
    return errors;
}

bool ScriptRunner::run(const QVector<ScriptLine> &lines)
{
    for (const ScriptLine &line : lines) {
        if (!runLine(line)) {
            return false;
        }
    }
    return true;
}

bool ScriptRunner::runLine(const ScriptLine &line)
{
    const std::optional<Seen> seen = words().run(&m_hand, line.words);
    if (!seen) {
        m_say(unknownLine(line));
        return false;
    }
    if (!seen->isDone || line.words.constFirst() == QLatin1String("expect")) {
        const QString verdict = seen->isDone ? QStringLiteral("ok") : QStringLiteral("FAILED");
        m_say(QStringLiteral("line %1: %2: %3; seen: %4")
                  .arg(QString::number(line.number), verdict, line.text, seen->text));
    }
    return seen->isDone;
}

} // namespace player
