#include "ProjectFixture.h"
#include "project/ProjectState.h"

#include <QDir>
#include <QJsonDocument>

namespace {

/// As it comes out of a file.
QJsonObject read(const QJsonObject &state)
{
    return QJsonDocument::fromJson(QJsonDocument(state).toJson()).object();
}

QMap<QString, QJsonValue> filesOf(ProjectRoom &room)
{
    QMap<QString, QJsonValue> files;
    const QStringList names = room.project.files().names();
    for (const QString &name : names) {
        files.insert(name, room.project.files().file(name));
    }
    return files;
}

void draw(ProjectRoom &room, int column)
{
    room.choose("tiles", 4);
    room.project.board().beginStroke();
    room.project.board().paint({{column, 3}});
}

} // namespace

/// The open project and the tools as a value, and back.
class tst_ProjectState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bringsTheDataBack();
    void bringsBackFilesThatAreGone();
    void theHistoryIsWhereItWas();
    void anotherRunCanUndoTheLastStep();
    void bringsBackTheProjectThatWasOpen();
    void aProjectThatIsGoneIsLeftAlone();
    void noProjectIsAStateToo();
    void bringsBackWhatIsTypedIntoADialog();
    void bringsTheToolsBack();
    void theNameOfTheLastStepTellsWhetherDataDiffer();
};

void tst_ProjectState::bringsTheDataBack()
{
    ProjectRoom room;
    room.create();
    room.choose("maps", 2);
    draw(room, 1);
    const auto before = filesOf(room);
    const QJsonObject state = ProjectState::save(room.project);
    room.choose("maps", 0);
    draw(room, 2);
    QVERIFY(filesOf(room) != before);
    QVERIFY(ProjectState::restore(state, room.project));
    QCOMPARE(filesOf(room), before);
    QCOMPARE(room.row("maps"), 2);
}

void tst_ProjectState::bringsBackFilesThatAreGone()
{
    ProjectRoom room;
    room.create();
    const auto before = filesOf(room);
    const QJsonObject state = read(ProjectState::save(room.project));
    room.choose("maps", 1);
    room.run("map.delete");
    room.run("map.new");
    QVERIFY(filesOf(room).keys() != before.keys());
    QVERIFY(ProjectState::restore(state, room.project));
    QCOMPARE(filesOf(room), before);
}

void tst_ProjectState::theHistoryIsWhereItWas()
{
    ProjectRoom room;
    room.create();
    const auto blank = filesOf(room);
    draw(room, 1);
    const QJsonObject state = ProjectState::save(room.project);
    draw(room, 2);
    const auto later = filesOf(room);
    QVERIFY(ProjectState::restore(state, room.project));
    QCOMPARE(room.project.files().history().count(), 2);
    room.run("edit.redo");
    QCOMPARE(filesOf(room), later);
    QVERIFY(ProjectState::restore(state, room.project));
    room.run("edit.undo");
    QCOMPARE(filesOf(room), blank);
}

void tst_ProjectState::anotherRunCanUndoTheLastStep()
{
    ProjectRoom room;
    room.create();
    draw(room, 1);
    const auto before = filesOf(room);
    draw(room, 2);
    const auto saved = filesOf(room);
    const QJsonObject state = read(ProjectState::save(room.project));
    ProjectRoom other;
    QVERIFY(ProjectState::restore(state, other.project));
    QCOMPARE(filesOf(other), saved);
    other.run("edit.undo");
    QCOMPARE(filesOf(other), before);
    QVERIFY(other.project.isModified());
}

void tst_ProjectState::bringsBackTheProjectThatWasOpen()
{
    ProjectRoom room;
    room.create("Quest");
    draw(room, 1);
    const auto before = filesOf(room);
    const QJsonObject state = ProjectState::save(room.project);
    room.create("Other");
    QCOMPARE(room.project.name(), str("Other"));
    QVERIFY(ProjectState::restore(state, room.project));
    QCOMPARE(room.project.name(), str("Quest"));
    QCOMPARE(filesOf(room), before);
}

void tst_ProjectState::aProjectThatIsGoneIsLeftAlone()
{
    ProjectRoom room;
    room.create("Quest");
    const QJsonObject state = ProjectState::save(room.project);
    room.create("Other");
    const auto before = filesOf(room);
    QVERIFY(QDir(room.path(str("Quest"))).removeRecursively());
    QVERIFY(!ProjectState::restore(state, room.project));
    QCOMPARE(room.project.name(), str("Other"));
    QCOMPARE(filesOf(room), before);
}

void tst_ProjectState::noProjectIsAStateToo()
{
    ProjectRoom room;
    const QJsonObject state = read(ProjectState::save(room.project));
    room.create();
    QVERIFY(ProjectState::restore(state, room.project));
    QVERIFY(!room.project.isOpen());
}

void tst_ProjectState::bringsBackWhatIsTypedIntoADialog()
{
    ProjectRoom room;
    room.create();
    DataLayer *draft = room.project.drafts().begin();
    room.choose("maps", 1);
    room.setField("data/MapInfos/{maps}/name", str("Meadow"));
    const QJsonObject state = read(draft->saveSelf());
    room.setField("data/MapInfos/{maps}/name", str("Marsh"));
    room.run("map.delete");
    draft->loadSelf(state);
    QCOMPARE(room.row("maps"), 1);
    QCOMPARE(room.field("data/MapInfos/{maps}/name").toString(), str("Meadow"));
    QVERIFY(!room.project.isModified());
}

void tst_ProjectState::bringsTheToolsBack()
{
    ProjectRoom room;
    room.create();
    for (const char *command : {"tool.ellipse", "layer.3", "mode.event", "view.grid", "view.zoomIn"}) {
        room.run(command);
    }
    room.choose("tileTab", 1);
    room.choose("tiles", 4);
    room.setField("newProject.name", str("Half typed"));
    const QJsonObject parts = read(room.project.states().save());
    ProjectRoom other;
    other.project.states().load(parts);
    for (const char *command : {"tool.ellipse", "layer.3", "mode.event", "view.grid"}) {
        QCOMPARE(other.isOn(str(command)), std::optional(true));
    }
    QCOMPARE(other.row("tileTab"), 1);
    QCOMPARE(other.row("tiles"), 4);
    QCOMPARE(other.project.tools().cellPixels(), 2 * EditorTools::kFullSize);
    QCOMPARE(other.field("newProject.name").toString(), str("Half typed"));
}

void tst_ProjectState::theNameOfTheLastStepTellsWhetherDataDiffer()
{
    ProjectRoom room;
    room.create();
    const QString blank = room.project.files().lastStep();
    draw(room, 1);
    const QString drawn = room.project.files().lastStep();
    QVERIFY(drawn != blank);
    room.run("edit.undo");
    QCOMPARE(room.project.files().lastStep(), blank);
    room.run("edit.redo");
    QCOMPARE(room.project.files().lastStep(), drawn);
    // A stroke that goes on is one step of the history, and yet the data are others.
    room.project.board().paint({{7, 7}});
    QVERIFY(room.project.files().lastStep() != drawn);
    QCOMPARE(room.project.files().history().count(), 1);
    room.create("Other");
    QVERIFY(room.project.files().lastStep() != blank);
}

QTEST_GUILESS_MAIN(tst_ProjectState)
#include "tst_ProjectState.moc"
