#include "LogCapture.h"
#include "Tutorial/localisation/Languages.h"

#include <QCoreApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {

const QString kSource =
    QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");

QList<QTranslator *> translators()
{
    return QCoreApplication::instance()->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly);
}

/// A text that every catalogue has.
QString next()
{
    return QCoreApplication::translate("TutorialIndicator", "Next");
}

QString stored()
{
    return QSettings().value(QStringLiteral("debugLocale")).toString();
}

} // namespace

/// The two locales of the process, and what a change of them brings about.
class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void beginsWithTheLocaleThatWasChosenLast_data();
    void beginsWithTheLocaleThatWasChosenLast();
    void changesTheLocale();
    void announcesNoSecondLocaleThatStays();
    void changesPlacesWithTheSecondLocale();
    void asksTheNewestCatalogueFirst();
    void loadsNothingForTheSecondLocale();
    void takesALocaleWithoutACatalogue();
    void ignoresTheCurrentLocale();
    void greetsInTheHostsLanguage_data();
    void greetsInTheHostsLanguage();
    void aGreetingLeavesTheChoice();

private:
    void writeDownSignals();

    std::unique_ptr<Languages> m_languages;
    QStringList m_signals; // in order
};

void tst_Languages::init()
{
    QSettings().clear();
    m_languages = std::make_unique<Languages>();
    writeDownSignals();
}

void tst_Languages::cleanup()
{
    m_languages.reset();
    qDeleteAll(translators());
}

void tst_Languages::writeDownSignals()
{
    m_signals.clear();
    connect(m_languages.get(), &Languages::localeChanged, this,
            [this] { m_signals << QStringLiteral("locale ") + m_languages->locale(); });
    connect(m_languages.get(), &Languages::locale2Changed, this,
            [this] { m_signals << QStringLiteral("locale2 ") + m_languages->locale2(); });
    connect(m_languages.get(), &Languages::fontLocaleChanged, this,
            [this](const QString &locale) { m_signals << QStringLiteral("font ") + locale; });
}

void tst_Languages::beginsWithTheLocaleThatWasChosenLast_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("locale2");
    QTest::newRow("none") << QString() << QStringLiteral("en_US") << QStringLiteral("ja_JP");
    for (const char *locale : {"en_US", "zh_CN", "Raw"}) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromLatin1(locale)
                              << QStringLiteral("ja_JP");
    }
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP") << QStringLiteral("ja_JP") << QStringLiteral("en_US");
}

void tst_Languages::beginsWithTheLocaleThatWasChosenLast()
{
    QFETCH(QString, chosen);
    QFETCH(QString, locale);
    QFETCH(QString, locale2);
    if (!chosen.isEmpty()) {
        QSettings().setValue(QStringLiteral("debugLocale"), chosen);
    }
    const LogCapture log;
    const Languages languages;
    QCOMPARE(languages.locale(), locale);
    QCOMPARE(languages.locale2(), locale2);
    QCOMPARE(stored(), chosen);
    QCOMPARE(translators().size(), 0);
    QCOMPARE(log.lines(), QStringList());
}

void tst_Languages::changesTheLocale()
{
    LogCapture log;
    m_languages->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(m_languages->locale(), QStringLiteral("ja_JP"));
    QCOMPARE(m_languages->locale2(), QStringLiteral("en_US"));
    QCOMPARE(m_signals, (QStringList{QStringLiteral("font ja_JP"), QStringLiteral("locale2 en_US"),
                                     QStringLiteral("locale ja_JP")}));
    QCOMPARE(stored(), QStringLiteral("ja_JP"));
    QCOMPARE(next(), QStringLiteral("\u6b21\u3078"));
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.debugs(),
             (QStringList{kSource + QStringLiteral("setLocale 2204 \"ja_JP\""),
                          kSource + QStringLiteral("setLocale2 2226 \"en_US\""),
                          kSource + QStringLiteral("setLocale 2215 \":/translations/ja_JP\" true")}));
}

void tst_Languages::announcesNoSecondLocaleThatStays()
{
    m_languages->setLocale2(QStringLiteral("en_US"));
    m_signals.clear();
    m_languages->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(m_languages->locale2(), QStringLiteral("en_US"));
    QCOMPARE(m_signals, (QStringList{QStringLiteral("font ja_JP"), QStringLiteral("locale ja_JP")}));
}

