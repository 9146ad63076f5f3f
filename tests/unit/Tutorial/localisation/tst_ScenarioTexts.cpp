#include "LogCapture.h"
#include "Tutorial/localisation/ScenarioTexts.h"

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>
#include <QtTest>

namespace {

/// An installed translator with a catalogue that the test writes down.
class InstalledTexts : public QTranslator
{
    Q_OBJECT

public:
    explicit InstalledTexts(const QHash<QString, QString> &texts)
        : m_texts(texts)
    {
        QCoreApplication::installTranslator(this);
    }
    ~InstalledTexts() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY(InstalledTexts)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                                    int /*n*/) const override
    {
        return m_texts.value(QString::fromUtf8(context) + QLatin1Char('/') + QString::fromUtf8(text));
    }

private:
    QHash<QString, QString> m_texts;
};

/// The text of the first entry of the scenario list in the "en_US" catalogue.
QString englishTitle()
{
    QTranslator direct;
    if (!direct.load(QStringLiteral(":/translations/en_US.qm"))) {
        return {};
    }
    return direct.translate("TutorialList", "#1");
}

} // namespace

class tst_ScenarioTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lookupIsLoggedBeforeAndBehind();
    void textThatNobodyHoldsComesBack();
    void contextAndTextAreUtf8();
    void shortFormUsesTheScenarioContext();
    void scriptUsesTheScenarioContext();
    void listUsesItsOwnContext();
    void unresolvedIdentifierIsLookedUpInTheSecondTranslator();
    void secondTranslatorHoldsNothingBeforeItIsLoaded();
    void identifierThatNobodyHoldsStays();
    void parseTranslatableUsesTheContextThatIsGiven();
    void failureTextsAreTranslated();
    void sampleTextTakesTheSecondLookupAsItIs();
};

void tst_ScenarioTexts::initTestCase()
{
    QVERIFY(!englishTitle().isEmpty());
    QVERIFY(!englishTitle().startsWith(QLatin1Char('#')));
}

void tst_ScenarioTexts::lookupIsLoggedBeforeAndBehind()
{
    const InstalledTexts installed({{QStringLiteral("Ctx/#1"), QStringLiteral("one")}});
    const ScenarioTexts texts;
    LogCapture log;
    QCOMPARE(texts.applyTranslation(QStringLiteral("Ctx"), QStringLiteral("#1")), QStringLiteral("one"));
    QCOMPARE(log.lines(), log.debugs());
    QCOMPARE(log.debugs().size(), 2);
    QVERIFY(
        log.debugs().at(0).endsWith(QStringLiteral("TutorialManager::applyTranslation 1885 \"Ctx\" \"#1\"")));
    QVERIFY(log.debugs().at(1).endsWith(
        QStringLiteral("TutorialManager::applyTranslation 1928 \"Ctx\" \"#1\" \"one\"")));
}

void tst_ScenarioTexts::textThatNobodyHoldsComesBack()
{
    const ScenarioTexts texts;
    QCOMPARE(texts.applyTranslation(QStringLiteral("Ctx"), QStringLiteral("#77")), QStringLiteral("#77"));
    QCOMPARE(texts.applyTranslation(QStringLiteral("Ctx"), QString()), QString());
    // There is no number, so the place of one stays.
    QCOMPARE(texts.applyTranslation(QStringLiteral("Ctx"), QStringLiteral("%n")), QStringLiteral("%n"));
}

void tst_ScenarioTexts::contextAndTextAreUtf8()
{
    const QString word = QString::fromUtf8("\u6f22\u5b57");
    const InstalledTexts installed({{word + QLatin1Char('/') + word, QStringLiteral("found")}});
    const ScenarioTexts texts;
    QCOMPARE(texts.applyTranslation(word, word), QStringLiteral("found"));
}

void tst_ScenarioTexts::shortFormUsesTheScenarioContext()
{
    const InstalledTexts installed({{QStringLiteral("TutorialStep11/#1"), QStringLiteral("eleven")}});
    ScenarioTexts texts;
    QCOMPARE(texts.context(), QString());
    texts.setContext(QStringLiteral("TutorialStep11"));
    QCOMPARE(texts.context(), QStringLiteral("TutorialStep11"));
    QCOMPARE(texts.applyTranslation(QStringLiteral("#1")), QStringLiteral("eleven"));
}

void tst_ScenarioTexts::scriptUsesTheScenarioContext()
{
    const InstalledTexts installed({{QStringLiteral("TutorialStep11/#1"), QStringLiteral("eleven")}});
    ScenarioTexts texts;
    texts.setContext(QStringLiteral("TutorialStep11"));
    QStringList errors;
    QCOMPARE(texts.translateScript(QStringLiteral("{\"hint\":qsTr(\"#1\")}\n"), &errors),
             QStringLiteral("{\"hint\":\"eleven\"}"));
    QCOMPARE(errors, QStringList());
}

