#include "DocumentFixture.h"
#include "LogCapture.h"
#include "TutorialEditor/CopySubtree.h"
#include "TutorialEditor/ItemIndex.h"
#include "TutorialEditor/UsedValues.h"
#include "tool/JsonWrapper.h"

#include <QTest>

#include <memory>

namespace {

/// 1F[2 3F[4 5] 6] 7[8]
ItemTree sampleTree()
{
    Node three(3, true);
    three.children << Node(4, false) << Node(5, false);
    Node one(1, true);
    one.children << Node(2, false) << three << Node(6, false);
    Node seven(7, false);
    seven.children << Node(8, false);
    ItemTree tree;
    tree.root = Node(-1, true);
    tree.root.children << one << seven;
    return tree;
}

} // namespace

class tst_ItemTreeOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultNodeIsNoFolderAndHasNoId();
    void aCopiedNodeHasItsOwnChildren();
    void findItemTakesTheFirstInPreOrder();
    void findParentGivesThePlace();
    void removeItemTakesTheFirstWithAllBelow();
    void removeChildAtIgnoresAnIndexOutside_data();
    void removeChildAtIgnoresAnIndexOutside();
    void itemsAreFoundByTheirFirstId();

    void createFromJsonListsParentsFirst();
    void createFromJsonKeepsTheChildrenOfALeaf();
    void createFromJsonLeavesOutAChildWithoutId();
    void createFromJsonRefusesWhatItCannotRead_data();
    void createFromJsonRefusesWhatItCannotRead();
    void toJsonPutsTheChildrenOfAFolderLast();
    void toJsonOfAnUnknownItemIsEmpty();
    void toJsonLeavesOutAChildWithoutItsItem();

    void copySubtreeGivesNewNumbersAndANewName();
    void copySubtreeLeavesTheNodesOfChildrenBehind();
    void copySubtreeInATransactionGoesThroughTheHistory();
    void copySubtreeOfAnUnknownItemIsNothing();
};

void tst_ItemTreeOperations::aDefaultNodeIsNoFolderAndHasNoId()
{
    const Node node;
    QCOMPARE(node.id, -1);
    QVERIFY(!node.folder);
    QVERIFY(node.children.isEmpty());
}

void tst_ItemTreeOperations::aCopiedNodeHasItsOwnChildren()
{
    ItemTree tree = sampleTree();
    Node copy = tree.root.children.first();
    copy.children.first().id = 99;
    QCOMPARE(DocumentFixture::shapeOf(tree.root), QStringLiteral("1F[2 3F[4 5] 6] 7[8]"));
}

void tst_ItemTreeOperations::findItemTakesTheFirstInPreOrder()
{
    ItemTree tree = sampleTree();
    QCOMPARE(findItem(&tree, -1), &tree.root);
    QCOMPARE(findItem(&tree, 8)->id, 8);
    QCOMPARE(findItem(&tree, 99), nullptr);
    // The same id twice: deep in the first child comes before the second child.
    tree.root.children.append(Node(5, true));
    QVERIFY(!findItem(&tree, 5)->folder);
}

void tst_ItemTreeOperations::findParentGivesThePlace()
{
    ItemTree tree = sampleTree();
    int index = 77;
    QCOMPARE(findParent(&tree.root, 5, &index)->id, 3);
    QCOMPARE(index, 1);
    QCOMPARE(findParent(&tree.root, 7, &index), &tree.root);
    QCOMPARE(index, 1);
    QCOMPARE(findParent(&tree.root, -1, &index), nullptr);
    QCOMPARE(index, -1);
    index = 77;
    QCOMPARE(findParent(&tree.root, 99, &index), nullptr);
    QCOMPARE(index, -1);
}

void tst_ItemTreeOperations::removeItemTakesTheFirstWithAllBelow()
{
    ItemTree tree = sampleTree();
    removeItem(&tree, 3);
    QCOMPARE(DocumentFixture::shapeOf(tree.root), QStringLiteral("1F[2 6] 7[8]"));
    tree.root.children.append(Node(2, false));
    removeItem(&tree, 2);
    QCOMPARE(DocumentFixture::shapeOf(tree.root), QStringLiteral("1F[6] 7[8] 2"));
    removeItem(&tree, -1);
    removeItem(&tree, 99);
    QCOMPARE(DocumentFixture::shapeOf(tree.root), QStringLiteral("1F[6] 7[8] 2"));
}

