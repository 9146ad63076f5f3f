#include "Frames.h"
#include "PatchBytes.h"

#include <QStringList>
#include <QTest>

/// What the tests put frames and patches together with.
class tst_Frames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payloadsArriveInAnyPieces();
    void nothingComesBehindWhatIsNoFrame();
    void aFrameSaysWhoSentIt();
    void aLongPatchHasPieces();
};

void tst_Frames::payloadsArriveInAnyPieces()
{
    const QByteArray stream = Frames::ofCompanion("next") + Frames::ofCompanion("") +
                              Frames::ofCompanion(QStringLiteral("次へ").toUtf8());
    Frames::PayloadReader reader;
    QStringList payloads;
    for (const char byte : stream) {
        reader.add(QByteArray(1, byte));
        while (const std::optional<QString> payload = reader.take()) {
            payloads.append(*payload);
        }
    }
    QCOMPARE(payloads, QStringList({QStringLiteral("next"), QString(), QStringLiteral("次へ")}));
}

void tst_Frames::nothingComesBehindWhatIsNoFrame()
{
    Frames::PayloadReader reader;
    reader.add(Frames::ofHost("stop") + Frames::ofCompanion("next"));
    QVERIFY(!reader.take().has_value());
}

void tst_Frames::aFrameSaysWhoSentIt()
{
    QCOMPARE(Frames::ofHost("stop"), QByteArray("000000004\x02stop\0", 15));
    QCOMPARE(Frames::ofHost("stop", '!'), QByteArray("000000004!stop\0", 15));
    QCOMPARE(Frames::ofCompanion(QByteArray(26, 'x')),
             QByteArray("10000001a\x02") + QByteArray(26, 'x') + '\0');
}

void tst_Frames::aLongPatchHasPieces()
{
    QCOMPARE(PatchBytes::insertion("abc"), QByteArray("\3\0\0\0\1\2\0abc", 10));
    QCOMPARE(PatchBytes::insertion(QByteArray(65537, 'x')).size(), 4 + (3 + 65536) + (3 + 1));
    QCOMPARE(PatchBytes::copy(65538), QByteArray("\2\0\1\0"
                                                 "\xfa\0\0\0\0\xff\xff"
                                                 "\xfa\0\0\1\0\1\0",
                                                 18));
}

QTEST_GUILESS_MAIN(tst_Frames)
#include "tst_Frames.moc"
