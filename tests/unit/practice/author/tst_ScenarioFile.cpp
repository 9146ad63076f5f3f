#include "author/ScenarioFile.h"
#include "lesson/Scenario.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray kScenario =
    "\xEF\xBB\xBFvar scenario = [\n"
    "    {\n\"id\":4,\n\"hint\":qsTr(\"#1\"),\n\"condition\":\"click,\"\n    },\n"
    "    {\n\"id\":5,\n\"hint\":qsTr( \"#2\" ),\n\"condition\":\"list,2\"\n    }\n];";

QByteArray catalogueOf(const QByteArray &context, const QByteArray &first)
{
    return "<?xml version=\"1.0\"?><TS><context><name>Other</name><message><source>#1</source>"
           "<translation>wrong</translation></message></context><context><name>" +
           context + "</name><message><location line=\"1\"/><source>#1</source><translation>" + first +
           "</translation></message><message><source>#2</source><comment>c</comment>"
           "<translation type=\"unfinished\">two</translation></message></context></TS>";
}

} // namespace

class tst_ScenarioFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void takesTheTextsFromTheCatalogueBesideIt();
    void takesThemFromTheProjectsCatalogueElse();
    void textsKeepTheirQuotesAndLines();
    void aTextThatIsMissingIsTold();
    void withoutACatalogueTheNumbersShow();
    void namesFileAndLineOfWhatIsWrong_data();
    void namesFileAndLineOfWhatIsWrong();
    void aFileThatIsNotThereIsTold();

private:
    void write(const QString &name, const QByteArray &contents);
    [[nodiscard]] QString path(const QString &name) const { return m_room->filePath(name); }
    QStringList hints(const QString &locale = QStringLiteral("en_US"));

    std::unique_ptr<QTemporaryDir> m_room;
    QStringList m_problems;
};

void tst_ScenarioFile::init()
{
    m_room = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_room->path()).mkpath(QStringLiteral("qml/Lessons")));
    QVERIFY(QDir(m_room->path()).mkpath(QStringLiteral("translations")));
    m_problems.clear();
    write(QStringLiteral("qml/Lessons/Harbor.js"), kScenario);
}

void tst_ScenarioFile::write(const QString &name, const QByteArray &contents)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(contents), qint64(contents.size()));
}

QStringList tst_ScenarioFile::hints(const QString &locale)
{
    const ScenarioFile file(path(QStringLiteral("qml/Lessons/Harbor.js")), locale);
    QStringList problems;
    const Scenario scenario = Scenario::parse(file.read(&m_problems), &problems);
    QStringList hints;
    for (int i = 0; i < scenario.size(); ++i) {
        hints += scenario.step(i).hint;
    }
    return hints;
}

void tst_ScenarioFile::takesTheTextsFromTheCatalogueBesideIt()
{
    write(QStringLiteral("qml/Lessons/Harbor.en_US.ts"), catalogueOf("Harbor", "one"));
    write(QStringLiteral("translations/en_US.ts"), catalogueOf("Harbor", "not this"));
    QCOMPARE(hints(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    QCOMPARE(m_problems, QStringList());
}

void tst_ScenarioFile::takesThemFromTheProjectsCatalogueElse()
{
    write(QStringLiteral("qml/Lessons/Harbor.en_US.ts"), catalogueOf("Harbor", "not this"));
    write(QStringLiteral("translations/ja_JP.ts"), catalogueOf("Harbor", "\xE4\xB8\x80"));
    QCOMPARE(hints(QStringLiteral("ja_JP")), (QStringList{QStringLiteral("一"), QStringLiteral("two")}));
    QCOMPARE(m_problems, QStringList());
}

void tst_ScenarioFile::textsKeepTheirQuotesAndLines()
{
    write(QStringLiteral("qml/Lessons/Harbor.en_US.ts"),
          catalogueOf("Harbor", "say \"a\\b\"\nand &lt;go&gt;"));
    QCOMPARE(hints().value(0), QStringLiteral("say \"a\\b\"\nand <go>"));
}

void tst_ScenarioFile::aTextThatIsMissingIsTold()
{
    write(QStringLiteral("qml/Lessons/Harbor.en_US.ts"), catalogueOf("Another", "one"));
    QCOMPARE(hints(), (QStringList{QStringLiteral("#1"), QStringLiteral("#2")}));
    QCOMPARE(m_problems.value(0), QStringLiteral("%1:4: %2 has no text \"#1\"; the hint shows just that")
                                      .arg(path(QStringLiteral("qml/Lessons/Harbor.js")),
                                           path(QStringLiteral("qml/Lessons/Harbor.en_US.ts"))));
    QCOMPARE(m_problems.size(), 2);
}

void tst_ScenarioFile::withoutACatalogueTheNumbersShow()
{
    QCOMPARE(hints(), (QStringList{QStringLiteral("#1"), QStringLiteral("#2")}));
    QVERIFY2(m_problems.value(0).contains(QStringLiteral("there is no catalogue of its texts")),
             qPrintable(m_problems.value(0)));
}

void tst_ScenarioFile::namesFileAndLineOfWhatIsWrong_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("line");
    const QString scenario = QStringLiteral("qml/Lessons/Harbor.js");
    QTest::newRow("a comma is missing")
        << scenario << QByteArray("var scenario = [\n{\n\"id\":4\n\"hint\":\"\"\n}\n];") << 4;
    QTest::newRow("a catalogue that is none")
        << QStringLiteral("qml/Lessons/Harbor.en_US.ts") << QByteArray("<TS>\n<context>\n</TS>") << 3;
}

void tst_ScenarioFile::namesFileAndLineOfWhatIsWrong()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, contents);
    QFETCH(int, line);
    write(QStringLiteral("qml/Lessons/Harbor.en_US.ts"), catalogueOf("Harbor", "one"));
    write(file, contents);
    hints();
    const QString begin = QStringLiteral("%1:%2: ").arg(path(file)).arg(line);
    QVERIFY2(m_problems.value(0).startsWith(begin), qPrintable(m_problems.value(0)));
}

void tst_ScenarioFile::aFileThatIsNotThereIsTold()
{
    const ScenarioFile file(path(QStringLiteral("None.js")), QStringLiteral("en_US"));
    QCOMPARE(file.read(&m_problems), QString());
    QVERIFY2(m_problems.value(0).startsWith(path(QStringLiteral("None.js")) +
                                            QStringLiteral(": it cannot be read: ")),
             qPrintable(m_problems.value(0)));
}

QTEST_APPLESS_MAIN(tst_ScenarioFile)
#include "tst_ScenarioFile.moc"