void tst_Languages::changesPlacesWithTheSecondLocale()
{
    LogCapture log;
    m_languages->setLocale(m_languages->locale2());
    QCOMPARE(m_languages->locale(), QStringLiteral("ja_JP"));
    QCOMPARE(m_languages->locale2(), QStringLiteral("en_US"));
    QVERIFY(log.contains(QStringLiteral("2215 \":/translations/ja_JP\" true")));
}

void tst_Languages::asksTheNewestCatalogueFirst()
{
    m_languages->setLocale(QStringLiteral("ja_JP"));
    const QString japanese = next();
    QCOMPARE(japanese, QStringLiteral("\u6b21\u3078"));
    m_languages->setLocale(QStringLiteral("zh_CN"));
    const QString chinese = next();
    QVERIFY(chinese != japanese && chinese != QLatin1String("Next"));
    // A locale without a catalogue leaves the word to those before it.
    m_languages->setLocale(QStringLiteral("Raw"));
    QCOMPARE(next(), chinese);
    QCOMPARE(translators().size(), 3);
}

void tst_Languages::loadsNothingForTheSecondLocale()
{
    LogCapture log;
    m_languages->setLocale2(QStringLiteral("zh_CN"));
    QCOMPARE(m_languages->locale2(), QStringLiteral("zh_CN"));
    QCOMPARE(translators().size(), 0);
    QCOMPARE(next(), QStringLiteral("Next"));
    QCOMPARE(log.lines(), QStringList{kSource + QStringLiteral("setLocale2 2226 \"zh_CN\"")});
    QCOMPARE(m_signals, QStringList{QStringLiteral("locale2 zh_CN")});
    QCOMPARE(stored(), QString());
}

void tst_Languages::takesALocaleWithoutACatalogue()
{
    LogCapture log;
    m_languages->setLocale(QStringLiteral("Raw"));
    QCOMPARE(m_languages->locale(), QStringLiteral("Raw"));
    QCOMPARE(stored(), QStringLiteral("Raw"));
    QCOMPARE(log.debugs().constLast(),
             kSource + QStringLiteral("setLocale 2215 \":/translations/Raw\" false"));
}

void tst_Languages::ignoresTheCurrentLocale()
{
    LogCapture log;
    m_languages->setLocale(QStringLiteral("en_US"));
    m_languages->setLocale2(QStringLiteral("ja_JP"));
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_languages->locale2(), QStringLiteral("ja_JP"));
    QCOMPARE(stored(), QString());
}

void tst_Languages::greetsInTheHostsLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QStringList>("font");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("ja_JP") << true
                              << QStringList{QStringLiteral("font ja_JP")};
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("en_US") << true
                             << QStringList{QStringLiteral("font en_US")};
    QTest::newRow("dash") << QStringLiteral("-") << QStringLiteral("en_US") << true << QStringList();
    QTest::newRow("empty") << QString() << QStringLiteral("en_US") << true << QStringList();
    QTest::newRow("two dashes") << QStringLiteral("--") << QStringLiteral("--") << false
                                << QStringList{QStringLiteral("font --")};
    QTest::newRow("unknown") << QStringLiteral("xx_YY") << QStringLiteral("xx_YY") << false
                             << QStringList{QStringLiteral("font xx_YY")};
}

void tst_Languages::greetsInTheHostsLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, catalogue);
    QFETCH(bool, isThere);
    QFETCH(QStringList, font);
    LogCapture log;
    m_languages->greet(locale);
    QCOMPARE(log.lines(), QStringList{kSource + QStringLiteral("onReceived 921 \":/translations/%1\" %2")
                                                    .arg(catalogue, QVariant(isThere).toString())});
    QCOMPARE(m_signals, font);
    QCOMPARE(translators().size(), 1);
    QCOMPARE(next() == QLatin1String("Next"), catalogue != QLatin1String("ja_JP"));
}

void tst_Languages::aGreetingLeavesTheChoice()
{
    m_languages->greet(QStringLiteral("zh_CN"));
    QCOMPARE(m_languages->locale(), QStringLiteral("en_US"));
    QCOMPARE(m_languages->locale2(), QStringLiteral("ja_JP"));
    QCOMPARE(stored(), QString());
    m_languages->greet(QStringLiteral("zh_CN"));
    QCOMPARE(translators().size(), 2);
}

int main(int argc, char **argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELMORAN"));
    tst_Languages test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_Languages.moc"