void tst_ItemTreeOperations::removeChildAtIgnoresAnIndexOutside_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("left");
    QTest::newRow("first") << 0 << QStringLiteral("7[8]");
    QTest::newRow("last") << 1 << QStringLiteral("1F[2 3F[4 5] 6]");
    QTest::newRow("the size") << 2 << QStringLiteral("1F[2 3F[4 5] 6] 7[8]");
    QTest::newRow("below zero") << -1 << QStringLiteral("1F[2 3F[4 5] 6] 7[8]");
}

void tst_ItemTreeOperations::removeChildAtIgnoresAnIndexOutside()
{
    QFETCH(int, index);
    QFETCH(QString, left);
    ItemTree tree = sampleTree();
    removeChildAt(&tree.root.children, index);
    QCOMPARE(DocumentFixture::shapeOf(tree.root), left);
}

void tst_ItemTreeOperations::itemsAreFoundByTheirFirstId()
{
    TutorialItemData one;
    TutorialItemData two;
    TutorialItemData twoAgain;
    one.setId(1);
    two.setId(2);
    twoAgain.setId(2);
    const QList<TutorialItemData *> items{&one, &two, &twoAgain};
    QCOMPARE(findData(&items, 2), &two);
    QCOMPARE(indexOfData(items, 2), 1);
    QCOMPARE(findData(&items, 3), nullptr);
    QCOMPARE(indexOfData(items, 3), -1);
    const ItemIndex index(items);
    QCOMPARE(index.find(2), &two);
    QCOMPARE(index.find(3), nullptr);
}

void tst_ItemTreeOperations::createFromJsonListsParentsFirst()
{
    const ScenarioTexts texts;
    QList<TutorialItemData *> items;
    QStringList errors;
    const std::unique_ptr<Node> node(
        createFromJson(JsonWrapper(QStringLiteral(
                           R"({"id":5,"folder":true,"children":[{"id":3,"folder":true,"children":[{"id":4}]},
                                      {"id":1,"folder":false}]})")),
                       &items, texts, &errors, QStringLiteral("Item 1")));
    QVERIFY(node);
    QCOMPARE(node->id, 5);
    QVERIFY(node->folder);
    QCOMPARE(DocumentFixture::shapeOf(*node), QStringLiteral("3F[4] 1"));
    QList<int> ids;
    for (const TutorialItemData *data : qAsConst(items)) {
        ids << data->id;
    }
    QCOMPARE(ids, (QList<int>{5, 3, 4, 1}));
    QVERIFY(errors.isEmpty());
    qDeleteAll(items);
}

void tst_ItemTreeOperations::createFromJsonKeepsTheChildrenOfALeaf()
{
    const ScenarioTexts texts;
    QList<TutorialItemData *> items;
    const std::unique_ptr<Node> node(createFromJson(
        JsonWrapper(QStringLiteral(R"({"id":5,"children":[{"id":6}]})")), &items, texts, nullptr, {}));
    QVERIFY(node);
    QVERIFY(!node->folder);
    QCOMPARE(DocumentFixture::shapeOf(*node), QStringLiteral("6"));
    qDeleteAll(items);
}

void tst_ItemTreeOperations::createFromJsonLeavesOutAChildWithoutId()
{
    const ScenarioTexts texts;
    QList<TutorialItemData *> items;
    QStringList errors;
    LogCapture log;
    const std::unique_ptr<Node> node(
        createFromJson(JsonWrapper(QStringLiteral(
                           R"({"id":5,"folder":true,"children":[{"id":6},{"name":"lost"},7,{"id":8}]})")),
                       &items, texts, &errors, QStringLiteral("Item 2")));
    QVERIFY(node);
    QCOMPARE(DocumentFixture::shapeOf(*node), QStringLiteral("6 8"));
    QCOMPARE(errors,
             (QStringList{QStringLiteral("Item 2, child 2 is left out: it is no object with an \"id\""),
                          QStringLiteral("Item 2, child 3 is left out: it is no object with an \"id\"")}));
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().constFirst().contains(
        QStringLiteral("TutorialItemData::fromJson 329 \"m_object doesn't have key: id\"")));
    qDeleteAll(items);
}

