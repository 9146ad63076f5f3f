#pragma once

#include "player/game/Command.h"

#include <QHash>
#include <QSet>

namespace player {

class Interpreter;

/// What is done for each event command, by its code.
class CommandTable
{
public:
    using Handler = void (*)(Interpreter &, const Command &);

    /// nullptr for a code that nothing is done for.
    [[nodiscard]] Handler handler(int code) const { return m_handlers.value(code, nullptr); }
    /// Ends, lines and comments: nothing is done for them, and rightly so.
    [[nodiscard]] bool isSilent(int code) const { return m_silent.contains(code); }
    [[nodiscard]] bool knows(int code) const { return m_handlers.contains(code) || isSilent(code); }

    void add(int code, Handler doing) { m_handlers.insert(code, doing); }
    void addSilent(int code) { m_silent.insert(code); }

private:
    QHash<int, Handler> m_handlers;
    QSet<int> m_silent;
};

} // namespace player
