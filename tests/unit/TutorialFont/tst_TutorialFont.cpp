#include "LogCapture.h"
#include "TutorialFont/TutorialFont.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QtTest>

namespace {

const auto kFamilyInFile = QStringLiteral("Tutorial Test Family");

QDir fontFolder()
{
    return QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/fonts"));
}

QString fontPath(const QString &name)
{
    return fontFolder().filePath(name + QStringLiteral(".ttf"));
}

bool supply(const QString &name)
{
    QFile::remove(fontPath(name));
    return fontFolder().mkpath(QStringLiteral(".")) &&
           QFile::copy(QStringLiteral(TUTORIAL_SOURCE_DIR "/tests/unit/TutorialFont/TinyFont.ttf"),
                       fontPath(name));
}

bool supplyRubbish(const QString &name)
{
    fontFolder().mkpath(QStringLiteral("."));
    QFile file(fontPath(name));
    return file.open(QIODevice::WriteOnly) && file.write("no font at all") > 0;
}

const auto kSource = QStringLiteral("..\\..\\tutorial\\cpp\\TutorialFont\\TutorialFont.cpp ");

} // namespace

class tst_TutorialFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsFamiliesByLocale_data();
    void listsFamiliesByLocale();
    void nameStandsForAFamilyWithoutFile();
    void familyIsTheOneNamedInTheFile();
    void chineseFallsBackToSystemFamilies();
    void localeTakesEffectWithTheNextFont();
    void fileIsReadOnce();
    void refusedFileIsTriedAgain();
    void familiesOfSeveralFilesAreJoined();
    void unchangedSubstitutesAreLeftAlone();
    void changedSubstitutesAreAdded();
    void lostFamiliesAreLogged();
    void noNamesGiveNoFamily();
    void onlyTheFamilyIsSet();
};

void tst_TutorialFont::init()
{
    fontFolder().removeRecursively();
    const QStringList families = QFont::substitutions();
    for (const QString &family : families) {
        QFont::removeSubstitutions(family);
    }
}

void tst_TutorialFont::cleanup()
{
    QFontDatabase::removeAllApplicationFonts();
    fontFolder().removeRecursively();
}

void tst_TutorialFont::listsFamiliesByLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("families");
    const QString mini = QStringLiteral("mplusmini-1c-regular");
    const QString sans = QStringLiteral("sans-serif");
    const QStringList other{QStringLiteral("mplus-1c-regular")};
    QTest::newRow("zh_CN") << QStringLiteral("zh_CN")
                           << QStringList{mini, QStringLiteral("Microsoft Yahei"),
                                          QStringLiteral("PingFang SC"), sans};
    QTest::newRow("zh_TW") << QStringLiteral("zh_TW")
                           << QStringList{mini, QStringLiteral("Microsoft JhengHei"),
                                          QStringLiteral("PingFang TC"), sans};
    QTest::newRow("ko_KR") << QStringLiteral("ko_KR")
                           << QStringList{mini, QStringLiteral("Malgun Gothic"),
                                          QStringLiteral("Apple SD Gothic Neo"), sans};
    QTest::newRow("en_US") << QStringLiteral("en_US") << other;
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP") << other;
    QTest::newRow("none") << QString() << other;
    QTest::newRow("zh_cn in small letters") << QStringLiteral("zh_cn") << other;
    QTest::newRow("zh") << QStringLiteral("zh") << other;
}

void tst_TutorialFont::listsFamiliesByLocale()
{
    QFETCH(QString, locale);
    TutorialFont font;
    font.setLocale(locale);
    QCOMPARE(font.locale(), locale);
    QTEST(font.getFontFamilyList(), "families");
}

void tst_TutorialFont::nameStandsForAFamilyWithoutFile()
{
    TutorialFont font;
    font.setLocale(QStringLiteral("en_US"));
    const LogCapture log;
    QCOMPARE(font.getFont().family(), QStringLiteral("mplus-1c-regular"));
    QVERIFY(QFont::substitutes(QStringLiteral("mplus-1c-regular")).isEmpty());
    QVERIFY(log.lines().isEmpty());
}

void tst_TutorialFont::familyIsTheOneNamedInTheFile()
{
    QVERIFY(supply(QStringLiteral("mplus-1c-regular")));
    TutorialFont font;
    QCOMPARE(font.getFont().family(), kFamilyInFile);
    QVERIFY(QFont::substitutes(kFamilyInFile).isEmpty());
}

