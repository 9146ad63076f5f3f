#include "DataLayerFixture.h"
#include "project/Drafts.h"
#include "project/ListCommands.h"

#include <QtTest>

/// What is done with the entries of lists: in lists that know them by their numbers, and in others.
class tst_ListCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void addsAnEntry_data();
    void addsAnEntry();
    void addingMakesAListThatIsMissing();
    void removesAnEntry_data();
    void removesAnEntry();
    void removingTheLastSelectsTheOneBefore();
    void anEmptyEntryAtTheEndGoes();
    void thereAreNoMoreThanCanBeCounted();
    void whatIsAddedStandsApart();
    void tellsHowManyAreLost();
    void pastesWhatWasCopied_data();
    void pastesWhatWasCopied();
    void pastesIntoListsOfOneKindOnly();
    void movesAnEntry();
    void resizesAList_data();
    void resizesAList();
    void cannotRunWhereThereIsNothingToDo_data();
    void cannotRunWhereThereIsNothingToDo();
    void eachIsAStepOfItsOwn();
    void theEntryIsTheOneThatWasNamedLast();
    void whatIsAddedInADraftGoesWithIt();

private:
    void run(const char *command, DataLayer &layer, const char *entry = nullptr)
    {
        m_commands.run(str(command), layer,
                       entry != nullptr ? json(entry) : QJsonValue(QJsonValue::Undefined));
    }
    void run(const char *command, const char *entry = nullptr) { run(command, *m_files, entry); }
    [[nodiscard]] QJsonValue items() const { return m_files->file(str("data/Items.json")); }

    std::unique_ptr<Files> m_files;
    std::unique_ptr<ListCommands> m_lists;
    RowSources m_sources;
    std::unique_ptr<Fields> m_fields;
    Commands m_commands;
};

void tst_ListCommands::init()
{
    m_files = std::make_unique<Files>();
    m_sources = RowSources();
    m_fields = std::make_unique<Fields>(&m_sources);
    m_commands = Commands();
    m_lists = std::make_unique<ListCommands>(&m_sources);
    m_lists->addTo(m_commands, *m_fields, m_sources);
}

void tst_ListCommands::addsAnEntry_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<int>("number");
    const auto row = [](const char *name, const char *list, int selected, const char *entry,
                        const char *result, int number) {
        QTest::newRow(name) << QByteArray(list) << selected << QByteArray(entry) << QByteArray(result)
                            << number;
    };
    row("behind the selected one", "[10, 20]", 0, "5", "[10, 5, 20]", 1);
    row("at the end", "[10, 20]", 1, "5", "[10, 20, 5]", 2);
    row("in an empty list", "[]", -1, "5", "[5]", 0);
    row("in a list that is null", "null", -1, "5", "[5]", 0);
    row("like the last, but empty", R"([{"a": 1, "b": ["x"], "c": {"d": "y", "e": true}}])", 0, "",
        R"([{"a": 1, "b": ["x"], "c": {"d": "y", "e": true}}, {"a": 0, "b": [], "c": {"d": "", "e": false}}])",
        1);
    row("with its number", R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": "b"}])", 1, R"({"n": "c"})",
        R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": "b"}, {"id": 3, "n": "c"}])", 3);
    row("like the last, with its number", R"([null, {"id": 1, "n": "a"}])", 1, "",
        R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": ""}])", 2);
    row("the first with a number", "[null]", -1, R"({"id": 0, "n": "c"})", R"([null, {"id": 1, "n": "c"}])",
        1);
    row("a text with a number", R"([null, "Gate"])", 1, "", R"([null, "Gate", ""])", 2);
    row("the first of an empty list", "[null]", -1, "", R"([null, ""])", 1);
}

void tst_ListCommands::addsAnEntry()
{
    QFETCH(QByteArray, list);
    QFETCH(int, selected);
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, result);
    QFETCH(int, number);
    m_files->put("data/Items.json", list.constData());
    m_files->select(str("data/Items"), selected);
    run("list.add data/Items", entry.isEmpty() ? nullptr : entry.constData());
    QCOMPARE(items(), json(result.constData()));
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), number);
}

void tst_ListCommands::addingMakesAListThatIsMissing()
{
    m_files->put("data/Items.json", R"([null, {"a/b": {}}])");
    run("list.add data/Items/{items}/a~1b/effects", R"({"hp": 1})");
    QCOMPARE(items(), json(R"([null, {"a/b": {"effects": [{"hp": 1}]}}])"));
    // But no file, and nothing in an entry that is not there.
    run("list.add data/Skills", "1");
    run("list.add data/Skills/{skills}/effects", "1");
    QVERIFY(m_files->file(str("data/Skills.json")).isUndefined());
}

