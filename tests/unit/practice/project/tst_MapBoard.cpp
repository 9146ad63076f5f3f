#include "ProjectFixture.h"
#include "project/MapTree.h"

/// Cells of the map on show, and strokes on them.
class tst_MapBoard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsNothingWithoutAProject();
    void aStrokeIsOneStep();
    void strokesAreUndoneAndRedone();
    void paintsInTheFormatOfTheDataFile();
    void leavesTheRestOfTheFileAlone();
    void leavesNumbersAloneThatNoTileHas();
    void fillsUpAFileWithTooFewNumbers();
    void eraserEmptiesCellsOfTheLayer();
    void cellsOutsideAreLeftOut();
    void toolsCoverTheirCells();
};

void tst_MapBoard::showsNothingWithoutAProject()
{
    ProjectRoom room;
    QCOMPARE(room.project.board().number(), -1);
    QVERIFY(room.map() == nullptr);
    room.project.board().beginStroke();
    room.project.board().paint({{0, 0}});
    QVERIFY(room.map() == nullptr);
}

void tst_MapBoard::aStrokeIsOneStep()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    MapBoard &board = room.project.board();
    for (int stroke = 0; stroke < 2; ++stroke) {
        board.beginStroke();
        for (int x = 1; x < 6; ++x) {
            board.paint({{x, stroke}});
        }
    }
    QCOMPARE(room.project.files().history().count(), 2);
}

void tst_MapBoard::strokesAreUndoneAndRedone()
{
    ProjectRoom room;
    room.create();
    MapBoard &board = room.project.board();
    const int before = room.map()->tile(0, {2, 2});
    room.choose("tiles", 4);
    const QSignalSpy changed(&room.project, &Project::changed);
    board.beginStroke();
    board.paint({{2, 2}, {3, 2}});
    QVERIFY(!changed.isEmpty());
    QVERIFY(room.project.isModified());
    QCOMPARE(room.map()->tile(0, {3, 2}), 4);
    room.run("edit.undo");
    QCOMPARE(room.map()->tile(0, {2, 2}), before);
    QVERIFY(!room.project.isModified());
    room.run("edit.undo");
    room.run("edit.redo");
    QCOMPARE(room.map()->tile(0, {2, 2}), 4);
    room.run("edit.undo");
    board.beginStroke();
    board.paint({{5, 5}});
    room.run("edit.redo");
    QCOMPARE(room.map()->tile(0, {2, 2}), before);
    QCOMPARE(room.map()->tile(0, {5, 5}), 4);
}

void tst_MapBoard::paintsInTheFormatOfTheDataFile()
{
    ProjectRoom room;
    room.create();
    room.choose("tiles", 4);
    room.run("layer.2");
    room.project.board().paint({{3, 2}});
    const QJsonValue file = room.project.files().file(MapTree::fileOf(1));
    QCOMPARE(file[QLatin1String("data")].toArray().at(24 * 16 + 2 * 24 + 3).toInt(), 5);
}

void tst_MapBoard::leavesTheRestOfTheFileAlone()
{
    ProjectRoom room;
    room.create();
    const QString text = QStringLiteral("{ \"events\":[null,{\"x\":1.0}], \"height\":2,\"width\":2 "
                                        ",\n\"data\":[1,2,\n3,4, 0,0,0,0, 0,0,0,0]}\n");
    QVERIFY(room.project.replaceFiles(
        {{str("data/MapInfos.json"), str(R"([null,{"id":1,"name":"M","parentId":0,"order":1}])")},
         {MapTree::fileOf(1), text}}));
    room.choose("tiles", 6);
    room.project.board().paint({{1, 1}});
    room.run("project.save");
    QCOMPARE(room.failures, QStringList());
    QString painted = text;
    painted.replace(QStringLiteral("3,4,"), QStringLiteral("3,7,"));
    QCOMPARE(room.bytes(str("Quest/data/Map001.json")), painted.toUtf8());
}

void tst_MapBoard::leavesNumbersAloneThatNoTileHas()
{
    ProjectRoom room;
    room.create();
    const auto file = [](int last) {
        return QStringLiteral("{\"width\":2,\"height\":1,\"data\":[1,99,-3,0,0,%1]}").arg(last);
    };
    QVERIFY(room.project.replaceFiles(
        {{str("data/MapInfos.json"), str(R"([null,{"id":1,"name":"M","parentId":0,"order":1}])")},
         {MapTree::fileOf(1), file(0)}}));
    room.run("layer.3");
    room.choose("tiles", 1);
    room.project.board().paint({{1, 0}});
    room.run("project.save");
    QCOMPARE(room.bytes(str("Quest/data/Map001.json")), file(2).toUtf8());
}

void tst_MapBoard::fillsUpAFileWithTooFewNumbers()
{
    ProjectRoom room;
    room.create();
    QVERIFY(room.project.replaceFiles(
        {{str("data/MapInfos.json"), str(R"([null,{"id":1,"name":"M","parentId":0,"order":1}])")},
         {MapTree::fileOf(1), str(R"({"width":2,"height":1,"data":[3]})")}}));
    room.run("layer.2");
    room.project.board().paint({{1, 0}});
    room.run("project.save");
    QCOMPARE(room.bytes(str("Quest/data/Map001.json")),
             QByteArray(R"({"width":2,"height":1,"data":[3,0,0,1,0,0]})"));
}

void tst_MapBoard::eraserEmptiesCellsOfTheLayer()
{
    ProjectRoom room;
    room.create();
    const int ground = room.map()->tile(0, {0, 0});
    QVERIFY(room.map()->tile(1, {0, 0}) != GameMap::kEmpty);
    room.run("layer.2");
    room.run("tool.eraser");
    room.project.board().paint({{0, 0}});
    QCOMPARE(room.map()->tile(1, {0, 0}), int(GameMap::kEmpty));
    QCOMPARE(room.map()->tile(0, {0, 0}), ground);
}

void tst_MapBoard::cellsOutsideAreLeftOut()
{
    ProjectRoom room;
    room.create();
    room.project.board().paint({{-1, 0}, {24, 0}, {0, 16}});
    QVERIFY(!room.project.isModified());
    QCOMPARE(room.project.files().history().count(), 0);
}

void tst_MapBoard::toolsCoverTheirCells()
{
    ProjectRoom room;
    MapBoard &board = room.project.board();
    room.run("tool.fill");
    QVERIFY(board.cellsOfStroke({0, 0}, {4, 4}).isEmpty());
    room.create();
    const QPoint from(1, 1);
    const QPoint to(5, 5);
    QCOMPARE(board.cellsOfStroke(from, to), board.map()->connected(0, to));
    room.run("tool.pencil");
    QCOMPARE(board.cellsOfStroke(from, to).size(), 5);
    room.run("tool.rectangle");
    QCOMPARE(board.cellsOfStroke(from, to).size(), 25);
    room.run("tool.ellipse");
    QCOMPARE(board.cellsOfStroke(from, to).size(), 21);
    room.run("tool.eraser");
    QCOMPARE(board.cellsOfStroke(from, to).size(), 5);
}

QTEST_GUILESS_MAIN(tst_MapBoard)
#include "tst_MapBoard.moc"