void tst_ItemTreeOperations::createFromJsonRefusesWhatItCannotRead_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no id") << QStringLiteral("{}")
                           << QStringLiteral("Item 4 is left out: it is no object with an \"id\"")
                           << QStringLiteral("TutorialItemData::fromJson 329");
    QTest::newRow("no object") << QStringLiteral("12")
                               << QStringLiteral("Item 4 is left out: it is no object with an \"id\"")
                               << QStringLiteral("TutorialItemData::fromJson 329");
    QTest::newRow("children are no array")
        << QStringLiteral(R"({"id":1,"children":[{"id":2,"children":3}]})")
        << QStringLiteral("Item 4 is left out: toArray() is called for kValue.")
        << QStringLiteral(
               "TreeItem<class TutorialItemData>::createFromJson 58 \"toArray() is called for kValue.\"");
}

void tst_ItemTreeOperations::createFromJsonRefusesWhatItCannotRead()
{
    QFETCH(QString, json);
    QFETCH(QString, error);
    QFETCH(QString, warning);
    const ScenarioTexts texts;
    TutorialItemData present;
    QList<TutorialItemData *> items{&present};
    QStringList errors;
    LogCapture log;
    const std::unique_ptr<Node> node(
        createFromJson(JsonWrapper(json), &items, texts, &errors, QStringLiteral("Item 4")));
    QVERIFY(!node);
    QCOMPARE(items, QList<TutorialItemData *>{&present});
    QCOMPARE(errors, QStringList{error});
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().constFirst().contains(warning), qPrintable(log.warnings().constFirst()));
}

void tst_ItemTreeOperations::toJsonPutsTheChildrenOfAFolderLast()
{
    DocumentFixture fixture;
    QVERIFY(
        fixture
            .load(R"([{"id":1,"name":"F","folder":true,"children":[{"id":2,"name":"a","children":[{"id":3}]},
                             {"id":4,"name":"E","folder":true,"children":[]}]}])")
            .isEmpty());
    const ItemIndex items(fixture.tree()->items);
    const QString text = toJson(*findItem(fixture.tree(), 1), items);
    QVERIFY2(text.startsWith(QStringLiteral(R"({"id":1,"name":"F","translationId":-1,)")), qPrintable(text));
    QVERIFY2(
        text.contains(QStringLiteral(R"("prohibited":false,"folder":true,"children":[{"id":2,"name":"a")")),
        qPrintable(text));
    // The child of a leaf and the empty list of a folder are not written.
    QVERIFY(!text.contains(QStringLiteral("\"id\":3")));
    QVERIFY2(text.endsWith(QStringLiteral(R"("prohibited":false,"folder":true}]})")), qPrintable(text));
    QVERIFY(!text.contains(QLatin1Char('\n')));
}

void tst_ItemTreeOperations::toJsonOfAnUnknownItemIsEmpty()
{
    const ItemIndex none{QList<TutorialItemData *>()};
    QCOMPARE(toJson(Node(1, false), none), QString());
    TutorialItemData folder;
    folder.setId(1);
    Node node(1, true);
    node.children.append(Node(2, false));
    const ItemIndex one(QList<TutorialItemData *>{&folder});
    QVERIFY(toJson(node, one).endsWith(QStringLiteral("\"folder\":true,\"children\":[]}")));
}

void tst_ItemTreeOperations::toJsonLeavesOutAChildWithoutItsItem()
{
    TutorialItemData folder;
    TutorialItemData child;
    folder.setId(1);
    child.setId(3);
    const ItemIndex items(QList<TutorialItemData *>{&folder, &child});
    Node node(1, true);
    node.children << Node(2, false) << Node(3, false) << Node(4, false);
    const QString text = toJson(node, items);
    QVERIFY2(text.contains(QStringLiteral("\"folder\":true,\"children\":[{\"id\":3,")), qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral("\"folder\":false}]}")), qPrintable(text));
}

