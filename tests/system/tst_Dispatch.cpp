#include "FakeHost.h"
#include "FilledParts.h"
#include "PatchBytes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// What each command does, seen on the wire and in the log.
class tst_Dispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ignoresUnknownWordsSilently();
    void comparesWordsExactly();
    void ignoresContentsAndLog();
    void greetsWithTheLocale_data();
    void greetsWithTheLocale();
    void greetsAgainWithoutNewOverlays();
    void keepsLittleOfAGreeting();
    void dropsAnIndicatorUpdateBeforeTheGreeting();
    void handsAnIndicatorUpdateToTheIndicator();
    void takesACommandWithoutItsFields();
    void ignoresASecondShowWithinTenTicks();
    void ignoresShowBeforeTheGreeting();
    void playsTheDocumentAsItStandsAfterAnUnknownName();
    void saysWhatDidNotLoadAndStays();
    void refusesABadStepName();
    void reportsPresetDataThatIsNotThere();
    void answersWithThePresetDataBesideTheProgram();
    void survivesHostileLocales();
};

void tst_Dispatch::ignoresUnknownWordsSilently()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QString before = host.log();
    host.send({QStringLiteral("nonsense"), QStringLiteral("1")});
    host.send({QString()});
    host.send({QStringLiteral("state"), QStringLiteral("sideways")});
    host.send({QStringLiteral("windowStack"), QStringLiteral("pop")});
    QVERIFY(host.syncBothWays());
    QString after = host.log().mid(before.size());
    // Only the heartbeat and the answer that sync() waits for may stand there.
    const QStringList lines = filledParts(after, QLatin1Char('\n'));
    for (const QString &line : lines) {
        QVERIFY2(line.contains(QStringLiteral("\"alive\"")) ||
                     line.contains(QStringLiteral("setApplicationWindowSize")),
                 qPrintable(line));
    }
    QVERIFY(host.payloads().isEmpty());
}

void tst_Dispatch::comparesWordsExactly()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("TutorialList")});
    host.send({QStringLiteral("tutorialList ")});
    host.send({QStringLiteral("alive")});
    QVERIFY(host.syncBothWays());
    QVERIFY(host.payloads().isEmpty());
}

void tst_Dispatch::ignoresContentsAndLog()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("contents"), QString(100000, QLatin1Char('x'))});
    host.send({QStringLiteral("log"), QStringLiteral("append"), QStringLiteral("text")});
    QVERIFY(host.syncBothWays());
    QVERIFY(host.payloads().isEmpty());
}

void tst_Dispatch::greetsWithTheLocale_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("loaded");
    const QString word = QStringLiteral("fromServer");
    QTest::newRow("Japanese") << QStringList{word, QStringLiteral("ja_JP")} << QStringLiteral("ja_JP")
                              << true;
    QTest::newRow("dash") << QStringList{word, QStringLiteral("-")} << QStringLiteral("en_US") << true;
    QTest::newRow("empty") << QStringList{word, QString()} << QStringLiteral("en_US") << true;
    QTest::newRow("missing") << QStringList{word} << QStringLiteral("en_US") << true;
    QTest::newRow("unknown") << QStringList{word, QStringLiteral("xx")} << QStringLiteral("xx") << false;
}

void tst_Dispatch::greetsWithTheLocale()
{
    QFETCH(QStringList, command);
    QFETCH(QString, locale);
    QFETCH(bool, loaded);
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    host.send(command);
    const QString line = QStringLiteral("\":/translations/%1\" %2")
                             .arg(locale, loaded ? QStringLiteral("true") : QStringLiteral("false"));
    QVERIFY(FakeHost::waitFor([&] {
        return host.log().contains(QRegularExpression(QStringLiteral("TutorialManager::onReceived \\d+ ") +
                                                      QRegularExpression::escape(line)));
    }));
}

void tst_Dispatch::greetsAgainWithoutNewOverlays()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    host.send({QStringLiteral("fromServer"), QStringLiteral("ja_JP")});
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
    QVERIFY(host.sync());
    // The newest translator is asked first.
    QVERIFY2(host.payloads().at(0).contains(QRegularExpression(QStringLiteral("[ぁ-ん]"))),
             qPrintable(host.payloads().at(0)));
    QVERIFY(!host.log().contains(QStringLiteral("TutorialIndicator::~TutorialIndicator")));
}

