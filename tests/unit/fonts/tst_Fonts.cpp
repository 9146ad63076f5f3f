#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTest>
#include <QTextLayout>

/// The two font files that are built beside the program, read as the program reads them.
class tst_Fonts : public QObject
{
    Q_OBJECT

private:
    static QString file(const char *name)
    {
        return QStringLiteral(TUTORIAL_FONTS_DIR "/") + QLatin1String(name);
    }

    /// The family that the file declares, or empty text when Qt refuses the file.
    static QString familyOf(const char *name)
    {
        const int id = QFontDatabase::addApplicationFont(file(name));
        return id < 0 ? QString() : QFontDatabase::applicationFontFamilies(id).value(0);
    }

    /// The families that @p text is really set in, in its order, when @p family is asked for.
    static QStringList familiesUsed(const QString &text, const QString &family)
    {
        QTextLayout layout(text, QFont(family, 12));
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        const QList<QGlyphRun> runs = layout.glyphRuns();
        for (const QGlyphRun &run : runs) {
            families += run.rawFont().familyName().section(u',', 0, 0); // substitutes follow behind commas
        }
        return families;
    }

private Q_SLOTS:
    void bothFilesLoadAndDeclareFamiliesOfTheirOwn()
    {
        const QString whole = familyOf("mplus-1c-regular.ttf");
        const QString latin = familyOf("mplusmini-1c-regular.ttf");
        QCOMPARE(whole, QStringLiteral("M PLUS 1"));
        QCOMPARE(latin, QStringLiteral("M PLUS 1 Mini"));
        QVERIFY(QFontDatabase().families().contains(whole));
        QVERIFY(QFontDatabase().families().contains(latin));
    }

    void characterIsInTheFontsItBelongsTo_data()
    {
        QTest::addColumn<QString>("characters");
        QTest::addColumn<bool>("inWhole");
        QTest::addColumn<bool>("inLatin");
        QTest::newRow("letters") << QStringLiteral("AZaz") << true << true;
        QTest::newRow("accented letters") << QString::fromUtf8("ÄéñőŁ") << true << true;
        QTest::newRow("digits") << QStringLiteral("0123456789") << true << true;
        QTest::newRow("punctuation") << QStringLiteral(".,;:!?'\"()[]{}<>/\\+-*=%&#@_|~^`$") << true << true;
        QTest::newRow("punctuation beyond ASCII") << QString::fromUtf8("«»¿¡–•†‹›") << true << true;
        QTest::newRow("punctuation that is also Chinese") << QString::fromUtf8("“”‘’…—") << true << false;
        QTest::newRow("East Asian punctuation") << QString::fromUtf8("、。「」") << true << false;
        QTest::newRow("full-width forms") << QString::fromUtf8("！？：０９") << true << false;
        QTest::newRow("kana") << QString::fromUtf8("あんアン") << true << false;
        QTest::newRow("Japanese") << QString::fromUtf8("日本語地図") << true << false;
        QTest::newRow("Simplified Chinese") << QString::fromUtf8("这说们") << false << false;
        QTest::newRow("Korean") << QString::fromUtf8("한국어") << false << false;
    }
    void characterIsInTheFontsItBelongsTo()
    {
        QFETCH(QString, characters);
        QFETCH(bool, inWhole);
        QFETCH(bool, inLatin);
        const QRawFont whole(file("mplus-1c-regular.ttf"), 16);
        const QRawFont latin(file("mplusmini-1c-regular.ttf"), 16);
        QVERIFY(whole.isValid());
        QVERIFY(latin.isValid());
        for (const QChar character : qAsConst(characters)) {
            const QByteArray name = QString(character).toUtf8();
            QVERIFY2(whole.supportsCharacter(character) == inWhole, name.constData());
            QVERIFY2(latin.supportsCharacter(character) == inLatin, name.constData());
        }
    }

    void chineseTextComesWholeFromTheSubstitute()
    {
        const QString latin = familyOf("mplusmini-1c-regular.ttf");
        const QString chinese = QStringLiteral("WenQuanYi Micro Hei");
        QVERIFY2(QFontDatabase().families().contains(chinese), "the package fonts-wqy-microhei is missing");
        QFont::insertSubstitutions(latin, {chinese});
        QCOMPARE(familiesUsed(QString::fromUtf8("这张地图、“里”…"), latin), QStringList{chinese});
        QCOMPARE(familiesUsed(QStringLiteral("Map 1"), latin), QStringList{latin});
    }

    void japaneseTextComesWholeFromTheFirstFont()
    {
        const QString whole = familyOf("mplus-1c-regular.ttf");
        QCOMPARE(familiesUsed(QString::fromUtf8("地図を「開く」 A1"), whole), QStringList{whole});
    }
};

QTEST_MAIN(tst_Fonts)
#include "tst_Fonts.moc"