void tst_ListCommands::removesAnEntry_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QByteArray>("result");
    QTest::newRow("from a list") << QByteArray("[10, 20, 30]") << 1 << QByteArray("[10, 30]");
    QTest::newRow("the only one") << QByteArray("[10]") << 0 << QByteArray("[]");
    QTest::newRow("known by its number")
        << QByteArray(R"([null, {"id": 1, "n": "a", "e": [1], "o": {"k": true}}, {"id": 2, "n": "b"}])") << 1
        << QByteArray(R"([null, {"id": 1, "n": "", "e": [], "o": {"k": false}}, {"id": 2, "n": "b"}])");
    QTest::newRow("a text known by its number")
        << QByteArray(R"([null, "Gate", "Lamp"])") << 2 << QByteArray(R"([null, "Gate", ""])");
}

void tst_ListCommands::removesAnEntry()
{
    QFETCH(QByteArray, list);
    QFETCH(int, selected);
    QFETCH(QByteArray, result);
    m_files->put("data/Items.json", list.constData());
    m_files->select(str("data/Items"), selected);
    run("list.remove data/Items");
    QCOMPARE(items(), json(result.constData()));
}

void tst_ListCommands::removingTheLastSelectsTheOneBefore()
{
    m_files->put("data/Items.json", "[10, 20, 30]");
    m_files->select(str("data/Items"), 1);
    run("list.remove data/Items");
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), 1);
    run("list.remove data/Items");
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), 0);
    run("list.remove data/Items");
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), -1);
    run("list.remove data/Items");
    QCOMPARE(items(), json("[]"));
}

void tst_ListCommands::anEmptyEntryAtTheEndGoes()
{
    m_files->put("data/Items.json", R"([null, {"id": 1, "n": ""}, {"id": 2, "n": "b"}, {"id": 3, "n": ""}])");
    const auto count = [this] {
        return int(items().toArray().size()) - 1;
    };
    // One in between stays, as the numbers of those behind it do.
    m_files->select(str("data/Items"), 1);
    run("list.remove data/Items");
    QCOMPARE(count(), 3);
    m_files->select(str("data/Items"), 3);
    run("list.remove data/Items");
    QCOMPARE(count(), 2);
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), 2);
    // What was in it goes first.
    run("list.remove data/Items");
    QCOMPARE(count(), 2);
    QCOMPARE(items().toArray().at(2), json(R"({"id": 2, "n": ""})"));
    run("list.remove data/Items");
    QCOMPARE(count(), 1);
    // The only one stays.
    run("list.remove data/Items");
    QCOMPARE(count(), 1);
}

void tst_ListCommands::thereAreNoMoreThanCanBeCounted()
{
    QJsonArray all{QJsonValue::Null};
    for (int id = 1; id < ListCommands::kMost; ++id) {
        all.append(QJsonObject{{str("id"), id}});
    }
    m_files->put("data/Items.json", QJsonDocument(all).toJson().constData());
    run("list.add data/Items");
    QCOMPARE(items().toArray().size(), ListCommands::kMost + 1);
    QVERIFY(!m_commands.canRun(str("list.add data/Items"), *m_files));
    run("list.add data/Items");
    QCOMPARE(items().toArray().size(), ListCommands::kMost + 1);
}

void tst_ListCommands::whatIsAddedStandsApart()
{
    m_files->put("data/Items.json", "[]");
    for (int time = 0; time < 4; ++time) {
        run("list.addApart data/Items", R"({"n": 1, "x": 320, "y": 240})");
    }
    QCOMPARE(items(), json(R"([{"n": 1, "x": 320, "y": 240}, {"n": 1, "x": 400, "y": 240},
                               {"n": 1, "x": 240, "y": 240}, {"n": 1, "x": 480, "y": 240}])"));
    m_files->put("data/Actors.json", R"([null, {"id": 1}, {"id": 2}])");
    m_files->put("data/Items.json", R"([{"actorId": 1}])");
    run("list.addApart data/Items", R"({"actorId": 1})");
    QCOMPARE(items(), json(R"([{"actorId": 1}, {"actorId": 2}])"));
    m_files->put("data/Items.json", "[1]");
    run("list.addApart data/Items", "1");
    QCOMPARE(items(), json("[1, 2]"));
    m_files->put("data/Items.json", R"([{"actorId": 1}, {"actorId": 2}])");
    // When all are in, one is in twice.
    run("list.addApart data/Items", R"({"actorId": 1})");
    QCOMPARE(items().toArray().size(), 3);
}