void tst_Dispatch::keepsLittleOfAGreeting()
{
    constexpr int kGreetings = 500;
    FakeHost host;
    QVERIFY(host.start());
    const QStringList greeting = {QStringLiteral("fromServer"), QStringLiteral("ja_JP")};
    host.send(greeting);
    QVERIFY(host.sync());
    const qint64 before = host.addressSpace();
    for (int i = 0; i < kGreetings; ++i) {
        host.send(greeting);
    }
    QVERIFY(host.sync());
    const qint64 each = (host.addressSpace() - before) / kGreetings;
    QVERIFY2(before > 0 && each < 8192, qPrintable(QString::number(each)));
}

void tst_Dispatch::dropsAnIndicatorUpdateBeforeTheGreeting()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("1"),
               QStringLiteral("2"), QStringLiteral("MainWindow"), QStringLiteral("hint"), QStringLiteral("7"),
               QStringLiteral("0")});
    QVERIFY(host.sync());
    QVERIFY(!host.log().contains(QStringLiteral("TutorialIndicator::")));
}

void tst_Dispatch::handsAnIndicatorUpdateToTheIndicator()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    host.send({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("11"),
               QStringLiteral("22"), QStringLiteral("NewProject"), QStringLiteral("hint"),
               QStringLiteral("5"), QStringLiteral("3")});
    QVERIFY(host.sync());
    QVERIFY2(host.log().contains(QRegularExpression(
                 QStringLiteral("TutorialIndicator::setTargetWindowOffset \\d+ 11 22 \"NewProject\" true"))),
             qPrintable(host.log()));
    QVERIFY2(
        host.log().contains(QRegularExpression(QStringLiteral("TutorialIndicator::init \\d+ true false"))),
        qPrintable(host.log()));
}

void tst_Dispatch::takesACommandWithoutItsFields()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer")});
    const QStringList words = {QStringLiteral("indicator"),       QStringLiteral("state"),
                               QStringLiteral("windowStack"),     QStringLiteral("windowPosition"),
                               QStringLiteral("controlPosition"), QStringLiteral("applicationWindowSize"),
                               QStringLiteral("tutorial"),        QStringLiteral("requestPresetData"),
                               QStringLiteral("showTooltip"),     QStringLiteral("start")};
    for (const QString &word : words) {
        host.send({word});
    }
    host.send({QStringLiteral("indicator"), QStringLiteral("update")});
    host.send({QStringLiteral("indicator"), QStringLiteral("updateXy"), QStringLiteral("3")});
    QVERIFY(host.sync());
    QVERIFY2(host.log().contains(QStringLiteral("TutorialManager::setApplicationWindowSize 596 0 0")),
             qPrintable(host.log()));
}

void tst_Dispatch::ignoresASecondShowWithinTenTicks()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer"), QStringLiteral("en_US")});
    // In one piece, so that no ticks lie between.
    host.write(Frames::ofHost("start\x02state\x01hide\x02state\x01show\x02state\x01show"));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::timerEvent 460 m_logHideIgnoreTimeout now 0")));
    QCOMPARE(host.log().count(QStringLiteral("m_logHideIgnoreTimeout set to 10")), 1);
    QCOMPARE(host.log().count(QStringLiteral("TutorialManager::timerEvent 427")), 1);
    QCOMPARE(host.log().count(QStringLiteral("m_logHideIgnoreTimeout now")), 10);
    host.send({QStringLiteral("state"), QStringLiteral("show")});
    QVERIFY(host.sync());
    QCOMPARE(host.log().count(QStringLiteral("m_logHideIgnoreTimeout set to 10")), 2);
}

void tst_Dispatch::ignoresShowBeforeTheGreeting()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("state"), QStringLiteral("show")});
    QVERIFY(host.sync());
    QVERIFY(!host.log().contains(QStringLiteral("m_logHideIgnoreTimeout")));
}

void tst_Dispatch::playsTheDocumentAsItStandsAfterAnUnknownName()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialStep1")});
    host.send({QStringLiteral("tutorial"), QStringLiteral("NoSuchLesson")});
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(3));
    QCOMPARE(host.payloads().at(1), host.payloads().at(0));
    QVERIFY2(
        host.log().contains(QRegularExpression(QStringLiteral("TutorialEditor::Manager::setContents 307"))),
        qPrintable(host.log()));
}

