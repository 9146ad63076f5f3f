#include "player/script/commands/Operands.h"

#include "player/game/GameData.h"

#include <QCoreApplication>

namespace player::Operands {

int given(Interpreter &run, int by, int value)
{
    return by == 0 ? value : run.state().variable(value);
}

int change(Interpreter &run, int change, int by, int amount)
{
    const int most = GameState::kLargestVariable;
    const int value = qBound(-most, given(run, by, amount), most);
    return change == 0 ? value : -value;
}

QVector<Actor *> actors(Interpreter &run, int by, int actor)
{
    QVector<Actor *> actors;
    const int wanted = given(run, by, actor);
    if (wanted == 0 && by == 0) {
        const QVector<int> party = run.state().party;
        for (const int id : party) {
            actors.append(run.state().actor(id, run.data()));
        }
        return actors;
    }
    Actor *const found = run.state().actor(wanted, run.data());
    if (found == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no actor %1.").arg(wanted));
    } else {
        actors.append(found);
    }
    return actors;
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
    if (id >= 1 && id <= GameState::kLargestNumber) {
        return true;
    }
    run.tell(QCoreApplication::translate("TestPlay", "There is no switch or variable %1; the numbers go "
                                                     "from 1 to %2.")
                 .arg(id)
                 .arg(GameState::kLargestNumber));
    return false;
}

} // namespace player::Operands
