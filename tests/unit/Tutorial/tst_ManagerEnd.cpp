#include "ManagerFixture.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"
#include "UndoRedo/UnredoableCommand.h"

#include <QSignalSpy>

#include <algorithm>
#include <memory>
#include <new>

/// What the manager leaves behind when it goes.
class tst_ManagerEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void historyThatOutlivesTheManagerTellsNobody();
    void historyThatChangesWhenTheDocumentGoesTellsNobody();
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

void tst_ManagerEnd::historyThatChangesWhenTheDocumentGoesTellsNobody()
{
    auto manager = std::make_unique<TutorialManager>();
    UndoRedo history(nullptr, manager.get());
    UndoRedo::publish(&history);
    const QSignalSpy modified(manager.get(), &TutorialManager::modifiedChanged);
    bool gone = false;
    // An author's tool that empties its own list of steps along with the document.
    connect(TutorialEditor::Manager::instance(), &QObject::destroyed, this, [&] {
        gone = true;
        history.addCommand(std::make_unique<UnredoableCommand>());
        history.clear();
    });
    manager.reset();
    QVERIFY(gone);
    QCOMPARE(modified.size(), 0);
    QVERIFY(!history.canUndo());
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerEnd>(argc, argv);
}
#include "tst_ManagerEnd.moc"