void tst_Dispatch::saysWhatDidNotLoadAndStays()
{
    FakeHost host;
    QVERIFY(host.start());
    // A file that is there and is no scenario.
    host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialList")});
    QVERIFY(host.waitForLog(QStringLiteral(
        "TutorialManager::loadAndFeedback 1477 Failed to loadTutorial \"json is not array\"")));
    QVERIFY(host.syncBothWays());
    QVERIFY(host.payloads().isEmpty());
    host.send({QStringLiteral("tutorial"), QStringLiteral("TutorialStep1")});
    QVERIFY(host.waitForPayloads(1));
}

void tst_Dispatch::refusesABadStepName()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("requestPresetData"), QStringLiteral("stepX")});
    QVERIFY(host.waitForLog(QStringLiteral("Failed to get stepNumber \"stepX\"")));
    QVERIFY(host.syncBothWays());
    QVERIFY(host.payloads().isEmpty());
}

void tst_Dispatch::reportsPresetDataThatIsNotThere()
{
    FakeHost host;
    QVERIFY(host.start());
    host.send({QStringLiteral("requestPresetData"), QStringLiteral("step4711")});
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReceived 1001 presetData not found")));
    QVERIFY(host.syncBothWays());
    QVERIFY(host.payloads().isEmpty());
}

void tst_Dispatch::answersWithThePresetDataBesideTheProgram()
{
    FakeHost host;
    const QTemporaryDir folder;
    const QString program = folder.filePath(QStringLiteral("Tutorial"));
    QVERIFY(QFile::copy(host.process().program(), program));
    host.process().setProgram(program);
    const auto addPatch = [&folder](const QString &step, const QByteArray &patch) {
        const QString data = folder.filePath(QStringLiteral("resource/patch/%1/data").arg(step));
        QFile file(data + QStringLiteral("/Actors.json-patch"));
        return QDir().mkpath(data) && file.open(QIODevice::WriteOnly) && file.write(patch) == patch.size();
    };
    const QByteArray text = QStringLiteral("[ {\"name\":\"\u52c7\u8005\"} ]\n").toUtf8();
    QVERIFY(addPatch(QStringLiteral("step1"), PatchBytes::insertion(text)));
    QVERIFY(addPatch(QStringLiteral("step2"), PatchBytes::copy(text.size())));
    QVERIFY(addPatch(QStringLiteral("step10"), PatchBytes::header(quint32(text.size())) + '\x02'));

    QVERIFY(host.start());
    host.send({QStringLiteral("requestPresetData"), QStringLiteral("step10")});
    host.send({QStringLiteral("requestPresetData"), QStringLiteral("step2")});
    QVERIFY(host.waitForPayloads(1));
    QVERIFY(host.syncBothWays());
    const QString reply = QStringLiteral("feedbackPresetData\x01{\"data/Actors.json\":"
                                         "\"[{\\\"name\\\":\\\"\u52c7\u8005\\\"}]\"}");
    QCOMPARE(host.payloads(), QStringList{reply});
    QVERIFY(host.receivedBytes().contains(Frames::ofCompanion(reply.toUtf8())));
    const QString log = host.log();
    QVERIFY2(log.contains(QStringLiteral("(\"requestPresetData\", \"step2\")")), qPrintable(log));
    QVERIFY2(log.contains(QStringLiteral("StringPatch::ApplyStringPatch 284 Invalid tag 2")),
             qPrintable(log));
    QVERIFY2(log.contains(QStringLiteral("TutorialManager::onReceived 1033 Failed to ApplyStringPatch")),
             qPrintable(log));
}

void tst_Dispatch::survivesHostileLocales()
{
    FakeHost host;
    QVERIFY(host.start());
    const QString word = QStringLiteral("fromServer");
    host.send({word, QStringLiteral("/proc/self/mem")});
    host.send({word, QStringLiteral("../../../../etc/passwd")});
    host.send({word, QString(300000, QLatin1Char('_'))});
    host.send({word, QStringLiteral("ja_JP")});
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
    const QRegularExpression japanese(QStringLiteral("[\u3041-\u3093]"));
    QVERIFY2(host.payloads().at(0).contains(japanese), qPrintable(host.payloads().at(0)));
}

QTEST_GUILESS_MAIN(tst_Dispatch)
#include "tst_Dispatch.moc"
