#include "SceneRun.h"
#include "player/scene/TalkBox.h"
#include "player/scene/TalkText.h"

#include <QTest>

using namespace player;

/// Lines that are longer than the screen is wide.
class tst_TalkText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLongLineIsCutWhereItMayBe_data();
    void aLongLineIsCutWhereItMayBe();
    void coloursAndPausesStayWithTheirLetters();
    void whatALongMessageSaysIsReadToItsEnd_data();
    void whatALongMessageSaysIsReadToItsEnd();
    void aLongLineScrollsInSeveral();
};

namespace {

QStringList texts(const QVector<QVector<TalkText::Token>> &lines)
{
    QStringList texts;
    for (const QVector<TalkText::Token> &line : lines) {
        texts.append(TalkText::shown(line, int(line.size())).text());
    }
    return texts;
}

} // namespace

void tst_TalkText::aLongLineIsCutWhereItMayBe_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const char *line, int width, const QStringList &lines) {
        QTest::newRow(name) << QString::fromUtf8(line) << width << lines;
    };
    // A letter counts as 9 game pixels, and one of East Asian scripts as 16.
    row("nothing", "", 90, {QString()});
    row("fits", "The lamp", 72, {QStringLiteral("The lamp")});
    row("between words", "The lamp went out", 80, {QStringLiteral("The lamp "), QStringLiteral("went out")});
    row("three lines", "one two three", 45,
        {QStringLiteral("one "), QStringLiteral("two "), QStringLiteral("three")});
    row("a word by itself too long", "lighthouse", 36,
        {QStringLiteral("ligh"), QStringLiteral("thou"), QStringLiteral("se")});
    row("nothing fits", "ab", 1, {QStringLiteral("a"), QStringLiteral("b")});
    row("between letters", "ランプが消えた", 64, {QStringLiteral("ランプが"), QStringLiteral("消えた")});
    row("before what a sign closes", "灯熄灭了。你好", 64,
        {QStringLiteral("灯熄灭"), QStringLiteral("了。你好")});
    row("before what opens", "彼は「灯」だ", 64, {QStringLiteral("彼は"), QStringLiteral("「灯」だ")});
}

void tst_TalkText::aLongLineIsCutWhereItMayBe()
{
    QFETCH(QString, line);
    QFETCH(int, width);
    const SlimeGame small;
    const SceneRun run(small);
    QTEST(texts(TalkText::wrapped(TalkText::read(line, run.game), width)), "lines");
}

void tst_TalkText::coloursAndPausesStayWithTheirLetters()
{
    const SlimeGame small;
    const SceneRun run(small);
    const QVector<TalkText::Token> tokens =
        TalkText::read(QStringLiteral("The \\c[2]lamp\\. went\\c[0] out"), run.game);
    const QVector<QVector<TalkText::Token>> lines = TalkText::wrapped(tokens, 81);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).size() + lines.at(1).size(), tokens.size());
    const PanelLine second = TalkText::shown(lines.at(1), int(lines.at(1).size()));
    QCOMPARE(second.runs.size(), 2);
    QCOMPARE(second.runs.at(0).text, QStringLiteral("went"));
    QCOMPARE(second.runs.at(0).colour, 2);
    QCOMPARE(second.runs.at(1).colour, 0);
}

void tst_TalkText::whatALongMessageSaysIsReadToItsEnd_data()
{
    QTest::addColumn<QString>("face");
    QTest::newRow("without a face") << QString();
    QTest::newRow("with a face") << QStringLiteral("mila");
}

void tst_TalkText::whatALongMessageSaysIsReadToItsEnd()
{
    QFETCH(QString, face);
    const SlimeGame small;
    SceneRun run(small);
    Message message;
    message.face = face;
    QStringList words;
    for (int word = 1; word <= 80; ++word) {
        words.append(QStringLiteral("word%1").arg(word));
    }
    message.lines = QStringList{words.join(QLatin1Char(' '))};
    TalkBox box;
    box.say(message);
    Input key;
    key.pressed = {GameKey::kAct};
    QString read;
    int pages = 0;
    while (box.isTalking() && pages < 10) {
        // All letters of the page at once, and then the next page.
        box.tick({}, &run.game);
        box.tick(key, &run.game);
        Frame frame;
        box.show(run.game, &frame);
        const Panel *const panel = frame.panel("message");
        QVERIFY(panel != nullptr);
        QVERIFY(panel->lines.size() <= 4);
        for (const PanelLine &line : panel->lines) {
            read += line.text();
        }
        box.tick(key, &run.game);
        ++pages;
    }
    QCOMPARE(read, words.join(QLatin1Char(' ')));
    QVERIFY(pages > 1);
}

void tst_TalkText::aLongLineScrollsInSeveral()
{
    const SlimeGame small;
    SceneRun run(small);
    ScrollingText text;
    text.lines = QStringList{QStringLiteral("lamp ").repeated(60)};
    text.speed = 8;
    TalkBox box;
    box.scrollText(text);
    box.tick({}, &run.game);
    Frame frame;
    box.show(run.game, &frame);
    QCOMPARE(frame.panel("scroll")->lines.size(), 5);
    // All of them go by before it ends.
    double scrolled = 0;
    for (int tick = 0; tick < 5000 && box.isTalking(); ++tick) {
        scrolled = frame.panel("scroll")->scrolled;
        box.tick({}, &run.game);
        frame = {};
        box.show(run.game, &frame);
        if (frame.panel("scroll") == nullptr) {
            break;
        }
    }
    QVERIFY(!box.isTalking());
    QVERIFY(scrolled > 4 * 24);
}

QTEST_GUILESS_MAIN(tst_TalkText)
#include "tst_TalkText.moc"
