#include "DataLayerFixture.h"
#include "DescriptionFiles.h"
#include "project/ChoiceSets.h"
#include "project/RowSources.h"
#include "project/RowText.h"

#include <QtTest>

/// How entries of lists are put into words, and the choices whose words they are.
class tst_RowText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsMembersOfTheEntry_data();
    void showsMembersOfTheEntry();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void choicesAreThoseOfTheLocale();
    void nothingIsTheChoiceOfZero_data();
    void nothingIsTheChoiceOfZero();
    void mistakesInChoicesAreTold_data();
    void mistakesInChoicesAreTold();
    void noFolderHasNoChoices();

private:
    Files m_files;
    RowSources m_sources;
    DescriptionFiles m_folder;
    ChoiceSets m_choices;
};

void tst_RowText::initTestCase()
{
    m_files.put("data/Items.json", R"([null, {"name": "Herb"}, {"name": "Bread"}])");
    m_files.put("data/States.json", R"([null, {"name": "Poison"}])");
    m_folder.write(str("kinds.json"), R"({"choices": [
        {"value": "hp", "text": {"en_US": "Recover", "ja_JP": "a", "zh_CN": "b"}},
        {"value": "addState", "text": {"en_US": "Add state", "ja_JP": "a", "zh_CN": "b"},
         "row": {"en_US": "Add {@value>data/States}", "ja_JP": "a", "zh_CN": "b"}}]})");
    m_folder.write(str("scopes.json"), R"({"choices": [
        {"value": 0, "text": {"en_US": "None", "ja_JP": "a", "zh_CN": "b"}},
        {"value": 7, "text": {"en_US": "One friend", "ja_JP": "c", "zh_CN": "d"}}]})");
    QStringList errors;
    m_choices = ChoiceSets::read(m_folder.folder(), str("en_US"), &errors);
    QCOMPARE(errors, QStringList());
}

void tst_RowText::showsMembersOfTheEntry_data()
{
    QTest::addColumn<QString>("rowText");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *rowText, const char *entry, const char *text) {
        QTest::newRow(name) << str(rowText) << QByteArray(entry) << str(text);
    };
    row("plain text", "Entry", R"({})", "Entry");
    row("members", "{name}: {price} G", R"({"name": "Herb", "price": 8})", "Herb: 8 G");
    row("a member of a member", "{conditions/turn}", R"({"conditions": {"turn": 3}})", "3");
    row("a member with a slash", "{a~1b}", R"({"a/b": "x"})", "x");
    row("a missing member", "<{name}>", R"({})", "<>");
    row("null", "<{name}>", R"({"name": null})", "<>");
    row("the number", "{@number}: {name}", R"({"name": "Herb"})", "4: Herb");
    row("the entry itself", "{}", R"("Gate")", "Gate");
    row("the name of a text", "{@number}: {name}", R"("Gate")", "4: Gate");
    row("a number of a list", "{itemId>data/Items}", R"({"itemId": 2})", "Bread");
    row("a number of a list in a list", "{itemId>data/Sets/{sets}/items}", R"({"itemId": 2})", "2");
    row("the entry as a number of a list", "{>data/Items}", "1", "Herb");
    row("a number that the list has not", "{itemId>data/Items}", R"({"itemId": 9})", "9");
    row("no number", "{itemId>data/Items}", R"({})", "");
    row("a choice", "{scope:scopes}", R"({"scope": 7})", "One friend");
    row("the choice of nothing", "{scope:scopes}", R"({})", "None");
    row("a value that is no choice", "{scope:scopes}", R"({"scope": 5})", "5");
    row("the only member", "{@name:kinds} {@value}", R"({"hp": 30})", "Recover 30");
    row("a choice with a row of its own", "{@name:kinds}", R"({"addState": 1})", "Add Poison");
}

void tst_RowText::showsMembersOfTheEntry()
{
    QFETCH(QString, rowText);
    QFETCH(QByteArray, entry);
    QFETCH(QString, text);
    const RowText row(rowText, &m_sources, &m_choices);
    QCOMPARE(row.problem(), QString());
    QCOMPARE(row.text(json(entry.constData()), 4, m_files), text);
}

