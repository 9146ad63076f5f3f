#include "CatalogueTexts.h"

#include <QSet>
#include <QTest>

namespace {

QByteArray catalogueOf(const QString &locale)
{
    return catalogueBytes(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/translations/%1.ts").arg(locale));
}

QSet<QString> namesIn(const QVector<CatalogueText> &texts)
{
    QSet<QString> names;
    for (const CatalogueText &text : texts) {
        names.insert(text.name());
    }
    return names;
}

void addLocales()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QString::fromLatin1(locale);
    }
}

} // namespace

/// The companion's catalogues as translators write them: its own texts, the lessons and the sample project.
class tst_Catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsFinished_data() { addLocales(); }
    void everyTextIsFinished();
    void everyTextOfTheSourcesIsThere_data() { addLocales(); }
    void everyTextOfTheSourcesIsThere();
};

void tst_Catalogues::everyTextIsFinished()
{
    QFETCH(QString, locale);
    const QVector<CatalogueText> texts = textsOf(catalogueOf(locale));
    for (const CatalogueText &text : texts) {
        QVERIFY2(text.state.isEmpty(), qPrintable(text.state + QLatin1Char(' ') + text.name()));
        QVERIFY2(!text.translation.isEmpty(), qPrintable(text.name()));
    }
    QVERIFY(!texts.isEmpty());
    QCOMPARE(namesIn(texts).size(), texts.size());
    QCOMPARE(namesIn(texts), namesIn(textsOf(catalogueOf(QStringLiteral("en_US")))));
}

/// What stands in no source is not looked for: lessons and the sample project name their texts by numbers,
/// and host editors have some that the companion only keeps for them.
void tst_Catalogues::everyTextOfTheSourcesIsThere()
{
    QFETCH(QString, locale);
    const QVector<CatalogueText> texts = textsOf(updatedCatalogue(
        catalogueOf(locale), QStringLiteral(LUPDATE), QStringLiteral(TUTORIAL_SOURCE_DIR "/cpp")));
    int inSources = 0;
    for (const CatalogueText &text : texts) {
        QVERIFY2(text.state != QLatin1String("unfinished"), qPrintable(text.name()));
        if (text.state.isEmpty()) {
            ++inSources;
            QCOMPARE(placesForValues(text.translation), placesForValues(text.source));
        }
    }
    QVERIFY(inSources > 0);
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_Catalogues.moc"
