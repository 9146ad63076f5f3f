#include "player/script/commands/Operands.h"

#include "player/game/GameData.h"
#include "player/game/Numbers.h"

#include <QCoreApplication>

namespace player::Operands {

int given(Interpreter &run, int by, int value)
{
    if (by == 0) {
        return value;
    }
    return isNumber(run, value) ? run.state().variable(value) : 0;
}

int change(Interpreter &run, int change, int by, int amount)
{
    const int most = GameState::kLargestVariable;
    const int value = qBound(-most, given(run, by, amount), most);
    return change == 0 ? value : -value;
}

QVector<Actor *> actors(Interpreter &run, int by, int actor)
{
    const int wanted = given(run, by, actor);
    if (wanted == 0 && by == 0) {
        QVector<Actor *> actors;
        const QVector<int> party = run.state().party;
        for (const int id : party) {
            actors.append(run.state().actor(id, run.data()));
        }
        return actors;
    }
    return oneActor(run, wanted);
}

QVector<Actor *> oneActor(Interpreter &run, int actor)
{
    Actor *const found = run.state().actor(actor, run.data());
    if (found == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no actor %1.").arg(actor));
        return {};
    }
    return {found};
}

bool compare(int left, int comparison, int right)
{
    switch (comparison) {
    case 0:
        return left == right;
    case 1:
        return left >= right;
    case 2:
        return left <= right;
    case 3:
        return left > right;
    case 4:
        return left < right;
    case 5:
        return left != right;
    default:
        return false;
    }
}

bool isNumber(Interpreter &run, int id)
{
    if (id >= 1 && id <= kLargestNumber) {
        return true;
    }
    run.tell(QCoreApplication::translate("TestPlay", "There is no switch or variable %1; the numbers go "
                                                     "from 1 to %2.")
                 .arg(id)
                 .arg(kLargestNumber));
    return false;
}

} // namespace player::Operands