void tst_RowText::tellsWhatIsWrong_data()
{
    QTest::addColumn<QString>("rowText");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *rowText, const char *problem) {
        QTest::newRow(rowText) << str(rowText) << str(problem);
    };
    row("{name", "\"{name\" has braces that hold no member; write ");
    row("name}", "\"name}\" has braces that hold no member; write ");
    row("{a:b c}", "\"{a:b c}\" has braces that hold no member; write ");
    row("{kind:colours}",
        "there is no set of choices \"colours\"; add choices/colours.json, or use one of: ");
    row("{itemId>items}", "\"items\" is unknown; use the path of a list in a data file");
    row("{itemId>data/Items/{actors}}", "\"{actors}\" is neither the list before it");
}

void tst_RowText::tellsWhatIsWrong()
{
    QFETCH(QString, rowText);
    QFETCH(QString, problem);
    const QString found = RowText(rowText, &m_sources, &m_choices).problem();
    QVERIFY2(found.startsWith(problem), qPrintable(found));
}

void tst_RowText::choicesAreThoseOfTheLocale()
{
    QStringList errors;
    const ChoiceSets chinese = ChoiceSets::read(m_folder.folder(), str("zh_CN"), &errors);
    QCOMPARE(chinese.names(), (QStringList{str("kinds"), str("scopes")}));
    QCOMPARE(chinese.text(str("scopes"), 7), str("d"));
    QCOMPARE(chinese.text(str("scopes"), 8), QString());
    QCOMPARE(chinese.choices(str("scopes")).size(), 2);
    QVERIFY(chinese.choices(str("colours")).isEmpty());
}

void tst_RowText::nothingIsTheChoiceOfZero_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("wished");
    QTest::addColumn<bool>("same");
    const auto row = [](const char *value, const char *wished, bool same) {
        QTest::addRow("%s is %s", value, wished) << QByteArray(value) << QByteArray(wished) << same;
    };
    row("", "0", true);
    row("", R"("")", true);
    row("", "false", true);
    row("", "null", true);
    row("null", "0", true);
    row("", "1", false);
    row("", "true", false);
    row("", "[]", false);
    row("0", "0", true);
    row("0", "false", false);
    row("0", "1", false);
    row(R"("hp")", R"("hp")", true);
    row(R"("1")", "1", false);
}

void tst_RowText::nothingIsTheChoiceOfZero()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, wished);
    const QJsonValue held = value.isEmpty() ? QJsonValue(QJsonValue::Undefined) : json(value.constData());
    QTEST(ChoiceSets::isSame(held, json(wished.constData())), "same");
}

void tst_RowText::mistakesInChoicesAreTold_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *file, const char *error) {
        QTest::newRow(name) << QByteArray(file).replace("TEXT",
                                                        R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})")
                            << str(error);
    };
    row("no choices", R"({})", "choices: must be a list of choices");
    row("no value", R"({"choices": [{"text": TEXT}]})",
        "choices[0].value: is missing; write what stands in the data file");
    row("twice", R"({"choices": [{"value": 1, "text": TEXT}, {"value": 1, "text": TEXT}]})",
        "choices[1].value: stands here twice; give each choice its own");
    row("a language", R"({"choices": [{"value": 1, "text": {"en_US": "a", "ja_JP": "b"}}]})",
        "choices[0].text: needs a text for \"zh_CN\"");
    row("misspelt", R"({"choices": [{"value": 1, "text": TEXT, "label": 1}]})",
        "choices[0].label: is not a field that is known here; remove it or correct its name");
}

void tst_RowText::mistakesInChoicesAreTold()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, error);
    const DescriptionFiles folder;
    const QString path = folder.write(str("kinds.json"), file);
    QStringList errors;
    ChoiceSets::read(folder.folder(), str("en_US"), &errors);
    QCOMPARE(errors, QStringList{path + str(": ") + error});
}

void tst_RowText::noFolderHasNoChoices()
{
    QStringList errors;
    QVERIFY(ChoiceSets::read(m_folder.path(str("nowhere")), str("en_US"), &errors).names().isEmpty());
    QVERIFY(errors.isEmpty());
}

QTEST_APPLESS_MAIN(tst_RowText)
#include "tst_RowText.moc"
