#include "window/Mnemonics.h"

#include <QTest>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

LocalText label(const char *english, const char *japanese)
{
    return {{str("en_US"), str(english)}, {str("ja_JP"), str(japanese)}, {str("zh_CN"), str(japanese)}};
}

} // namespace

class tst_Mnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachLabelHasALetterOfItsOwn();
    void otherLanguagesHaveTheLetterBehind();
    void aLabelWithoutAFreeLetterHasNone();
    void lettersAreFound_data();
    void lettersAreFound();
    void plainLabelsAreForSentences_data();
    void plainLabelsAreForSentences();
};

void tst_Mnemonics::eachLabelHasALetterOfItsOwn()
{
    const QStringList labels = Mnemonics::give({label("Map properties…", "-"), label("Make a map…", "-"),
                                                label("Main", "-"), label("Cut & go", "-")},
                                               str("en_US"));
    QCOMPARE(labels,
             (QStringList{str("&Map properties…"), str("Make &a map…"), str("Ma&in"), str("&Cut && go")}));
}

void tst_Mnemonics::otherLanguagesHaveTheLetterBehind()
{
    QCOMPARE(Mnemonics::give({label("Map properties…", "マップの設定…"), label("Delete map", "マップを削除")},
                             str("ja_JP")),
             (QStringList{str("マップの設定(&M)…"), str("マップを削除(&D)")}));
}

void tst_Mnemonics::aLabelWithoutAFreeLetterHasNone()
{
    QCOMPARE(Mnemonics::give({label("A", "甲"), label("a", "乙"), label("1", "丙")}, str("ja_JP")),
             (QStringList{str("甲(&A)"), str("乙"), str("丙")}));
}

void tst_Mnemonics::lettersAreFound_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("letter");
    QTest::newRow("first") << str("&New") << str("N");
    QTest::newRow("behind") << str("保存(&S)") << str("S");
    QTest::newRow("none") << str("New") << QString();
    QTest::newRow("doubled") << str("Cut && go") << QString();
    QTest::newRow("doubled, then one") << str("Cut && &go") << str("g");
    QTest::newRow("at the end") << str("New&") << QString();
}

void tst_Mnemonics::lettersAreFound()
{
    QFETCH(QString, label);
    QFETCH(QString, letter);
    QCOMPARE(Mnemonics::letterOf(label), letter.isEmpty() ? QChar() : letter.at(0));
}

void tst_Mnemonics::plainLabelsAreForSentences_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("plain");
    QTest::newRow("English") << str("&New project…") << str("New project");
    QTest::newRow("Japanese") << str("プロジェクトを開く(&O)…") << str("プロジェクトを開く");
    QTest::newRow("in the middle") << str("图层 &2") << str("图层 2");
    QTest::newRow("doubled") << str("Cut && &go") << str("Cut & go");
}

void tst_Mnemonics::plainLabelsAreForSentences()
{
    QFETCH(QString, label);
    QTEST(Mnemonics::plain(label), "plain");
}

QTEST_GUILESS_MAIN(tst_Mnemonics)
#include "tst_Mnemonics.moc"
