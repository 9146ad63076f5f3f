#include "player/view/Keys.h"

#include <QKeyEvent>
#include <QtTest>

using namespace player;

Q_DECLARE_METATYPE(player::GameKey)

namespace {

QKeyEvent down(int key, const QString &text = {}, bool repeats = false)
{
    return QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text, repeats);
}

QKeyEvent up(int key, bool repeats = false)
{
    return QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, QString(), repeats);
}

using GameKeys = QVector<GameKey>;

} // namespace

/// Keys of the keyboard as those of a game.
class tst_Keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysHaveTheirMeaning_data();
    void keysHaveTheirMeaning();
    void aPressCountsOnce();
    void walkingKeysRepeatAndOthersDoNot();
    void keysOfTheEditorAreLeftAlone();
    void lettersAreTypedIntoAName();
    void allIsLetGo();
};

void tst_Keys::keysHaveTheirMeaning_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<GameKeys>("meaning");
    const auto row = [](const char *name, int key, const GameKeys &meaning) {
        QTest::newRow(name) << key << meaning;
    };
    row("up", Qt::Key_Up, {GameKey::kUp});
    row("W", Qt::Key_W, {GameKey::kUp});
    row("left", Qt::Key_Left, {GameKey::kLeft});
    row("A", Qt::Key_A, {GameKey::kLeft});
    row("down", Qt::Key_Down, {GameKey::kDown});
    row("S", Qt::Key_S, {GameKey::kDown});
    row("right", Qt::Key_Right, {GameKey::kRight});
    row("D", Qt::Key_D, {GameKey::kRight});
    row("return", Qt::Key_Return, {GameKey::kAct});
    row("enter", Qt::Key_Enter, {GameKey::kAct});
    row("space", Qt::Key_Space, {GameKey::kAct});
    row("Z", Qt::Key_Z, {GameKey::kAct});
    row("escape", Qt::Key_Escape, {GameKey::kCancel});
    row("X", Qt::Key_X, {GameKey::kCancel, GameKey::kMenu});
}

void tst_Keys::keysHaveTheirMeaning()
{
    QFETCH(int, key);
    QFETCH(GameKeys, meaning);
    Keys keys;
    QVERIFY(keys.press(down(key)));
    const Input input = keys.take();
    QCOMPARE(input.pressed, meaning);
    QCOMPARE(input.held, meaning);
    QVERIFY(keys.release(up(key)));
    QCOMPARE(keys.take().held, GameKeys());
}

void tst_Keys::aPressCountsOnce()
{
    Keys keys;
    keys.press(down(Qt::Key_Up));
    QCOMPARE(keys.take().pressed, GameKeys{GameKey::kUp});
    const Input next = keys.take();
    QCOMPARE(next.pressed, GameKeys());
    QCOMPARE(next.held, GameKeys{GameKey::kUp});
    // One that comes and goes between two ticks is not lost.
    keys.release(up(Qt::Key_Up));
    keys.press(down(Qt::Key_Z));
    keys.release(up(Qt::Key_Z));
    QCOMPARE(keys.take().pressed, GameKeys{GameKey::kAct});
}

void tst_Keys::walkingKeysRepeatAndOthersDoNot()
{
    Keys keys;
    keys.press(down(Qt::Key_Down));
    keys.press(down(Qt::Key_Z));
    QCOMPARE(keys.take().pressed, (GameKeys{GameKey::kDown, GameKey::kAct}));
    keys.release(up(Qt::Key_Down, true));
    keys.press(down(Qt::Key_Down, {}, true));
    keys.release(up(Qt::Key_Z, true));
    keys.press(down(Qt::Key_Z, {}, true));
    const Input input = keys.take();
    QCOMPARE(input.pressed, GameKeys{GameKey::kDown});
    QCOMPARE(input.held.size(), 2);
}

void tst_Keys::keysOfTheEditorAreLeftAlone()
{
    Keys keys;
    QVERIFY(!keys.press(down(Qt::Key_F1)));
    QVERIFY(!keys.press(down(Qt::Key_Tab)));
    QVERIFY(!keys.press(down(Qt::Key_Q, QStringLiteral("q"))));
    QVERIFY(!keys.release(up(Qt::Key_F1)));
    QCOMPARE(keys.take().pressed, GameKeys());
}

void tst_Keys::lettersAreTypedIntoAName()
{
    Keys keys;
    keys.setTyping(true);
    keys.press(down(Qt::Key_W, QStringLiteral("w")));
    keys.press(down(Qt::Key_X, QStringLiteral("X")));
    keys.press(down(Qt::Key_Space, QStringLiteral(" ")));
    keys.press(down(Qt::Key_Backspace, QStringLiteral("\b")));
    keys.type(QString::fromUtf8("\u6751"));
    const Input input = keys.take();
    QCOMPARE(input.typed, QString::fromUtf8("wX \u6751"));
    QCOMPARE(input.pressed, GameKeys{GameKey::kCancel});
}

void tst_Keys::allIsLetGo()
{
    Keys keys;
    keys.press(down(Qt::Key_Up));
    keys.click({3, 4});
    keys.choose(2);
    keys.letGo();
    const Input input = keys.take();
    QCOMPARE(input.held, GameKeys());
    QCOMPARE(input.pressed, GameKeys());
    QVERIFY(!input.cell);
    QVERIFY(!input.row);
}

QTEST_GUILESS_MAIN(tst_Keys)
#include "tst_Keys.moc"
