#include "CpuTime.h"
#include "Tutorial/localisation/Translators.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

class tst_Translators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueIsFoundByTheNameOfItsLocale_data();
    void catalogueIsFoundByTheNameOfItsLocale();
    void unknownLocaleGivesAnEmptyTranslator_data();
    void unknownLocaleGivesAnEmptyTranslator();
    void longNameIsCutAtItsDelimiters();
    void fileOutsideTheResourcesIsNotRead();
    void nameOfMegabytesTakesNoTime();
    void translatorBelongsToTheParentAndIsNotInstalled();
};

void tst_Translators::catalogueIsFoundByTheNameOfItsLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("English") << QStringLiteral("en_US");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN");
}

void tst_Translators::catalogueIsFoundByTheNameOfItsLocale()
{
    QFETCH(QString, locale);
    QObject parent;
    const LoadedTranslator result = loadTranslator(locale, &parent);
    QVERIFY(result.loaded);
    QTranslator direct;
    QVERIFY(direct.load(QStringLiteral(":/translations/%1.qm").arg(locale)));
    const QString next = direct.translate("TutorialIndicator", "Next");
    QVERIFY(!next.isEmpty());
    QCOMPARE(result.translator->translate("TutorialIndicator", "Next"), next);
}

void tst_Translators::unknownLocaleGivesAnEmptyTranslator_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("nobody's") << QStringLiteral("xx_YY");
    QTest::newRow("for selection only") << QStringLiteral("Raw");
    QTest::newRow("empty") << QString();
    QTest::newRow("language only") << QStringLiteral("en");
    QTest::newRow("the folder itself") << QStringLiteral(".");
    QTest::newRow("no catalogue") << QStringLiteral("../icon/undo.png");
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("line feed") << QStringLiteral("en_US\n");
}

void tst_Translators::unknownLocaleGivesAnEmptyTranslator()
{
    QFETCH(QString, locale);
    QObject parent;
    const LoadedTranslator result = loadTranslator(locale, &parent);
    QVERIFY(!result.loaded);
    QVERIFY(result.translator != nullptr);
    QVERIFY(result.translator->isEmpty());
}

void tst_Translators::longNameIsCutAtItsDelimiters()
{
    QObject parent;
    QVERIFY(loadTranslator(QStringLiteral("ja_JP.UTF-8"), &parent).loaded);
    QVERIFY(loadTranslator(QStringLiteral("ja_JP_") + QString(1000, QLatin1Char('x')), &parent).loaded);
}

void tst_Translators::fileOutsideTheResourcesIsNotRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ja_JP.qm"));
    QVERIFY(QFile::copy(QStringLiteral(":/translations/ja_JP.qm"), path));
    QTranslator direct;
    QVERIFY(direct.load(path));
    QObject parent;
    for (const QString &locale : {path, folder.filePath(QStringLiteral("ja_JP")),
                                  QStringLiteral("../..") + path, QStringLiteral("../../..") + path}) {
        const LoadedTranslator result = loadTranslator(locale, &parent);
        QVERIFY2(!result.loaded, qPrintable(locale));
        QVERIFY(result.translator->isEmpty());
    }
}

void tst_Translators::nameOfMegabytesTakesNoTime()
{
    QObject parent;
    const CpuTime time;
    QVERIFY(!loadTranslator(QString(2000000, QLatin1Char('_')), &parent).loaded);
    QVERIFY2(time.elapsedMs() < 1000, qPrintable(QString::number(time.elapsedMs())));
}

void tst_Translators::translatorBelongsToTheParentAndIsNotInstalled()
{
    auto parent = std::make_unique<QObject>();
    const LoadedTranslator result = loadTranslator(QStringLiteral("ja_JP"), parent.get());
    QVERIFY(result.loaded);
    QCOMPARE(result.translator->parent(), parent.get());
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), QStringLiteral("Next"));
    const QPointer<QTranslator> translator = result.translator;
    parent.reset();
    QVERIFY(translator.isNull());
}

QTEST_GUILESS_MAIN(tst_Translators)
#include "tst_Translators.moc"
