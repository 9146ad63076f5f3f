#include "player/run/ScriptRunner.h"

#include "player/run/Expectations.h"
#include "player/run/Steps.h"

#include <utility>

namespace player {

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
        addExpectations(&words);
        return words;
    }();
    return table;
}

QStringList ScriptRunner::patterns()
{
    return words().patterns();
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
    const QString start = QStringLiteral("line %1: ").arg(line.number);
    const std::optional<Seen> seen = words().run(&m_hand, line.words);
    if (!seen) {
        m_say(start + QStringLiteral("nobody knows what to do: %1").arg(line.text));
        return false;
    }
    if (!seen->isDone || line.words.constFirst() == QLatin1String("expect")) {
        const QString verdict = seen->isDone ? QStringLiteral("ok") : QStringLiteral("FAILED");
        m_say(start + QStringLiteral("%1: %2; seen: %3").arg(verdict, line.text, seen->text));
    }
    return seen->isDone;
}

} // namespace player
