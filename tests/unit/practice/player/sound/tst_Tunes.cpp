#include "player/sound/Tunes.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>
#include <QtTest>

using player::Sound;
namespace Tunes = player::Tunes;

namespace {

constexpr int kHeader = 44;

Sound named(const QString &file)
{
    Sound sound;
    sound.file = file;
    return sound;
}

template<typename Number>
Number numberAt(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

/// The loudest sample of the left channel (0) or of the right one (1).
int peak(const QByteArray &wav, int channel)
{
    int most = 0;
    for (int at = kHeader + 2 * channel; at < wav.size(); at += 4) {
        most = qMax(most, qAbs(int(numberAt<qint16>(wav, at))));
    }
    return most;
}

/// All names that a learner can choose.
QStringList choices(const char *what)
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/choices/%1.json")
                   .arg(QLatin1String(what)));
    QStringList names;
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonArray rows =
            QJsonDocument::fromJson(file.readAll()).object().value(QStringLiteral("choices")).toArray();
        for (const QJsonValue &row : rows) {
            names.append(row.toObject().value(QStringLiteral("value")).toString());
        }
    }
    names.removeAll(QString());
    return names;
}

} // namespace

/// Tunes and noises that are made up from their names.
class tst_Tunes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAFileThatIsWholeAndLoudEnough_data();
    void isAFileThatIsWholeAndLoudEnough();
    void noTwoAreAlike_data();
    void noTwoAreAlike();
    void isTheSameEachTime();
    void aHigherOneIsShorter();
    void stemsFromTheSideThatItIsToComeFrom();
    void musicBeginsAgainWithoutAGap();
    void aNameThatNobodyKnowsIsHeardToo();
};

void tst_Tunes::isAFileThatIsWholeAndLoudEnough_data()
{
    QTest::addColumn<QByteArray>("wav");
    const QStringList music = choices("music");
    QCOMPARE(music.size(), 11);
    for (const QString &name : music) {
        QTest::addRow("music %s", qPrintable(name)) << Tunes::music(named(name));
    }
    const QStringList sounds = choices("sounds");
    QCOMPARE(sounds.size(), 12);
    for (const QString &name : sounds) {
        QTest::addRow("sound %s", qPrintable(name)) << Tunes::noise(named(name));
    }
}

void tst_Tunes::isAFileThatIsWholeAndLoudEnough()
{
    QFETCH(QByteArray, wav);
    QCOMPARE(wav.left(4), QByteArray("RIFF"));
    QCOMPARE(qint64(numberAt<quint32>(wav, 4)), qint64(wav.size()) - 8);
    QCOMPARE(wav.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(numberAt<quint16>(wav, 22), quint16(2));
    QCOMPARE(numberAt<quint32>(wav, 24), quint32(Tunes::kSamplesPerSecond));
    QCOMPARE(qint64(numberAt<quint32>(wav, 40)), qint64(wav.size()) - kHeader);
    QVERIFY2(peak(wav, 0) > 4000, qPrintable(QString::number(peak(wav, 0))));
    // What is cut off at the top crackles.
    QVERIFY2(peak(wav, 0) < 32000, qPrintable(QString::number(peak(wav, 0))));
}

void tst_Tunes::noTwoAreAlike_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("music") << QStringLiteral("music");
    QTest::newRow("sounds") << QStringLiteral("sounds");
}

void tst_Tunes::noTwoAreAlike()
{
    QFETCH(QString, what);
    const QStringList names = choices(qPrintable(what));
    QSet<QByteArray> all;
    for (const QString &name : names) {
        all.insert(what == QLatin1String("music") ? Tunes::music(named(name)) : Tunes::noise(named(name)));
    }
    QVERIFY(names.size() > 10);
    QCOMPARE(all.size(), names.size());
}

void tst_Tunes::isTheSameEachTime()
{
    QCOMPARE(Tunes::music(named(QStringLiteral("forest"))), Tunes::music(named(QStringLiteral("forest"))));
    QCOMPARE(Tunes::noise(named(QStringLiteral("door"))), Tunes::noise(named(QStringLiteral("door"))));
}

void tst_Tunes::aHigherOneIsShorter()
{
    Sound high = named(QStringLiteral("bell"));
    high.pitch = 150;
    const QByteArray usual = Tunes::noise(named(QStringLiteral("bell")));
    QVERIFY(qAbs(Tunes::noise(high).size() * 1.5 / usual.size() - 1) < 0.01);
}

void tst_Tunes::stemsFromTheSideThatItIsToComeFrom()
{
    Sound left = named(QStringLiteral("coins"));
    left.pan = -100;
    QVERIFY(peak(Tunes::noise(left), 0) > 4000);
    QCOMPARE(peak(Tunes::noise(left), 1), 0);
    Sound right = left;
    right.pan = 100;
    QCOMPARE(peak(Tunes::noise(right), 0), 0);
    QCOMPARE(peak(Tunes::noise(right), 1), peak(Tunes::noise(left), 0));
}

void tst_Tunes::musicBeginsAgainWithoutAGap()
{
    const QByteArray wav = Tunes::music(named(QStringLiteral("village")));
    // Nowhere is it silent for a quarter of a second, also not around the end.
    const int frames = int((wav.size() - kHeader) / 4);
    int silent = 0;
    int longest = 0;
    for (int frame = 0; frame < 2 * frames; ++frame) {
        const int value = numberAt<qint16>(wav, kHeader + 4 * (frame % frames));
        silent = qAbs(value) < 8 ? silent + 1 : 0;
        longest = qMax(longest, silent);
    }
    QVERIFY2(longest < Tunes::kSamplesPerSecond / 4, qPrintable(QString::number(longest)));
}

void tst_Tunes::aNameThatNobodyKnowsIsHeardToo()
{
    QVERIFY(peak(Tunes::music(named(QStringLiteral("a tune of mine"))), 0) > 4000);
    QVERIFY(peak(Tunes::noise(named(QStringLiteral("a noise of mine"))), 0) > 4000);
}

QTEST_GUILESS_MAIN(tst_Tunes)
#include "tst_Tunes.moc"
