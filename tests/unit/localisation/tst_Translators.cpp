#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>
#include <QtTest>

#include "Tutorial/localisation/Translators.h"

class tst_Translators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueIsFoundByTheNameOfItsLocale_data();
    void catalogueIsFoundByTheNameOfItsLocale();
    void unknownLocaleGivesAnEmptyTranslator();
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

void tst_Translators::unknownLocaleGivesAnEmptyTranslator()
{
    QObject parent;
    const LoadedTranslator result = loadTranslator(QStringLiteral("xx_YY"), &parent);
    QVERIFY(!result.loaded);
    QVERIFY(result.translator != nullptr);
    QVERIFY(result.translator->isEmpty());
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
