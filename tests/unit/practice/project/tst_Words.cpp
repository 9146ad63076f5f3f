#include "DataLayerFixture.h"
#include "project/Commands.h"
#include "project/Drafts.h"
#include "project/Fields.h"

#include <QtTest>

namespace {

QStringList texts(const QVector<Row> &rows)
{
    QStringList texts;
    for (const Row &row : rows) {
        texts.append(QStringLiteral("%1 %2").arg(QString::number(row.number), row.text));
    }
    return texts;
}

} // namespace

/// The words of descriptions: fields, lists and commands, of the editor's own and out of the data files.
class tst_Words : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void commandsRunInTheirLayer();
    void commandsTellWhatIsOn();
    void commandsGetTheirArgumentAndEntry();
    void commandsTellWhetherTheyCanRun();
    void mistakesInCommandsAreTold();
    void ownFieldsAreReadAndWritten();
    void pathsAreFields_data();
    void pathsAreFields();
    void fieldsOfNothingAreInvalid_data();
    void fieldsOfNothingAreInvalid();
    void fieldsKeepTheirKind();
    void missingMembersAreMadeWhenTheyChange();
    void pathsMayBeginWithARoot();
    void namesGoBeforeRoots();
    void marksAreThoseOfTheLayer();
    void mistakesInNamesAreTold_data();
    void mistakesInNamesAreTold();
    void listsOfFilesAreSources_data();
    void listsOfFilesAreSources();
    void entriesThatAreNullHaveNoRow();
    void tabsAreSources();
    void theCurrentRowIsKeptInTheLayer();
    void theCurrentRowMayBeKeptElsewhere();
    void aSelectedEntryThatIsGoneGivesWayToTheOneBefore();

private:
    Files m_files;
    RowSources m_sources;
    std::unique_ptr<Fields> m_fields;
    int m_row = 0;
    QString m_typed;
};

void tst_Words::init()
{
    m_row = 1;
    m_sources = RowSources();
    m_sources.add(str("maps"), [](const DataLayer & /*layer*/) {
        return QVector<Row>{{str("Village"), 7}, {str("Cave"), 12}};
    });
    m_sources.add(
        str("tiles"),
        [](const DataLayer & /*layer*/) {
            return QVector<Row>{{str("Grass"), 40}, {str("Sand"), 41}};
        },
        [this] { return m_row; }, [this](int row) { m_row = row; });
    m_fields = std::make_unique<Fields>(&m_sources);
    m_fields->add(
        str("typed"), [this](const DataLayer & /*layer*/) { return m_typed; },
        [this](DataLayer & /*layer*/, const QVariant &value) { m_typed = value.toString(); });
    m_fields->add(str("status"), [](const DataLayer & /*layer*/) { return str("Ready"); });
    m_files.put("data/Items.json", R"([null, {"name": "Herb", "price": 8, "consumable": true, "a/b": 1},
                                       {"name": "Bread", "price": 3, "effects": [{"hp": 1}, {"hp": 2}]}])");
    m_files.put("data/System.json", R"({"switches": [null, "Gate", "Lamp"], "gold": null, "empty": [null]})");
    m_files.put("data/Map012.json", R"({"displayName": "Deep cave", "events": [null, {"name": "Bat"}]})");
    m_files.select(str("data/Items"), 2);
    m_files.select(str("maps"), 12);
}

void tst_Words::commandsRunInTheirLayer()
{
    Commands commands;
    const DataLayer *ran = nullptr;
    int count = 0;
    commands.add(str("in.layer"), [&ran](DataLayer &layer) { ran = &layer; });
    commands.add(str("plain"), [&count] { ++count; });
    QCOMPARE(commands.names(), (QStringList{str("in.layer"), str("plain")}));
    commands.run(str("in.layer"), m_files);
    QCOMPARE(ran, &m_files);
    commands.run(str("plain"), m_files);
    commands.run(str("other"), m_files);
    QCOMPARE(count, 1);
}

void tst_Words::commandsTellWhatIsOn()
{
    Commands commands;
    bool on = false;
    commands.add(
        str("grid"), [&on] { on = !on; }, [&on] { return on; });
    commands.add(str("save"), [] {});
    QCOMPARE(commands.isOn(str("grid")), std::optional<bool>(false));
    commands.run(str("grid"), m_files);
    QCOMPARE(commands.isOn(str("grid")), std::optional<bool>(true));
    QVERIFY(!commands.isOn(str("save")).has_value());
    QVERIFY(!commands.isOn(str("other")).has_value());
}

void tst_Words::commandsGetTheirArgumentAndEntry()
{
    Commands commands;
    CommandCall got;
    commands.add(str("list.add"), [&got](DataLayer & /*layer*/, const CommandCall &call) { got = call; });
    commands.run(str("list.add data/Items/{items}/a b"), m_files, 7);
    QCOMPARE(got.argument, str("data/Items/{items}/a b"));
    QCOMPARE(got.entry, QJsonValue(7));
    commands.run(str("list.add data/Items"), m_files);
    QVERIFY(got.entry.isUndefined());
}

