#include "author/Outcome.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kYes = QStringLiteral("yes");

} // namespace

/// What a scenario file's lesson is to leave, against what is there.
class tst_Outcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asksForNothingWithoutAFile();
    void findsWhatIsThere();
    void namesWhatIsOtherwise_data();
    void namesWhatIsOtherwise();
    void asksForTheWayThatWasTaken();
    void namesAFileThatCannotBeRead_data();
    void namesAFileThatCannotBeRead();

private:
    void write(const QString &file, const QByteArray &text) const;
    [[nodiscard]] QStringList problems(const QString &way = kYes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_Outcome::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("game/data")));
    write(QStringLiteral("game/data/Items.json"),
          R"([null, {"id": 1, "price": 8, "a/b": true, "effects": [{"hp": 30}]}])");
}

void tst_Outcome::write(const QString &file, const QByteArray &text) const
{
    QFile out(m_folder->filePath(file));
    QVERIFY(out.open(QIODevice::WriteOnly));
    QCOMPARE(out.write(text), text.size());
}

QStringList tst_Outcome::problems(const QString &way) const
{
    return Outcome(m_folder->filePath(QStringLiteral("Harbor.js")))
        .problems(m_folder->filePath(QStringLiteral("game")), way);
}

void tst_Outcome::asksForNothingWithoutAFile()
{
    QCOMPARE(problems(), QStringList());
}

void tst_Outcome::findsWhatIsThere()
{
    write(QStringLiteral("Harbor.outcome.json"),
          R"({"always": {"data/Items/1/price": 8, "data/Items/1/a~1b": true, "data/Items/0": null,
              "data/Items/1/effects": [{"hp": 30}]}})");
    QCOMPARE(problems(), QStringList());
}

void tst_Outcome::namesWhatIsOtherwise_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a number") << QByteArray(R"("data/Items/1/price": 9)")
                              << QStringLiteral("data/Items/1/price is to be 9 and is 8");
    QTest::newRow("a member") << QByteArray(R"("data/Items/1/name": "Herb")")
                              << QStringLiteral("data/Items/1/name is to be \"Herb\" and is not there");
    QTest::newRow("an entry") << QByteArray(R"("data/Items/2/price": 8)")
                              << QStringLiteral("data/Items/2/price is to be 8 and is not there");
    QTest::newRow("a list") << QByteArray(R"("data/Items/1/effects": [])")
                            << QStringLiteral("data/Items/1/effects is to be [] and is [{\"hp\":30}]");
    QTest::newRow("a file") << QByteArray(R"("data/Skills/1/price": 8)")
                            << QStringLiteral("data/Skills/1/price is to be 8 and is not there");
}

void tst_Outcome::namesWhatIsOtherwise()
{
    QFETCH(QByteArray, place);
    QFETCH(QString, problem);
    write(QStringLiteral("Harbor.outcome.json"), "{\"always\": {" + place + "}}");
    QCOMPARE(problems(), QStringList(QStringLiteral("Harbor.outcome.json: ") + problem));
}

void tst_Outcome::asksForTheWayThatWasTaken()
{
    write(QStringLiteral("Harbor.outcome.json"),
          R"({"yes": {"data/Items/1/price": 8}, "no": {"data/Items/1/price": 9}})");
    QCOMPARE(problems(kYes), QStringList());
    QCOMPARE(problems(QStringLiteral("no")).size(), 1);
}

void tst_Outcome::namesAFileThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no JSON") << QByteArray("{") << QStringLiteral("Harbor.outcome.json: unterminated object");
    QTest::newRow("no object") << QByteArray("[]")
                               << QStringLiteral("Harbor.outcome.json: it holds no object");
}

void tst_Outcome::namesAFileThatCannotBeRead()
{
    QFETCH(QByteArray, text);
    write(QStringLiteral("Harbor.outcome.json"), text);
    QFETCH(QString, problem);
    QCOMPARE(problems(), QStringList(problem));
}

QTEST_GUILESS_MAIN(tst_Outcome)
#include "tst_Outcome.moc"