void tst_ListCommands::tellsHowManyAreLost()
{
    m_files->put(
        "data/Items.json",
        R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": ""}, {"id": 3, "n": "c"}, {"id": 4, "n": "d"}])");
    QCOMPARE(m_fields->value(str("list.loses"), *m_files).toBool(), false);
    run("list.count data/Items");
    QCOMPARE(m_fields->value(str("list.lost"), *m_files).toInt(), 0);
    m_fields->setValue(str("list.count"), 3, *m_files);
    QCOMPARE(m_fields->value(str("list.lost"), *m_files).toInt(), 1);
    m_fields->setValue(str("list.count"), 1, *m_files);
    QCOMPARE(m_fields->value(str("list.lost"), *m_files).toInt(), 2);
    QCOMPARE(m_fields->value(str("list.loses"), *m_files).toBool(), true);
}

void tst_ListCommands::pastesWhatWasCopied_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QByteArray>("result");
    QTest::newRow("behind the selected one")
        << QByteArray("[10, 20, 30]") << 0 << 1 << QByteArray("[10, 20, 10, 30]");
    QTest::newRow("in place of one with a number")
        << QByteArray(R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": "b"}])") << 1 << 2
        << QByteArray(R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": "a"}])");
}

void tst_ListCommands::pastesWhatWasCopied()
{
    QFETCH(QByteArray, list);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QByteArray, result);
    m_files->put("data/Items.json", list.constData());
    m_files->select(str("data/Items"), from);
    run("list.copy data/Items");
    m_files->select(str("data/Items"), to);
    run("list.paste data/Items");
    QCOMPARE(items(), json(result.constData()));
}

void tst_ListCommands::pastesIntoListsOfOneKindOnly()
{
    m_files->put("data/Weapons.json", R"([null, {"traits": [{"attack": 1}]}])");
    m_files->put("data/Armors.json", R"([null, {"traits": [], "effects": []}])");
    run("list.copy data/Weapons/{weapons}/traits");
    QVERIFY(m_commands.canRun(str("list.paste data/Armors/{armors}/traits"), *m_files));
    QVERIFY(!m_commands.canRun(str("list.paste data/Armors/{armors}/effects"), *m_files));
    run("list.paste data/Armors/{armors}/traits");
    run("list.paste data/Armors/{armors}/effects");
    QCOMPARE(m_files->file(str("data/Armors.json")),
             json(R"([null, {"traits": [{"attack": 1}], "effects": []}])"));
}

void tst_ListCommands::movesAnEntry()
{
    m_files->put("data/Items.json", "[10, 20, 30]");
    m_files->select(str("data/Items"), 2);
    run("list.up data/Items");
    QCOMPARE(items(), json("[10, 30, 20]"));
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), 1);
    run("list.up data/Items");
    run("list.up data/Items");
    QCOMPARE(items(), json("[30, 10, 20]"));
    run("list.down data/Items");
    QCOMPARE(items(), json("[10, 30, 20]"));
    QCOMPARE(m_sources.number(str("data/Items"), *m_files), 1);
}

void tst_ListCommands::resizesAList_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("wished");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *name, const char *list, int count, int wished, const char *result) {
        QTest::newRow(name) << QByteArray(list) << count << wished << QByteArray(result);
    };
    row("larger", R"([null, {"id": 1, "n": "a"}])", 1, 3,
        R"([null, {"id": 1, "n": "a"}, {"id": 2, "n": ""}, {"id": 3, "n": ""}])");
    row("smaller", R"([null, {"id": 1}, {"id": 2}])", 2, 1, R"([null, {"id": 1}])");
    row("to nothing", R"([null, {"id": 1}])", 1, 0, "[null]");
    row("below nothing", R"([null, {"id": 1}])", 1, -3, "[null]");
    row("texts", R"([null, "Gate"])", 1, 2, R"([null, "Gate", ""])");
    row("that counts from 0", "[1, 2]", 2, 3, "[1, 2, 0]");
    row("the same", "[1, 2]", 2, 2, "[1, 2]");
}