void tst_Words::commandsTellWhetherTheyCanRun()
{
    Commands commands;
    const auto isItems = [](const DataLayer & /*layer*/, const QString &argument) {
        return argument == str("data/Items");
    };
    commands.add(
        str("list.add"), [](DataLayer & /*layer*/, const CommandCall & /*call*/) {}, {}, isItems);
    commands.add(str("save"), [] {});
    QVERIFY(commands.canRun(str("list.add data/Items"), m_files));
    QVERIFY(!commands.canRun(str("list.add data/Skills"), m_files));
    QVERIFY(commands.canRun(str("save"), m_files));
    QVERIFY(commands.canRun(str("other"), m_files));
}

void tst_Words::mistakesInCommandsAreTold()
{
    Commands commands;
    commands.add(str("list.add"), [](DataLayer & /*layer*/, const CommandCall & /*call*/) {});
    commands.add(str("save"), [] {});
    QCOMPARE(commands.problemOf(str("save")), QString());
    QCOMPARE(commands.problemOf(str("list.add data/Items")), QString());
    QCOMPARE(commands.problemOf(str("list.eat data/Items")),
             str("\"list.eat\" is unknown; use one of: list.add, save"));
    QCOMPARE(commands.problemOf(str("list.add")),
             str("\"list.add\" needs what it is for, behind a blank, as in \"list.add data/Items\""));
    QCOMPARE(commands.problemOf(str("save data/Items")),
             str("\"save\" takes no argument; remove \"data/Items\""));
}

void tst_Words::ownFieldsAreReadAndWritten()
{
    m_fields->setValue(str("typed"), str("Quest"), m_files);
    QCOMPARE(m_fields->value(str("typed"), m_files).toString(), str("Quest"));
    m_fields->setValue(str("status"), str("Busy"), m_files);
    QCOMPARE(m_fields->value(str("status"), m_files).toString(), str("Ready"));
    QCOMPARE(m_fields->names(), (QStringList{str("status"), str("typed")}));
}

void tst_Words::pathsAreFields_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("the selected entry") << str("data/Items/{items}/price") << QVariant(3);
    QTest::newRow("a fixed entry") << str("data/Items/1/name") << QVariant(str("Herb"));
    QTest::newRow("an escaped member") << str("data/Items/1/a~1b") << QVariant(1);
    QTest::newRow("the file of the selected entry")
        << str("data/Map{maps}/displayName") << QVariant(str("Deep cave"));
    QTest::newRow("a list in a file") << str("data/System/switches/{switches}") << QVariant(str("Gate"));
    QTest::newRow("a list in a list") << str("data/Items/{items}/effects/{effects}/hp") << QVariant(1);
    QTest::newRow("a list in the file of the selected entry")
        << str("data/Map{maps}/events/{events}/name") << QVariant(str("Bat"));
}

void tst_Words::pathsAreFields()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    QCOMPARE(m_fields->problemOf(field), QString());
    QCOMPARE(m_fields->value(field, m_files).toString(), value.toString());
    const QVariant other = value.toInt() != 0 ? QVariant(value.toInt() + 5) : QVariant(str("Other"));
    m_fields->setValue(field, other, m_files);
    QCOMPARE(m_fields->value(field, m_files).toString(), other.toString());
}

void tst_Words::fieldsOfNothingAreInvalid_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field : {"data/Skills/{skills}/name", "data/Items/9/name", "data/System/empty/{empty}",
                              "data/Items/{items}/none", "nothing"}) {
        QTest::newRow(field) << str(field);
    }
}

void tst_Words::fieldsOfNothingAreInvalid()
{
    QFETCH(QString, field);
    QVERIFY(!m_fields->value(field, m_files).isValid());
    if (field != str("data/Items/{items}/none")) {
        m_fields->setValue(field, 1, m_files);
        QVERIFY(!m_fields->value(field, m_files).isValid());
    }
}

void tst_Words::fieldsKeepTheirKind()
{
    m_fields->setValue(str("data/Items/1/consumable"), false, m_files);
    QVERIFY(m_files.value(str("data/Items.json"), str("/1/consumable")).isBool());
    m_fields->setValue(str("data/Items/1/price"), 12, m_files);
    QVERIFY(m_files.value(str("data/Items.json"), str("/1/price")).isDouble());
    m_fields->setValue(str("data/Items/1/name"), str("12"), m_files);
    QVERIFY(m_files.value(str("data/Items.json"), str("/1/name")).isString());
}

