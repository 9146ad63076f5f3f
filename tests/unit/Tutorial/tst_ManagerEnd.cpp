#include "ManagerFixture.h"
#include "UndoRedo/UndoRedo.h"
#include "UndoRedo/UnredoableCommand.h"

#include <algorithm>
#include <memory>
#include <new>

/// What the manager leaves behind when it goes.
class tst_ManagerEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void historyThatOutlivesTheManagerTellsNobody();
};

void tst_ManagerEnd::historyThatOutlivesTheManagerTellsNobody()
{
    // As with an empty key: the manager goes first, and main's history stays.
    alignas(TutorialManager) static unsigned char room[sizeof(TutorialManager)];
    auto *manager = new (room) TutorialManager;
    UndoRedo history(nullptr, manager);
    UndoRedo::publish(&history);
    history.addCommand(std::make_unique<UnredoableCommand>());
    QVERIFY(manager->modified());
    manager->~TutorialManager();
    // Whoever calls anything on it now jumps to nowhere.
    std::fill(std::begin(room), std::end(room), static_cast<unsigned char>(0xff));
    history.addCommand(std::make_unique<UnredoableCommand>());
    history.undo();
    history.undoAndMakeUnredoable();
    history.markSaved();
    history.clear();
    QVERIFY(!history.canUndo());
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerEnd>(argc, argv);
}
#include "tst_ManagerEnd.moc"