void tst_ListCommands::resizesAList()
{
    QFETCH(QByteArray, list);
    QFETCH(int, count);
    QFETCH(int, wished);
    QFETCH(QByteArray, result);
    m_files->put("data/Items.json", list.constData());
    run("list.count data/Items");
    QCOMPARE(m_fields->value(str("list.count"), *m_files).toInt(), count);
    m_fields->setValue(str("list.count"), wished, *m_files);
    run("list.resize counted");
    QCOMPARE(items(), json(result.constData()));
}

void tst_ListCommands::cannotRunWhereThereIsNothingToDo_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QString>("can");
    const auto row = [](const char *name, const char *list, int selected, const char *can) {
        QTest::newRow(name) << QByteArray(list) << selected << str(can);
    };
    row("an empty list", "[]", -1, "add count");
    row("one entry", "[10]", 0, "add remove copy edit count");
    row("the first of two", "[10, 20]", 0, "add remove copy down edit count");
    row("the last of two", "[10, 20]", 1, "add remove copy up edit count");
    row("known by numbers", "[null, 10, 20, 30]", 2, "add remove copy edit count");
    row("no file", "", -1, "");
}

void tst_ListCommands::cannotRunWhereThereIsNothingToDo()
{
    QFETCH(QByteArray, list);
    QFETCH(int, selected);
    QFETCH(QString, can);
    if (!list.isEmpty()) {
        m_files->put("data/Items.json", list.constData());
        m_files->select(str("data/Items"), selected);
    }
    QStringList able;
    for (const char *name : {"add", "remove", "copy", "paste", "up", "down", "edit", "count"}) {
        if (m_commands.canRun(str("list.") + str(name) + str(" data/Items"), *m_files)) {
            able.append(str(name));
        }
    }
    QCOMPARE(able.join(QLatin1Char(' ')), can);
    QVERIFY(!m_commands.canRun(str("list.resize counted"), *m_files));
}

void tst_ListCommands::eachIsAStepOfItsOwn()
{
    m_files->put("data/Items.json", "[10]");
    run("list.add data/Items", "1");
    run("list.add data/Items", "2");
    run("list.up data/Items");
    QCOMPARE(m_files->mergeKeys, (QStringList{QString(), QString(), QString()}));
}

void tst_ListCommands::theEntryIsTheOneThatWasNamedLast()
{
    m_files->put("data/Items.json", R"([null, {"effects": [{"hp": 30}, {"mp": 5}]}])");
    m_files->select(str("data/Items/{items}/effects"), 1);
    QVERIFY(!m_fields->value(str("entry/@name"), *m_files).isValid());
    run("list.edit data/Items/{items}/effects");
    QCOMPARE(m_fields->value(str("entry/@name"), *m_files).toString(), str("mp"));
    m_fields->setValue(str("entry/@name"), str("addState"), *m_files);
    m_fields->setValue(str("entry/@value"), 2, *m_files);
    QCOMPARE(items(), json(R"([null, {"effects": [{"hp": 30}, {"addState": 2}]}])"));
    run("list.add data/Items/{items}/effects", R"({"hp": 1})");
    QCOMPARE(m_fields->value(str("entry/@value"), *m_files).toInt(), 1);
}

void tst_ListCommands::whatIsAddedInADraftGoesWithIt()
{
    m_files->put("data/Items.json", R"([null, {"effects": [{"hp": 30}]}])");
    Drafts drafts(m_files.get());
    DataLayer &database = *drafts.begin();
    DataLayer *effect = drafts.begin();
    run("list.add data/Items/{items}/effects", *effect, R"({"mp": 0})");
    m_fields->setValue(str("entry/@value"), 7, *effect);
    drafts.drop(effect);
    QCOMPARE(m_sources.rows(str("data/Items/{items}/effects"), database).size(), 1);

    effect = drafts.begin();
    run("list.add data/Items/{items}/effects", *effect, R"({"mp": 0})");
    m_fields->setValue(str("entry/@value"), 7, *effect);
    effect->accept();
    drafts.drop(effect);
    QCOMPARE(m_sources.number(str("data/Items/{items}/effects"), database), 1);
    QCOMPARE(items(), json(R"([null, {"effects": [{"hp": 30}]}])"));
    database.accept();
    QCOMPARE(items(), json(R"([null, {"effects": [{"hp": 30}, {"mp": 7}]}])"));
    QCOMPARE(m_files->mergeKeys, QStringList{QString()});
}

QTEST_APPLESS_MAIN(tst_ListCommands)
#include "tst_ListCommands.moc"