void tst_ScenarioTexts::listUsesItsOwnContext()
{
    const InstalledTexts installed({{QStringLiteral("TutorialList/#1"), QStringLiteral("First")},
                                    {QStringLiteral("TutorialStep11/#1"), QStringLiteral("eleven")}});
    ScenarioTexts texts;
    texts.setContext(QStringLiteral("TutorialStep11"));
    QStringList errors;
    QCOMPARE(texts.translateList(QStringLiteral("var list = [\r\n\t{\"title\":qsTr(\"#1\")}\r\n];"), &errors),
             QStringLiteral("[\r\n\t{\"title\":\"First\"}\r\n]"));
    QCOMPARE(errors, QStringList());
}

void tst_ScenarioTexts::unresolvedIdentifierIsLookedUpInTheSecondTranslator()
{
    ScenarioTexts texts;
    QVERIFY(texts.loadSecond());
    texts.setContext(QStringLiteral("TutorialList"));
    QStringList errors;
    QCOMPARE(texts.translateScript(QStringLiteral("qsTr(\"#1\")"), &errors),
             QLatin1Char('"') + englishTitle() + QLatin1Char('"'));
    // The second translator serves this lookup alone.
    QCOMPARE(texts.applyTranslation(QStringLiteral("TutorialList"), QStringLiteral("#1")),
             QStringLiteral("#1"));
    QCOMPARE(QCoreApplication::translate("TutorialList", "#1"), QStringLiteral("#1"));
}

void tst_ScenarioTexts::secondTranslatorHoldsNothingBeforeItIsLoaded()
{
    const ScenarioTexts texts;
    QStringList errors;
    QCOMPARE(texts.translateList(QStringLiteral("qsTr(\"#1\")"), &errors), QStringLiteral("\"#1\""));
    QCOMPARE(texts.sampleText(QStringLiteral("TutorialList"), QStringLiteral("#1")), QString());
}

void tst_ScenarioTexts::identifierThatNobodyHoldsStays()
{
    ScenarioTexts texts;
    QVERIFY(texts.loadSecond());
    QStringList errors;
    QCOMPARE(texts.translateScript(QStringLiteral("qsTr(\"#999999\")"), &errors),
             QStringLiteral("\"#999999\""));
    QCOMPARE(errors, QStringList());
}

void tst_ScenarioTexts::parseTranslatableUsesTheContextThatIsGiven()
{
    const InstalledTexts installed({{QStringLiteral("Other/#1"), QStringLiteral("other")}});
    const ScenarioTexts texts;
    QString rest;
    QStringList errors;
    QCOMPARE(
        texts.parseTranslatable(QStringLiteral("qsTr(\"#1\"), 5"), QStringLiteral("Other"), &rest, &errors),
        QStringLiteral("\"other\""));
    QCOMPARE(rest, QStringLiteral(", 5"));
}

void tst_ScenarioTexts::failureTextsAreTranslated()
{
    const InstalledTexts installed(
        {{QStringLiteral("TutorialManager/not matched %1...%2: "), QStringLiteral("%2 fehlt hinter %1: ")},
         {QStringLiteral("TutorialManager/unable to parse as string: "), QStringLiteral("kein Text: ")}});
    const ScenarioTexts texts;
    QString rest;
    QStringList errors;
    QCOMPARE(texts.parseTranslatable(QStringLiteral("5"), QString(), &rest, &errors), QStringLiteral("5"));
    QCOMPARE(texts.parseTranslatable(QStringLiteral("qsTr(\"x"), QString(), &rest, &errors),
             QStringLiteral("qsTr(\"x"));
    QCOMPARE(errors, (QStringList{QStringLiteral("kein Text: 5"),
                                  QStringLiteral("\") fehlt hinter qsTr(\": qsTr(\"x")}));
}

void tst_ScenarioTexts::sampleTextTakesTheSecondLookupAsItIs()
{
    const InstalledTexts installed({{QStringLiteral("Tutorial/#1"), QStringLiteral("inn")},
                                    {QStringLiteral("Tutorial/#2"), QStringLiteral("#gone")}});
    ScenarioTexts texts;
    QVERIFY(texts.loadSecond());
    const QString context = QStringLiteral("Tutorial");
    QCOMPARE(texts.sampleText(context, QStringLiteral("#1")), QStringLiteral("inn"));
    QCOMPARE(texts.sampleText(context, QStringLiteral("plain")), QStringLiteral("plain"));
    QCOMPARE(texts.sampleText(context, QString()), QString());
    QCOMPARE(texts.sampleText(QStringLiteral("TutorialList"), QStringLiteral("#1")), englishTitle());
    QCOMPARE(texts.sampleText(context, QStringLiteral("#999999")), QString());
    // Any result that begins like an identifier counts as unresolved.
    QCOMPARE(texts.sampleText(context, QStringLiteral("#2")), [] {
        QTranslator direct;
        return direct.load(QStringLiteral(":/translations/en_US.qm")) ? direct.translate("Tutorial", "#2")
                                                                      : QStringLiteral("no catalogue");
    }());
}

QTEST_GUILESS_MAIN(tst_ScenarioTexts)
#include "tst_ScenarioTexts.moc"