void tst_TutorialFont::chineseFallsBackToSystemFamilies()
{
    QVERIFY(supply(QStringLiteral("mplusmini-1c-regular")));
    TutorialFont font;
    font.setLocale(QStringLiteral("zh_CN"));
    QCOMPARE(font.getFont().family(), kFamilyInFile);
    // Qt keeps the names of substitutes in lower case.
    QCOMPARE(QFont::substitutes(kFamilyInFile),
             QStringList({QStringLiteral("microsoft yahei"), QStringLiteral("pingfang sc"),
                          QStringLiteral("sans-serif")}));
}

void tst_TutorialFont::localeTakesEffectWithTheNextFont()
{
    TutorialFont font;
    font.setLocale(QStringLiteral("ko_KR"));
    QCOMPARE(font.getFont().family(), QStringLiteral("mplusmini-1c-regular"));
    font.setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(font.getFont().family(), QStringLiteral("mplus-1c-regular"));
}

void tst_TutorialFont::fileIsReadOnce()
{
    QVERIFY(supply(QStringLiteral("mplus-1c-regular")));
    TutorialFont font;
    QCOMPARE(font.getFont().family(), kFamilyInFile);
    QVERIFY(QFile::remove(fontPath(QStringLiteral("mplus-1c-regular"))));
    QCOMPARE(font.getFont().family(), kFamilyInFile);
}

void tst_TutorialFont::refusedFileIsTriedAgain()
{
    QVERIFY(supplyRubbish(QStringLiteral("mplus-1c-regular")));
    TutorialFont font;
    QCOMPARE(font.getFont().family(), QStringLiteral("mplus-1c-regular"));
    QVERIFY(supply(QStringLiteral("mplus-1c-regular")));
    QCOMPARE(font.getFont().family(), kFamilyInFile);
}

void tst_TutorialFont::familiesOfSeveralFilesAreJoined()
{
    QVERIFY(supply(QStringLiteral("second")));
    TutorialFont font;
    QCOMPARE(font.getFontFamily({QStringLiteral("first"), QStringLiteral("second")}),
             QStringLiteral("first"));
    QCOMPARE(QFont::substitutes(QStringLiteral("first")), QStringList(kFamilyInFile.toLower()));
}

void tst_TutorialFont::unchangedSubstitutesAreLeftAlone()
{
    TutorialFont font;
    const QStringList names{QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")};
    QCOMPARE(font.getFontFamily(names), QStringLiteral("first"));
    const QStringList before = QFont::substitutes(QStringLiteral("first"));
    QCOMPARE(before, names.mid(1));
    QCOMPARE(font.getFontFamily(names), QStringLiteral("first"));
    QCOMPARE(QFont::substitutes(QStringLiteral("first")), before);
}

void tst_TutorialFont::changedSubstitutesAreAdded()
{
    TutorialFont font;
    QFont::insertSubstitution(QStringLiteral("first"), QStringLiteral("known"));
    QCOMPARE(font.getFontFamily({QStringLiteral("first"), QStringLiteral("second")}),
             QStringLiteral("first"));
    QCOMPARE(QFont::substitutes(QStringLiteral("first")),
             QStringList({QStringLiteral("known"), QStringLiteral("second")}));
    QCOMPARE(font.getFontFamily({QStringLiteral("first")}), QStringLiteral("first"));
    QCOMPARE(QFont::substitutes(QStringLiteral("first")),
             QStringList({QStringLiteral("known"), QStringLiteral("second")}));
}

void tst_TutorialFont::lostFamiliesAreLogged()
{
    QVERIFY(supply(QStringLiteral("mplus-1c-regular")));
    TutorialFont font;
    QCOMPARE(font.getFont().family(), kFamilyInFile);
    QFontDatabase::removeAllApplicationFonts();
    const LogCapture log;
    QCOMPARE(font.getFontFamily({QStringLiteral("mplus-1c-regular")}), QString());
    QCOMPARE(
        log.warnings(),
        QStringList({kSource + QStringLiteral(
                                   "TutorialFont::getFontFamily 48 families not found \"mplus-1c-regular\""),
                     kSource + QStringLiteral("TutorialFont::getFontFamily 53 familyList.size() == 0 for "
                                              "(\"mplus-1c-regular\")")}));
}

void tst_TutorialFont::noNamesGiveNoFamily()
{
    TutorialFont font;
    const LogCapture log;
    const QString family = font.getFontFamily({});
    QVERIFY(family.isEmpty());
    QCOMPARE(log.warnings(),
             QStringList(kSource +
                         QStringLiteral("TutorialFont::getFontFamily 53 familyList.size() == 0 for ()")));
}

void tst_TutorialFont::onlyTheFamilyIsSet()
{
    TutorialFont font;
    QFont expected;
    expected.setFamily(QStringLiteral("mplus-1c-regular"));
    QCOMPARE(font.getFont(), expected);
}

QTEST_MAIN(tst_TutorialFont)
#include "tst_TutorialFont.moc"