void tst_ItemTreeOperations::copySubtreeGivesNewNumbersAndANewName()
{
    DocumentFixture fixture;
    QVERIFY(
        fixture.load(R"([{"id":1,"name":"Intro","translationId":1},{"id":3,"name":"End","translationId":2}])")
            .isEmpty());
    UsedValues used(fixture.tree()->items);
    for (int copy = 1; copy <= 2; ++copy) {
        auto data = std::make_unique<TutorialItemData>();
        data->id = 3;
        data->name = QStringLiteral("Intro");
        data->hint = QStringLiteral("kept");
        ItemTree source;
        source.items << data.get();
        source.root.children << Node(3, false);
        const TutorialItemData *moved = data.release();
        const int newId = copySubtree(&fixture.document, &used, &source, &fixture.tree()->root, 3, {});
        QCOMPARE(newId, copy == 1 ? 2 : 4);
        QCOMPARE(fixture.tree()->items.last(), moved);
        QCOMPARE(moved->id, newId);
        QCOMPARE(moved->translationId, copy + 2);
        QCOMPARE(moved->name, QStringLiteral("Intro(%1)").arg(copy));
        QCOMPARE(moved->hint, QStringLiteral("kept"));
        QVERIFY(source.items.isEmpty());
    }
    QCOMPARE(fixture.shape(), QStringLiteral("1 3 2 4"));
    QVERIFY(!fixture.undoRedo().canUndo());
    delete fixture.tree()->items.takeLast();
    delete fixture.tree()->items.takeLast();
}

void tst_ItemTreeOperations::copySubtreeLeavesTheNodesOfChildrenBehind()
{
    DocumentFixture fixture;
    ItemTree source;
    QVERIFY(fixture.load(R"([{"id":1,"name":"x"}])").isEmpty());
    const std::unique_ptr<Node> node(createFromJson(
        JsonWrapper(QStringLiteral(
            R"({"id":9,"folder":true,"name":"f","children":[{"id":2,"name":"a"},{"id":3,"name":"b"}]})")),
        &source.items, fixture.texts, nullptr, {}));
    source.root.children << *node;
    UsedValues used(fixture.tree()->items);
    QCOMPARE(copySubtree(&fixture.document, &used, &source, &fixture.tree()->root, 9, {}), 2);
    QCOMPARE(fixture.shape(), QStringLiteral("1 2F"));
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3 4"));
    QCOMPARE(fixture.item(3)->name, QStringLiteral("a"));
    QCOMPARE(fixture.item(4)->name, QStringLiteral("b"));
    QCOMPARE(DocumentFixture::shapeOf(source.root), QStringLiteral("9F[2 3 3 4]"));
}

void tst_ItemTreeOperations::copySubtreeInATransactionGoesThroughTheHistory()
{
    DocumentFixture fixture;
    QVERIFY(
        fixture.load(R"([{"id":9,"folder":true,"name":"f","children":[{"id":2,"name":"a"}]}])").isEmpty());
    ItemTree source;
    const std::unique_ptr<Node> node(createFromJson(
        JsonWrapper(QStringLiteral(R"({"id":9,"folder":true,"name":"f","children":[{"id":2,"name":"a"}]})")),
        &source.items, fixture.texts, nullptr, {}));
    source.root.children << *node;
    UsedValues used(fixture.tree()->items);
    fixture.undoRedo().beginSequence(QStringLiteral("paste"));
    QCOMPARE(copySubtree(&fixture.document, &used, &source, &fixture.tree()->root, 9, {}), 1);
    fixture.undoRedo().endSequence();
    // The copied child goes to the folder whose id the copied folder had, and the new node is no folder.
    QCOMPARE(fixture.shape(), QStringLiteral("9F[2 3] 1"));
    QCOMPARE(fixture.ids(), QStringLiteral("9 2 1 3"));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.shape(), QStringLiteral("9F[2]"));
    QCOMPARE(fixture.ids(), QStringLiteral("9 2"));
}

void tst_ItemTreeOperations::copySubtreeOfAnUnknownItemIsNothing()
{
    DocumentFixture fixture;
    ItemTree source;
    UsedValues used(fixture.tree()->items);
    QCOMPARE(copySubtree(&fixture.document, &used, &source, &fixture.tree()->root, 9, {}), -1);
    source.root.children << Node(9, false);
    QCOMPARE(copySubtree(&fixture.document, &used, &source, &fixture.tree()->root, 9, {}), -1);
    QVERIFY(fixture.tree()->items.isEmpty());
    QCOMPARE(used.ids.take(), 1);
}

QTEST_MAIN(tst_ItemTreeOperations)
#include "tst_ItemTreeOperations.moc"