void tst_Words::missingMembersAreMadeWhenTheyChange()
{
    const QJsonValue before = m_files.file(str("data/Items.json"));
    const QString turn = str("data/Items/{items}/conditions/turn");
    QVERIFY(!m_fields->value(turn, m_files).isValid());
    QCOMPARE(m_files.file(str("data/Items.json")), before);
    m_fields->setValue(turn, 3, m_files);
    QCOMPARE(m_files.value(str("data/Items.json"), str("/2/conditions")),
             QJsonValue(QJsonObject{{str("turn"), 3}}));
    m_fields->setValue(str("data/System/gold/coin"), str("Taler"), m_files);
    QCOMPARE(m_fields->value(str("data/System/gold/coin"), m_files).toString(), str("Taler"));
}

void tst_Words::pathsMayBeginWithARoot()
{
    std::optional<DataPlace> command;
    m_sources.addRoot(str("command"), [&command](const DataLayer & /*layer*/) { return command; });
    for (const char *path : {"command", "command/price", "command/effects/{effects}/hp"}) {
        QCOMPARE(m_fields->problemOf(str(path)), QString());
        QVERIFY(!m_fields->value(str(path), m_files).isValid());
        m_fields->setValue(str(path), 1, m_files);
    }
    QVERIFY(m_sources.rows(str("command/effects"), m_files).isEmpty());
    command = DataPlace{str("data/Items.json"), str("/2")};
    QCOMPARE(m_fields->value(str("command/price"), m_files).toInt(), 3);
    QCOMPARE(m_sources.rows(str("command/effects"), m_files).size(), 2);
    m_files.select(str("command/effects"), 1);
    m_fields->setValue(str("command/effects/{effects}/hp"), 9, m_files);
    QCOMPARE(m_files.value(str("data/Items.json"), str("/2/effects/1/hp")).toInt(), 9);
    QCOMPARE(m_sources.entry(str("command/effects"), 0, m_files), QJsonValue(QJsonObject{{str("hp"), 1}}));
    command = DataPlace{str("data/System.json"), str("/switches/1")};
    QCOMPARE(m_fields->value(str("command"), m_files).toString(), str("Gate"));
    QCOMPARE(m_fields->problemOf(str("command/{items}/price")),
             str("\"{items}\" is neither the list before it, \"command\", nor one of: maps, tiles"));
}

void tst_Words::namesGoBeforeRoots()
{
    m_sources.addRoot(str("command"), [](const DataLayer & /*layer*/) {
        return std::optional<DataPlace>(DataPlace{str("data/Items.json"), QString()});
    });
    m_fields->add(str("command/lines"), [](const DataLayer & /*layer*/) { return str("Hello"); });
    m_sources.add(str("command/rows"), [](const DataLayer & /*layer*/) {
        return QVector<Row>{{str("Own"), 5}};
    });
    QCOMPARE(m_fields->problemOf(str("command/lines")), QString());
    QCOMPARE(m_fields->value(str("command/lines"), m_files).toString(), str("Hello"));
    QCOMPARE(m_sources.problemOf(str("command/rows")), QString());
    QCOMPARE(m_sources.number(str("command/rows"), m_files), 5);
}

void tst_Words::marksAreThoseOfTheLayer()
{
    const DataPlace item{str("data/Items.json"), str("/1")};
    Draft draft(&m_files);
    QVERIFY(!draft.mark(str("entry")).has_value());
    m_files.setMark(str("entry"), item);
    QCOMPARE(draft.mark(str("entry")), std::optional<DataPlace>(item));
    draft.setMark(str("entry"), {str("data/Items.json"), str("/2")});
    QCOMPARE(m_files.mark(str("entry")), std::optional<DataPlace>(item));
    draft.accept();
    QCOMPARE(m_files.mark(str("entry")), std::optional<DataPlace>(item));
    draft.clear();
    QCOMPARE(draft.mark(str("entry")), std::optional<DataPlace>(item));
}

void tst_Words::mistakesInNamesAreTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const char *problem) {
        QTest::newRow(name) << str(name) << str(problem);
    };
    row("typped",
        "\"typped\" is unknown; use a path in the data files, such as data/Items/{items}/price, or one "
        "of: status, typed");
    row("data/Items/{actors}/price",
        "\"{actors}\" is neither the list before it, \"items\", nor one of: maps, tiles");
    row("data/Items/{items/price", "\"{items\" is no word of a path; write a name, or a list in braces");
    row("data/Items//price", "\"\" is no word of a path; write a name, or a list in braces");
    row("data/{maps}/name", "");
    row("data/{items}/name", "\"{items}\" is neither the list before it, \"data\", nor one of: maps, tiles");
}

void tst_Words::mistakesInNamesAreTold()
{
    QFETCH(QString, name);
    QFETCH(QString, problem);
    QCOMPARE(m_fields->problemOf(name), problem);
    if (!problem.isEmpty()) {
        QVERIFY(m_sources.problemOf(name).contains(name.startsWith(str("data/")) ? problem : name));
    }
}

