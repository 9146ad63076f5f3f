#include "Tutorial/localisation/SampleTable.h"

#include <initializer_list>

namespace {

using Rows = QList<QStringList>;

QString lessonFilter()
{
    return QStringLiteral("tutorial");
}
QString lessonContext()
{
    return QStringLiteral("Tutorial");
}
QString japaneseFilter()
{
    return QStringLiteral("ja_JP");
}

/// Two rows for each of @p keys, one per filter, for a file that is an array of things with texts under
/// these keys.
Rows arrayRows(const QString &japaneseContext, std::initializer_list<QString> keys)
{
    const QString translator = QStringLiteral("translateArrayKeyText");
    Rows rows;
    for (const QString &key : keys) {
        rows.append(QStringList{translator, japaneseFilter(), japaneseContext, key});
        rows.append(QStringList{translator, lessonFilter(), lessonContext(), key});
    }
    return rows;
}

Rows systemRows()
{
    const QString keyText = QStringLiteral("translateKeyText");
    const QString keyArray = QStringLiteral("translateKeyArrayText");
    const QString keyKeyArray = QStringLiteral("translateKeyKeyArrayText");
    const QString keyKeyAnyKey = QStringLiteral("translateKeyKeyAnyKeyText");
    const QString dataMaker = QStringLiteral("NewDataMaker");
    const QString constants = QStringLiteral("Constants");
    const QString terms = QStringLiteral("terms");
    return {
        {keyArray, japaneseFilter(), dataMaker, QStringLiteral("armorTypes")},
        {keyText, japaneseFilter(), dataMaker, QStringLiteral("currencyUnit")},
        {keyArray, japaneseFilter(), dataMaker, QStringLiteral("elements")},
        {keyArray, japaneseFilter(), dataMaker, QStringLiteral("equipTypes")},
        {keyArray, japaneseFilter(), constants, QStringLiteral("equipTypes")},
        {keyArray, japaneseFilter(), dataMaker, QStringLiteral("skillTypes")},
        {keyKeyArray, japaneseFilter(), constants, terms, QStringLiteral("basic")},
        {keyKeyArray, japaneseFilter(), constants, terms, QStringLiteral("commands")},
        {keyKeyArray, japaneseFilter(), constants, terms, QStringLiteral("params")},
        {keyKeyAnyKey, japaneseFilter(), dataMaker, terms, QStringLiteral("messages")},
        {keyArray, japaneseFilter(), constants, QStringLiteral("weaponTypes")},
        {keyArray, lessonFilter(), lessonContext(), QStringLiteral("switches")},
    };
}

} // namespace

SampleTable buildSampleTable()
{
    const QString dataMaker = QStringLiteral("NewDataMaker");
    const QString name = QStringLiteral("name");
    const QString note = QStringLiteral("note");
    const QString description = QStringLiteral("description");
    const QString message1 = QStringLiteral("message1");

    SampleTable table;
    const QStringList namedFiles{QStringLiteral("Actors.json"),     QStringLiteral("Classes.json"),
                                 QStringLiteral("Enemies.json"),    QStringLiteral("Troops.json"),
                                 QStringLiteral("Animations.json"), QStringLiteral("Tilesets.json")};
    for (const QString &file : namedFiles) {
        table.insert(file, arrayRows(dataMaker, {name}));
    }
    const QStringList describedFiles{QStringLiteral("Armors.json"), QStringLiteral("Items.json"),
                                     QStringLiteral("Weapons.json")};
    for (const QString &file : describedFiles) {
        table.insert(file, arrayRows(dataMaker, {name, description}));
    }
    table.insert(QStringLiteral("MapInfos.json"), arrayRows(QStringLiteral("Dialog_MapLoader"), {name}));
    table.insert(QStringLiteral("Map\\d+.json"),
                 {{QStringLiteral("translateMapEvent"), lessonFilter(), lessonContext()}});
    table.insert(QStringLiteral("CommonEvents.json"),
                 {{QStringLiteral("translateCommonEvent"), lessonFilter(), lessonContext()}});
    table.insert(QStringLiteral("Skills.json"), arrayRows(dataMaker, {message1, name, note, description}));
    table.insert(QStringLiteral("States.json"),
                 arrayRows(dataMaker, {message1, QStringLiteral("message2"), QStringLiteral("message3"),
                                       QStringLiteral("message4"), name, note}));
    table.insert(QStringLiteral("System.json"), systemRows());
    return table;
}
