#include "Tutorial/localisation/SampleTable.h"

#include <QtTest>

namespace {

/// The rows of @p file, each joined by blanks.
QStringList rowTexts(const QString &file)
{
    QStringList texts;
    const QList<QStringList> rows = buildSampleTable().value(file);
    for (const QStringList &row : rows) {
        texts.append(row.join(QLatin1Char(' ')));
    }
    return texts;
}

} // namespace

class tst_SampleTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfTheTable();
    void arraysOfThings_data();
    void arraysOfThings();
    void eventFiles();
    void systemFile();
};

void tst_SampleTable::filesOfTheTable()
{
    QStringList files = buildSampleTable().keys();
    files.sort();
    QCOMPARE(files, (QStringList{QStringLiteral("Actors.json"), QStringLiteral("Animations.json"),
                                 QStringLiteral("Armors.json"), QStringLiteral("Classes.json"),
                                 QStringLiteral("CommonEvents.json"), QStringLiteral("Enemies.json"),
                                 QStringLiteral("Items.json"), QStringLiteral("MapInfos.json"),
                                 QStringLiteral("Map\\d+.json"), QStringLiteral("Skills.json"),
                                 QStringLiteral("States.json"), QStringLiteral("System.json"),
                                 QStringLiteral("Tilesets.json"), QStringLiteral("Troops.json"),
                                 QStringLiteral("Weapons.json")}));
}

void tst_SampleTable::arraysOfThings_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QStringList>("keys");

    const QString dataMaker = QStringLiteral("NewDataMaker");
    const QStringList name{QStringLiteral("name")};
    for (const char *file :
         {"Actors.json", "Classes.json", "Enemies.json", "Troops.json", "Animations.json", "Tilesets.json"}) {
        QTest::newRow(file) << QString::fromLatin1(file) << dataMaker << name;
    }
    const QStringList described{QStringLiteral("name"), QStringLiteral("description")};
    for (const char *file : {"Armors.json", "Items.json", "Weapons.json"}) {
        QTest::newRow(file) << QString::fromLatin1(file) << dataMaker << described;
    }
    QTest::newRow("MapInfos.json") << QStringLiteral("MapInfos.json") << QStringLiteral("Dialog_MapLoader")
                                   << name;
    QTest::newRow("Skills.json") << QStringLiteral("Skills.json") << dataMaker
                                 << QStringList{QStringLiteral("message1"), QStringLiteral("name"),
                                                QStringLiteral("note"), QStringLiteral("description")};
    QTest::newRow("States.json") << QStringLiteral("States.json") << dataMaker
                                 << QStringList{QStringLiteral("message1"), QStringLiteral("message2"),
                                                QStringLiteral("message3"), QStringLiteral("message4"),
                                                QStringLiteral("name"),     QStringLiteral("note")};
}

void tst_SampleTable::arraysOfThings()
{
    QFETCH(QString, file);
    QFETCH(QString, context);
    QFETCH(QStringList, keys);
    QStringList expected;
    for (const QString &key : keys) {
        expected << QStringLiteral("translateArrayKeyText ja_JP %1 %2").arg(context, key)
                 << QStringLiteral("translateArrayKeyText tutorial Tutorial %1").arg(key);
    }
    QCOMPARE(rowTexts(file), expected);
}

void tst_SampleTable::eventFiles()
{
    QCOMPARE(rowTexts(QStringLiteral("Map\\d+.json")),
             QStringList{QStringLiteral("translateMapEvent tutorial Tutorial")});
    QCOMPARE(rowTexts(QStringLiteral("CommonEvents.json")),
             QStringList{QStringLiteral("translateCommonEvent tutorial Tutorial")});
}

void tst_SampleTable::systemFile()
{
    QCOMPARE(rowTexts(QStringLiteral("System.json")),
             (QStringList{QStringLiteral("translateKeyArrayText ja_JP NewDataMaker armorTypes"),
                          QStringLiteral("translateKeyText ja_JP NewDataMaker currencyUnit"),
                          QStringLiteral("translateKeyArrayText ja_JP NewDataMaker elements"),
                          QStringLiteral("translateKeyArrayText ja_JP NewDataMaker equipTypes"),
                          QStringLiteral("translateKeyArrayText ja_JP Constants equipTypes"),
                          QStringLiteral("translateKeyArrayText ja_JP NewDataMaker skillTypes"),
                          QStringLiteral("translateKeyKeyArrayText ja_JP Constants terms basic"),
                          QStringLiteral("translateKeyKeyArrayText ja_JP Constants terms commands"),
                          QStringLiteral("translateKeyKeyArrayText ja_JP Constants terms params"),
                          QStringLiteral("translateKeyKeyAnyKeyText ja_JP NewDataMaker terms messages"),
                          QStringLiteral("translateKeyArrayText ja_JP Constants weaponTypes"),
                          QStringLiteral("translateKeyArrayText tutorial Tutorial switches")}));
}

QTEST_GUILESS_MAIN(tst_SampleTable)
#include "tst_SampleTable.moc"