void tst_Words::listsOfFilesAreSources_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("a file") << str("data/Items") << QStringList{str("1 Herb"), str("2 Bread")};
    QTest::newRow("texts in a file") << str("data/System/switches")
                                     << QStringList{str("1 Gate"), str("2 Lamp")};
    QTest::newRow("a list that counts from 0")
        << str("data/Items/{items}/effects") << QStringList{str("0 "), str("1 ")};
    QTest::newRow("in the file of the selected entry")
        << str("data/Map{maps}/events") << QStringList{str("1 Bat")};
    QTest::newRow("an empty list") << str("data/System/empty") << QStringList();
    QTest::newRow("no list") << str("data/System/gold") << QStringList();
    QTest::newRow("no file") << str("data/Skills") << QStringList();
    QTest::newRow("the editor's own") << str("maps") << QStringList{str("7 Village"), str("12 Cave")};
}

void tst_Words::listsOfFilesAreSources()
{
    QFETCH(QString, source);
    QFETCH(QStringList, rows);
    QCOMPARE(m_sources.problemOf(source), QString());
    QCOMPARE(texts(m_sources.rows(source, m_files)), rows);
    QCOMPARE(m_sources.currentRow(source, m_files) < 0, rows.isEmpty());
    QCOMPARE(m_sources.number(source, m_files) < 0, rows.isEmpty());
}

void tst_Words::entriesThatAreNullHaveNoRow()
{
    m_files.put("data/Map001.json", R"({"events": [null, null, {"name": "Bat"}, null, {"name": "Cat"}]})");
    const QString events = str("data/Map001/events");
    QCOMPARE(texts(m_sources.rows(events, m_files)), (QStringList{str("2 Bat"), str("4 Cat")}));
    m_sources.setCurrentRow(events, 1, m_files);
    QCOMPARE(m_fields->value(str("data/Map001/events/{events}/name"), m_files).toString(), str("Cat"));
}

void tst_Words::tabsAreSources()
{
    m_sources.addTabs(str("databaseTab"), 3);
    // The editor's own lists stay what they are.
    m_sources.addTabs(str("tiles"), 9);
    QCOMPARE(m_sources.problemOf(str("databaseTab")), QString());
    QCOMPARE(m_sources.currentRow(str("databaseTab"), m_files), 0);
    m_sources.setCurrentRow(str("databaseTab"), 2, m_files);
    QCOMPARE(m_sources.currentRow(str("databaseTab"), m_files), 2);
    m_sources.setCurrentRow(str("databaseTab"), 3, m_files);
    QCOMPARE(m_sources.currentRow(str("databaseTab"), m_files), 2);
    QCOMPARE(m_sources.rows(str("tiles"), m_files).size(), 2);
}

void tst_Words::theCurrentRowIsKeptInTheLayer()
{
    const QString items = str("data/Items");
    QCOMPARE(m_sources.currentRow(items, m_files), 1);
    m_sources.setCurrentRow(items, 0, m_files);
    QCOMPARE(m_files.selected(items), 1);
    QCOMPARE(m_fields->value(str("data/Items/{items}/name"), m_files).toString(), str("Herb"));
    m_sources.setCurrentRow(items, 7, m_files);
    QCOMPARE(m_sources.currentRow(items, m_files), 1);
    m_sources.setCurrentRow(items, -1, m_files);
    QCOMPARE(m_sources.currentRow(items, m_files), 0);
    // Another window may look at another entry.
    Draft draft(&m_files);
    m_sources.setCurrentRow(items, 1, draft);
    QCOMPARE(m_sources.currentRow(items, m_files), 0);
    QCOMPARE(m_fields->value(str("data/Items/{items}/name"), draft).toString(), str("Bread"));
}

void tst_Words::theCurrentRowMayBeKeptElsewhere()
{
    QCOMPARE(m_sources.currentRow(str("tiles"), m_files), 1);
    QCOMPARE(m_sources.number(str("tiles"), m_files), 41);
    m_sources.setCurrentRow(str("tiles"), 0, m_files);
    QCOMPARE(m_row, 0);
    m_row = -1;
    QCOMPARE(m_sources.number(str("tiles"), m_files), -1);
}

void tst_Words::aSelectedEntryThatIsGoneGivesWayToTheOneBefore()
{
    m_files.select(str("maps"), 9);
    QCOMPARE(m_sources.number(str("maps"), m_files), 7);
    m_files.select(str("maps"), 99);
    QCOMPARE(m_sources.number(str("maps"), m_files), 12);
    m_files.select(str("maps"), 1);
    QCOMPARE(m_sources.number(str("maps"), m_files), 7);
}

QTEST_APPLESS_MAIN(tst_Words)
#include "tst_Words.moc"
