#include "DocumentFixture.h"
#include "LiveObjects.h"
#include "LogCapture.h"
#include "TutorialEditor/ItemClipboard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

const char *const kItems = R"([{"id":1,"name":"Intro","translationId":1,"hint":"h1"},
    {"id":2,"name":"Part","folder":true,"children":[{"id":3,"name":"In","translationId":2}]},
    {"id":4,"name":"End","translationId":3}])";

const char *const kManager = "..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::";

} // namespace

class tst_ItemClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesItemsWithTheirChildren();
    void anUnknownIdCopiesNothing_data();
    void anUnknownIdCopiesNothing();
    void noIdsGiveTheEmptyList();
    void pastingTwiceGivesNewNumbersAndNames();
    void textsOfAllLanguagesComeThrough();
    void pastesFromAnotherDocument();
    void pastesAFolderIntoAnotherDocument();
    void pasteInASequenceIsOneStep();
    void aPasteLeavesTheNoteThatIsThere();
    void pastesWithoutAHistory();
    void nothingIsPastedFromNoList_data();
    void nothingIsPastedFromNoList();
    void elementsThatCannotBeReadAreLeftOut();
    void whatIsLeftOutIsDeleted_data();
    void whatIsLeftOutIsDeleted();
    void callsAreLogged();
};

void tst_ItemClipboard::copiesItemsWithTheirChildren()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {4, 2, 3});
    QVERIFY(payload);
    QVERIFY(payload->startsWith("[ {\"id\":4,\"name\":\"End\","));
    QVERIFY(payload->contains("}, {\"id\":2,"));
    QVERIFY(payload->endsWith("\"folder\":false} ]"));
    const QJsonArray array = QJsonDocument::fromJson(*payload).array();
    QCOMPARE(array.size(), 3);
    QCOMPARE(array.at(1).toObject().value(QStringLiteral("children")).toArray().size(), 1);
    QCOMPARE(array.at(2).toObject().value(QStringLiteral("id")).toInt(),
             3); // twice, by itself and in its folder
    QCOMPARE(ItemClipboard::mimeType(), QStringLiteral("TutorialItemData/ItemList"));
    QCOMPARE(ItemClipboard::emptyMimeType(), QStringLiteral("Empty"));
}

void tst_ItemClipboard::anUnknownIdCopiesNothing_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("missing");
    QTest::newRow("unknown") << QList<int>{1, 77} << 77;
    QTest::newRow("the root, which is no item") << QList<int>{-1} << -1;
}

void tst_ItemClipboard::anUnknownIdCopiesNothing()
{
    QFETCH(QList<int>, ids);
    QFETCH(int, missing);
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    LogCapture log;
    QVERIFY(!ItemClipboard::copy(fixture.tree(), ids));
    QCOMPARE(log.lines(),
             QStringList{QLatin1String(kManager) +
                         QStringLiteral("copyTutorialItemList 1573 treeItem not found %1").arg(missing)});
}

void tst_ItemClipboard::noIdsGiveTheEmptyList()
{
    DocumentFixture fixture;
    const auto payload = ItemClipboard::copy(fixture.tree(), {});
    QVERIFY(payload);
    QCOMPARE(*payload, QByteArray("[  ]"));
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), QList<int>());
}

void tst_ItemClipboard::pastingTwiceGivesNewNumbersAndNames()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {1});
    QVERIFY(payload);
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), QList<int>{5});
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), QList<int>{6});
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3] 4 5 6"));
    QCOMPARE(fixture.item(5)->name, QStringLiteral("Intro(1)"));
    QCOMPARE(fixture.item(6)->name, QStringLiteral("Intro(2)"));
    QCOMPARE(fixture.item(5)->translationId, 4);
    QCOMPARE(fixture.item(6)->translationId, 5);
    QCOMPARE(fixture.item(6)->hint, QStringLiteral("h1"));
    QCOMPARE(fixture.item(6)->hint2, QStringLiteral("#1")); // of the number that it had
    QCOMPARE(fixture.item(1)->name, QStringLiteral("Intro"));
}

void tst_ItemClipboard::textsOfAllLanguagesComeThrough()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"é日本😀\",\"hint\":\"\\\"%1\\\" \\\\ 选择\\n<b>\"}]"),
             QStringList());
    const QString hint = fixture.item(1)->hint;
    QCOMPARE(hint, QStringLiteral("\"%1\" \\ 选择\n<b>"));
    const auto payload = ItemClipboard::copy(fixture.tree(), {1});
    QVERIFY(payload);
    QVERIFY(payload->contains("\"name\":\"\xC3\xA9\xE6\x97\xA5\xE6\x9C\xAC\xF0\x9F\x98\x80\""));
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), QList<int>{2});
    QCOMPARE(fixture.item(2)->name, QStringLiteral("é日本😀(1)"));
    QCOMPARE(fixture.item(2)->hint, hint);
}

void tst_ItemClipboard::pastesFromAnotherDocument()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {1, 4});
    QVERIFY(payload);
    QCOMPARE(fixture.load(R"([{"id":2,"name":"Intro","translationId":2}])"), QStringList());
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), (QList<int>{1, 3}));
    QCOMPARE(fixture.shape(), QStringLiteral("2 1 3"));
    QCOMPARE(fixture.item(1)->name, QStringLiteral("Intro(1)"));
    QCOMPARE(fixture.item(3)->name, QStringLiteral("End"));
    QCOMPARE(fixture.item(1)->translationId, 1);
    QCOMPARE(fixture.item(3)->translationId, 3);
}

