#include "SampleEvents.h"
#include "SampleTest.h"
#include "SampleWording.h"

/// What the sample project says goes through its numbered texts, and fits where it is said.
class tst_SampleWording : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void saysNothingPastItsTranslators();
    void findsWhatNoTranslatorGetsTo_data();
    void findsWhatNoTranslatorGetsTo();
    void writesEachCommandInOneForm();
    void findsAMisshapenCommand_data();
    void findsAMisshapenCommand();
    void hasABranchForEachChoice();
    void findsABranchThatIsNotItsChoiceS_data();
    void findsABranchThatIsNotItsChoiceS();
    void fitsIntoTheMessageWindow_data();
    void fitsIntoTheMessageWindow();
    void findsAMessageThatIsTooLong();
};

using sample::changed;
using sample::kFirstStep;
using sample::kLastStep;
using sample::readStep;
using sample::stepName;

namespace {

const QString kVillage = QStringLiteral("Map001.json");
const QString kElder = QStringLiteral("events/7/pages/0/list/");

} // namespace

void tst_SampleWording::saysNothingPastItsTranslators()
{
    QCOMPARE(firstFinding(sample::strayTexts), QString());
}

void tst_SampleWording::findsWhatNoTranslatorGetsTo_data()
{
    addChangeColumns();
    const QJsonValue text = QStringLiteral("Amberfield");
    const QJsonValue textNumber = QStringLiteral("#12");
    addChange("text as it is", "Items.json", "1/name", text);
    addChange("name over a map", "Map001.json", "displayName", textNumber);
    addChange("note of an item", "Items.json", "1/note", textNumber);
    addChange("description of an enemy", "Enemies.json", "1/description", textNumber);
    addChange("name of a common event", "CommonEvents.json", "1/name", textNumber);
    addChange("title of the game", "System.json", "gameTitle", text);
    addChange("variable", "System.json", "variables/1", textNumber);
    addChange("unit of the money", "System.json", "currencyUnit", text);
    addChange("words of the host editor", "System.json", "terms/basic", QJsonArray{textNumber});
    addChange("line in a battle", "Troops.json", "6/pages/0/list/0",
              QJsonObject{{QStringLiteral("code"), 401},
                          {QStringLiteral("indent"), 0},
                          {QStringLiteral("parameters"), QJsonArray{textNumber}}});
    addChange("line as it is", "Map001.json", "events/1/pages/0/list/1/parameters/0", text);
    addChange("choice as it is", "Map001.json", "events/7/pages/0/list/3/parameters/0/1", text);
    addChange("text in another parameter", "Map001.json", "events/1/pages/0/list/0/parameters/0", textNumber);
}

void tst_SampleWording::findsWhatNoTranslatorGetsTo()
{
    QFETCH(QString, file);
    QFETCH(QString, path);
    const QStringList findings = sample::strayTexts(lastWithChange());
    QCOMPARE(findings.size(), 1);
    QVERIFY2(findings.first().startsWith(file + QLatin1Char('/') + path), qPrintable(findings.first()));
}

void tst_SampleWording::writesEachCommandInOneForm()
{
    QCOMPARE(firstFinding(sample::misshapenCommands), QString());
}

void tst_SampleWording::findsAMisshapenCommand_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("finding");
    const QString sign = QStringLiteral("events/1/pages/0/list");
    QTest::newRow("too few") << sign + QStringLiteral("/0/parameters")
                             << QJsonValue(QJsonArray{QString(), 0, 0})
                             << "Map001.json event 1: command 101 with snn";
    QTest::newRow("of another type") << sign + QStringLiteral("/1/parameters/0") << QJsonValue(12)
                                     << "Map001.json event 1: command 401 with n";
    QTest::newRow("of no form") << sign + QStringLiteral("/1/code") << QJsonValue(402)
                                << "Map001.json event 1: command 402 with s";
    QTest::newRow("without an end") << sign << QJsonValue(QJsonArray()) << "Map001.json event 1: no end";
}

void tst_SampleWording::findsAMisshapenCommand()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, finding);
    QCOMPARE(sample::misshapenCommands(changed(m_last, kVillage, path, value)), QStringList{finding});
}

void tst_SampleWording::hasABranchForEachChoice()
{
    QCOMPARE(firstFinding(sample::mismatchedBranches), QString());
}

void tst_SampleWording::findsABranchThatIsNotItsChoiceS_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("another text") << QStringLiteral("4/parameters/1") << QJsonValue(QStringLiteral("#67"));
    QTest::newRow("another number") << QStringLiteral("9/parameters/0") << QJsonValue(0);
    QTest::newRow("no end") << QStringLiteral("13/code") << QJsonValue(0);
    QTest::newRow("one choice more") << QStringLiteral("3/parameters/0/2")
                                     << QJsonValue(QStringLiteral("#67"));
    QTest::newRow("one branch fewer") << QStringLiteral("9/code") << QJsonValue(0);
}

void tst_SampleWording::findsABranchThatIsNotItsChoiceS()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QCOMPARE(sample::mismatchedBranches(changed(m_last, kVillage, kElder + path, value)),
             QStringList{QStringLiteral("Map001.json event 7")});
}

void tst_SampleWording::fitsIntoTheMessageWindow_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("letters");
    QTest::newRow("en_US") << QStringLiteral("en_US") << 50;
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP") << 25;
    QTest::newRow("zh_CN") << QStringLiteral("zh_CN") << 25;
}

void tst_SampleWording::fitsIntoTheMessageWindow()
{
    QFETCH(QString, locale);
    QFETCH(int, letters);
    const QMap<QString, QString> texts = sample::catalogue(locale);
    QVERIFY(!texts.isEmpty());
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        QCOMPARE(sample::overlongMessages(readStep(step), texts, letters), QStringList());
    }
}

void tst_SampleWording::findsAMessageThatIsTooLong()
{
    const QString sign = QStringLiteral("#12");
    const QString text(51, QLatin1Char('x'));
    QCOMPARE(sample::overlongMessages(m_last, {{sign, text}}, 50),
             QStringList{QStringLiteral("Map001.json event 1: ") + text});
    QCOMPARE(sample::overlongMessages(m_last, {{sign, text}}, 51), QStringList());
    QJsonArray list = {QJsonObject{{QStringLiteral("code"), 101}}};
    for (int i = 0; i < 5; ++i) {
        list.append(QJsonObject{{QStringLiteral("code"), 401}});
    }
    const sample::Files files = changed(m_last, kVillage, QStringLiteral("events/1/pages/0/list"), list);
    QCOMPARE(sample::overlongMessages(files, {}, 50),
             QStringList{QStringLiteral("Map001.json event 1: 5 lines")});
}

QTEST_GUILESS_MAIN(tst_SampleWording)
#include "tst_SampleWording.moc"
