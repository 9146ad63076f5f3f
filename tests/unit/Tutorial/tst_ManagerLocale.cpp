#include "LogCapture.h"
#include "ManagerFixture.h"
#include "Tutorial/overlay/EditorTooltip.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTranslator>

/// The two locales of the manager, and what a change of them brings about.
class tst_ManagerLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithTheLocaleThatWasChosenLast_data();
    void startsWithTheLocaleThatWasChosenLast();
    void changesTheLocale();
    void changesTheSecondLocaleAlone();
    void handsTheLocaleToTheFont();
    void handsTheLocaleOfAGreetingToTheFont();

private:
    /// The font that an overlay takes now.
    [[nodiscard]] QString overlayFamily() const;

    std::unique_ptr<ManagerFixture> m_fixture;
    QStringList m_order; // of signals
};

void tst_ManagerLocale::init()
{
    QSettings().clear();
    m_order.clear();
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
}

void tst_ManagerLocale::cleanup()
{
    m_fixture.reset();
    deleteOverlays();
    qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
}

void tst_ManagerLocale::startsWithTheLocaleThatWasChosenLast_data()
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

void tst_ManagerLocale::startsWithTheLocaleThatWasChosenLast()
{
    QFETCH(QString, chosen);
    QFETCH(QString, locale);
    QFETCH(QString, locale2);
    m_fixture.reset();
    if (!chosen.isEmpty()) {
        QSettings().setValue(QStringLiteral("debugLocale"), chosen);
    }
    m_fixture = std::make_unique<ManagerFixture>();
    LogCapture log;
    QVERIFY(m_fixture->start());
    QCOMPARE(m_fixture->manager->locale(), locale);
    QCOMPARE(m_fixture->manager->locale2(), locale2);
    QVERIFY(log.contains(
        QStringLiteral("TutorialManager::TutorialManager 210 \"%1\" \"%2\"").arg(locale, locale2)));
    QVERIFY(log.contains(QStringLiteral("TutorialManager::TutorialManager 247 true")));
}

void tst_ManagerLocale::changesTheLocale()
{
    TutorialManager *manager = m_fixture->manager.get();
    QCOMPARE(manager->locale(), QStringLiteral("en_US"));
    QCOMPARE(manager->locale2(), QStringLiteral("ja_JP"));
    connect(manager, &TutorialManager::localeChanged, this,
            [this] { m_order.append(QStringLiteral("locale")); });
    connect(manager, &TutorialManager::locale2Changed, this,
            [this] { m_order.append(QStringLiteral("locale2")); });
    LogCapture log;
    manager->setProperty("locale", QStringLiteral("ja_JP"));
    QCOMPARE(manager->locale(), QStringLiteral("ja_JP"));
    QCOMPARE(manager->locale2(), QStringLiteral("en_US"));
    QCOMPARE(m_order, (QStringList{QStringLiteral("locale2"), QStringLiteral("locale")}));
    QCOMPARE(QSettings().value(QStringLiteral("debugLocale")).toString(), QStringLiteral("ja_JP"));
    const QString source =
        QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.debugs(),
             (QStringList{source + QStringLiteral("setLocale 2204 \"ja_JP\""),
                          source + QStringLiteral("setLocale2 2226 \"en_US\""),
                          source + QStringLiteral("setLocale 2215 \":/translations/ja_JP\" true")}));
}

void tst_ManagerLocale::changesTheSecondLocaleAlone()
{
    TutorialManager *manager = m_fixture->manager.get();
    const QSignalSpy locale(manager, &TutorialManager::localeChanged);
    const QSignalSpy locale2(manager, &TutorialManager::locale2Changed);
    QVERIFY(manager->setProperty("locale2", QStringLiteral("zh_CN")));
    QCOMPARE(manager->property("locale2").toString(), QStringLiteral("zh_CN"));
    QCOMPARE(manager->property("locale").toString(), QStringLiteral("en_US"));
    QCOMPARE(locale.size(), 0);
    QCOMPARE(locale2.size(), 1);
}

QString tst_ManagerLocale::overlayFamily() const
{
    m_fixture->receive({QStringLiteral("showTooltip"), QStringLiteral("text")});
    return topLevels<EditorTooltip>().constFirst()->findChild<QTextEdit *>()->font().family();
}

void tst_ManagerLocale::handsTheLocaleToTheFont()
{
    LogCapture log;
    const QString latin = overlayFamily();
    m_fixture->manager->setLocale(QStringLiteral("zh_CN"));
    QVERIFY(overlayFamily() != latin);
}

void tst_ManagerLocale::handsTheLocaleOfAGreetingToTheFont()
{
    const QString greeting = QStringLiteral("fromServer");
    LogCapture log;
    const QString latin = overlayFamily();
    m_fixture->receive({greeting, QStringLiteral("zh_CN")});
    const QString chinese = overlayFamily();
    QVERIFY(chinese != latin);
    // The greetings that name no locale leave the font as it is, though they load English texts.
    m_fixture->receive({greeting, QStringLiteral("-")});
    QCOMPARE(overlayFamily(), chinese);
    m_fixture->receive({greeting, QString()});
    QCOMPARE(overlayFamily(), chinese);
    m_fixture->receive({greeting});
    QCOMPARE(overlayFamily(), chinese);
    m_fixture->receive({greeting, QStringLiteral("en_US")});
    QCOMPARE(overlayFamily(), latin);
    // The locale of the texts is another matter.
    QCOMPARE(m_fixture->manager->locale(), QStringLiteral("en_US"));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerLocale>(argc, argv);
}
#include "tst_ManagerLocale.moc"
