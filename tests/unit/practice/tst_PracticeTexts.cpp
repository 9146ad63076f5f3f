#include "CatalogueTexts.h"
#include "PracticeTranslator.h"
#include "lesson/LessonWords.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

namespace {

QString cataloguePath(const QString &locale)
{
    return QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/translations/%1.ts").arg(locale);
}

/// What is wrong with a catalogue when it is held against the sources, one line each.
QStringList problemsOf(const QByteArray &catalogue)
{
    const QVector<CatalogueText> texts = textsOf(updatedCatalogue(
        catalogue, QStringLiteral(LUPDATE), QStringLiteral(TUTORIAL_SOURCE_DIR "/practice")));
    if (texts.isEmpty()) {
        return {QStringLiteral("no texts")};
    }
    QStringList problems;
    for (const CatalogueText &text : texts) {
        if (!text.state.isEmpty()) {
            problems.append(text.state + QLatin1Char(' ') + text.name());
        } else if (text.translation.isEmpty()) {
            problems.append(QStringLiteral("empty ") + text.name());
        } else if (placesForValues(text.translation) != placesForValues(text.source)) {
            problems.append(QStringLiteral("other values in ") + text.name());
        }
    }
    return problems;
}

QByteArray catalogueWith(const QString &source, const QString &translation)
{
    return QStringLiteral("<context><name>LessonStrip</name><message><source>%1</source>"
                          "<translation>%2</translation></message></context></TS>")
        .arg(source, translation)
        .toUtf8();
}

} // namespace

class tst_PracticeTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageButEnglishHasACatalogue();
    void aCatalogueHasJustTheTextsOfTheSources_data();
    void aCatalogueHasJustTheTextsOfTheSources();
    void aMistakeInACatalogueIsFound_data();
    void aMistakeInACatalogueIsFound();
    void theTextsAreShownInTheirLanguage_data();
    void theTextsAreShownInTheirLanguage();
    void englishIsWhatTheSourcesSay();
};

void tst_PracticeTexts::everyLanguageButEnglishHasACatalogue()
{
    QStringList catalogues;
    for (const QString &locale : LessonWords::locales().mid(1)) {
        catalogues.append(locale + QStringLiteral(".ts"));
    }
    QCOMPARE(QDir(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/translations")).entryList(QDir::Files),
             catalogues);
}

void tst_PracticeTexts::aCatalogueHasJustTheTextsOfTheSources_data()
{
    QTest::addColumn<QString>("locale");
    for (const QString &locale : LessonWords::locales().mid(1)) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_PracticeTexts::aCatalogueHasJustTheTextsOfTheSources()
{
    QFETCH(QString, locale);
    const QByteArray catalogue = catalogueBytes(cataloguePath(locale));
    QVERIFY(textsOf(catalogue).size() > 20);
    QCOMPARE(problemsOf(catalogue), QStringList());
}

void tst_PracticeTexts::aMistakeInACatalogueIsFound_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a text that is gone from the sources")
        << catalogueWith(QStringLiteral("Nobody says this."), QStringLiteral("x"))
        << QStringLiteral("vanished LessonStrip: Nobody says this.");
    QTest::newRow("a text without a translation")
        << catalogueWith(QStringLiteral("Back"), QString()) << QStringLiteral("empty LessonStrip: Back");
    QTest::newRow("a text that leaves a value out")
        << catalogueWith(QStringLiteral("%1 of %2"), QStringLiteral("%2"))
        << QStringLiteral("other values in LessonStrip: %1 of %2");
    QTest::newRow("a text that is missing") << catalogueWith(QStringLiteral("Back"), QStringLiteral("x"))
                                            << QStringLiteral("unfinished LessonStrip: Leave lesson");
}

void tst_PracticeTexts::aMistakeInACatalogueIsFound()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const QStringList problems = problemsOf(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\" language=\"ja_JP\">" +
        text);
    QVERIFY2(problems.contains(problem), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_PracticeTexts::theTextsAreShownInTheirLanguage_data()
{
    aCatalogueHasJustTheTextsOfTheSources_data();
}

void tst_PracticeTexts::theTextsAreShownInTheirLanguage()
{
    QFETCH(QString, locale);
    const QVector<CatalogueText> texts = textsOf(catalogueBytes(cataloguePath(locale)));
    const auto shown = [](const CatalogueText &text) {
        return QCoreApplication::translate(qPrintable(text.context), qPrintable(text.source));
    };
    {
        const PracticeTranslator translator(locale);
        for (const CatalogueText &text : texts) {
            QCOMPARE(shown(text), text.translation);
        }
    }
    for (const CatalogueText &text : texts) {
        QCOMPARE(shown(text), text.source);
    }
}

void tst_PracticeTexts::englishIsWhatTheSourcesSay()
{
    const PracticeTranslator translator(QStringLiteral("en_US"));
    QVERIFY(translator.isEmpty());
    const QVector<CatalogueText> texts = textsOf(catalogueBytes(cataloguePath(QStringLiteral("ja_JP"))));
    QVERIFY(!texts.isEmpty());
    for (const CatalogueText &text : texts) {
        QCOMPARE(QCoreApplication::translate(qPrintable(text.context), qPrintable(text.source)), text.source);
    }
}

QTEST_GUILESS_MAIN(tst_PracticeTexts)
#include "tst_PracticeTexts.moc"