void tst_ItemClipboard::pastesAFolderIntoAnotherDocument()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(R"([{"id":10,"name":"Part","folder":true,"children":[
                             {"id":5,"name":"a"},{"id":1,"name":"b"}]}])"),
             QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {10});
    QVERIFY(payload);
    QCOMPARE(fixture.load("[]"), QStringList());
    // The new numbers are numbers of the copied items too; each still gets its own.
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), QList<int>{1});
    QCOMPARE(fixture.shape(), QStringLiteral("1F"));
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3"));
    QCOMPARE(fixture.item(1)->name, QStringLiteral("Part"));
    QCOMPARE(fixture.item(2)->name, QStringLiteral("a"));
    QCOMPARE(fixture.item(3)->name, QStringLiteral("b"));
}

void tst_ItemClipboard::pasteInASequenceIsOneStep()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {2, 4});
    QVERIFY(payload);
    fixture.undoRedo().beginSequence(QStringLiteral("paste"));
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), (QList<int>{5, 7}));
    fixture.undoRedo().endSequence();
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3 6] 4 5 7"));
    QVERIFY(fixture.host.modified);
    fixture.undoRedo().undo();
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3] 4"));
    QVERIFY(!fixture.undoRedo().canUndo());
    fixture.undoRedo().redo();
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3 6] 4 5 7"));
    fixture.undoRedo().undo();
}

void tst_ItemClipboard::aPasteLeavesTheNoteThatIsThere()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {1, 2});
    QVERIFY(payload);
    fixture.undoRedo().beginSequence(QStringLiteral("paste"));
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), (QList<int>{5, 6}));
    fixture.undoRedo().endSequence();
    fixture.undoRedo().undo();
    fixture.undoRedo().redo();
    fixture.undoRedo().undo();
    QCOMPARE(fixture.host.notes, QStringList());
}

void tst_ItemClipboard::pastesWithoutAHistory()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const auto payload = ItemClipboard::copy(fixture.tree(), {1, 2});
    QVERIFY(payload);
    UndoRedo::publish(nullptr);
    QCOMPARE(ItemClipboard::paste(*payload, &fixture.document, fixture.texts), (QList<int>{5, 6}));
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F[3] 4 5 6F"));
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3 4 5 6 7"));
    QCOMPARE(fixture.item(5)->name, QStringLiteral("Intro(1)"));
}

void tst_ItemClipboard::nothingIsPastedFromNoList_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("object") << QByteArray("{\"id\":1}");
    QTest::newRow("broken") << QByteArray("[ {\"id\":1 ]");
}

void tst_ItemClipboard::nothingIsPastedFromNoList()
{
    QFETCH(QByteArray, payload);
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    LogCapture log;
    QCOMPARE(ItemClipboard::paste(payload, &fixture.document, fixture.texts), QList<int>());
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3 4"));
    QVERIFY(log.lines().constFirst().startsWith(QLatin1String(kManager) +
                                                QStringLiteral("pasteTutorialItemList 1621")));
    QVERIFY(!log.contains(QStringLiteral("pasteTutorialItemList 1649")));
    // What is empty is not even read; only broken text is complained of.
    QCOMPARE(log.warnings().isEmpty(), payload.isEmpty() || payload.startsWith('{'));
}

void tst_ItemClipboard::elementsThatCannotBeReadAreLeftOut()
{
    DocumentFixture fixture;
    QCOMPARE(ItemClipboard::paste(R"([ 5, {"id":8,"name":"a","children":[{"id":9}]}, {"name":"lost"} ])",
                                  &fixture.document, fixture.texts),
             QList<int>{1});
    QCOMPARE(fixture.shape(), QStringLiteral("1"));
    QCOMPARE(fixture.ids(), QStringLiteral("1"));
}

void tst_ItemClipboard::whatIsLeftOutIsDeleted_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("kept");
    QTest::newRow("all is pasted") << QByteArray(R"([ {"id":8,"folder":true,"children":[{"id":9}]} ])") << 2;
    QTest::newRow("children of an item that is no folder")
        << QByteArray(R"([ {"id":8,"children":[{"id":9,"children":[{"id":10}]}]} ])") << 1;
    QTest::newRow("item with children that are no list")
        << QByteArray(R"([ {"id":8,"children":[{"id":9},{"id":10,"children":3}]} ])") << 0;
}

void tst_ItemClipboard::whatIsLeftOutIsDeleted()
{
    QFETCH(QByteArray, payload);
    QFETCH(int, kept);
    DocumentFixture fixture;
    const LiveObjects objects;
    ItemClipboard::paste(payload, &fixture.document, fixture.texts);
    QCOMPARE(fixture.tree()->items.size(), kept);
    QCOMPARE(objects.more(), kept);
}

void tst_ItemClipboard::callsAreLogged()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    LogCapture log;
    const auto payload = ItemClipboard::copy(fixture.tree(), {1});
    QVERIFY(payload);
    QVERIFY(log.contains(QLatin1String(kManager) + QStringLiteral("setMimeData 1673")));
    ItemClipboard::paste(*payload, &fixture.document, fixture.texts);
    QVERIFY(log.contains(QLatin1String(kManager) + QStringLiteral("pasteTutorialItemList 1621")));
    QVERIFY(log.contains(QLatin1String(kManager) + QStringLiteral("pasteTutorialItemList 1649 (5)")));
}

QTEST_MAIN(tst_ItemClipboard)
#include "tst_ItemClipboard.moc"
