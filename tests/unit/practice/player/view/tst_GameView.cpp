#include "PaintingFixture.h"
#include "player/view/GameView.h"
#include "player/view/PanelLayout.h"

#include <QSignalSpy>

using namespace player;

Q_DECLARE_METATYPE(player::Panel)

namespace {

using GameKeys = QVector<GameKey>;

Panel panelOf(const char *role, const QStringList &lines, const QStringList &rows = {})
{
    Panel panel;
    panel.role = str(role);
    panel.rect = QRect(100, 200, 300, 120);
    for (const QString &line : lines) {
        panel.lines.append(PanelLine(line));
    }
    for (const QString &row : rows) {
        panel.rows.append({row, {}, true});
    }
    panel.current = rows.isEmpty() ? -1 : 0;
    return panel;
}

} // namespace

/// The screen of a game: what the mouse does on it, when the escape key leaves, and what is read out.
class tst_GameView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aClickOnTheMapIsItsCell();
    void aClickOnARowChoosesIt();
    void aClickAnywhereGoesOnWithAMessage();
    void theRightButtonCancels();
    void keysComeToTheGame();
    void theEscapeKeyLeavesWhereNothingIsOpen_data();
    void theEscapeKeyLeavesWhereNothingIsOpen();
    void theEscapeKeyLeavesAGameThatIsNowhere();
    void theEscapeKeyThatClosedSomethingDoesNotLeave();
    void whatIsSaidIsReadOut_data();
    void whatIsSaidIsReadOut();
    void lettersComeFromAnInputMethodForANameOnly();
    void aPausedGameSaysSo();

private:
    void show(const QVector<Panel> &panels)
    {
        Frame frame;
        frame.map = 1;
        frame.origin = QPointF(2, 1);
        frame.panels = panels;
        m_view->setFrame(frame);
    }
    /// At a place of the game's screen.
    void click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_view.get(), button, {}, place * 2);
    }

    std::unique_ptr<GameData> m_data;
    std::unique_ptr<Artwork> m_artwork;
    std::unique_ptr<GameView> m_view;
};

void tst_GameView::init()
{
    m_view.reset();
    m_data = std::make_unique<GameData>(plainData());
    m_artwork = std::make_unique<Artwork>(plainArtwork());
    m_view = std::make_unique<GameView>(m_data.get(), m_artwork.get());
    m_view->resize(1280, 720);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void tst_GameView::aClickOnTheMapIsItsCell()
{
    show({});
    click({33, 65});
    const Input input = m_view->keys().take();
    QCOMPARE(*input.cell, QPoint(3, 3));
    QCOMPARE(input.pressed, GameKeys());
}

void tst_GameView::aClickOnARowChoosesIt()
{
    const Panel choices = panelOf("choices", {}, {str("Yes"), str("No")});
    show({panelOf("message", {str("Well?")}), choices});
    click(PanelLayout(choices).row(1).center());
    Input input = m_view->keys().take();
    QCOMPARE(*input.row, 1);
    QVERIFY(!input.cell);
    // Beside the rows nothing is chosen, and nobody walks.
    click({10, 10});
    input = m_view->keys().take();
    QVERIFY(!input.row);
    QVERIFY(!input.cell);
    QCOMPARE(input.pressed, GameKeys());
}

void tst_GameView::aClickAnywhereGoesOnWithAMessage()
{
    Panel message = panelOf("message", {str("Hello")});
    message.isWaiting = true;
    show({message});
    click({10, 10});
    const Input input = m_view->keys().take();
    QCOMPARE(input.pressed, GameKeys{GameKey::kAct});
    QVERIFY(!input.cell);
}

void tst_GameView::theRightButtonCancels()
{
    show({});
    click({10, 10}, Qt::RightButton);
    QCOMPARE(m_view->keys().take().pressed, GameKeys{GameKey::kCancel});
}

void tst_GameView::keysComeToTheGame()
{
    show({});
    QTest::keyPress(m_view.get(), Qt::Key_Left);
    QCOMPARE(m_view->keys().take().pressed, GameKeys{GameKey::kLeft});
    QCOMPARE(m_view->keys().take().held, GameKeys{GameKey::kLeft});
    QTest::keyRelease(m_view.get(), Qt::Key_Left);
    QCOMPARE(m_view->keys().take().held, GameKeys());
}

void tst_GameView::theEscapeKeyLeavesWhereNothingIsOpen_data()
{
    QTest::addColumn<QVector<Panel>>("panels");
    QTest::addColumn<bool>("leaves");
    using Panels = QVector<Panel>;
    QTest::newRow("map") << Panels() << true;
    QTest::newRow("map with its name") << Panels{panelOf("mapName", {str("Meadow")})} << true;
    QTest::newRow("message") << Panels{panelOf("message", {str("Hello")})} << false;
    QTest::newRow("choices") << Panels{panelOf("choices", {}, {str("Yes")})} << false;
    QTest::newRow("menu") << Panels{panelOf("menu", {}, {str("Items")})} << false;
    QTest::newRow("title") << Panels{panelOf("title", {}, {str("New game")})} << true;
    QTest::newRow("list above the title")
        << Panels{panelOf("title", {}, {str("New game")}), panelOf("save", {}, {str("1")})} << false;
}

void tst_GameView::theEscapeKeyLeavesWhereNothingIsOpen()
{
    QFETCH(QVector<Panel>, panels);
    QFETCH(bool, leaves);
    QSignalSpy left(m_view.get(), &GameView::leaveAsked);
    show(panels);
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QCOMPARE(left.size(), leaves ? 1 : 0);
    QCOMPARE(m_view->keys().take().pressed, leaves ? GameKeys() : GameKeys{GameKey::kCancel});
}

void tst_GameView::theEscapeKeyLeavesAGameThatIsNowhere()
{
    QSignalSpy left(m_view.get(), &GameView::leaveAsked);
    m_view->setFrame(Frame());
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QCOMPARE(left.size(), 1);
    // A battle goes on.
    Frame battle;
    battle.battlers.append(FrameBattler());
    m_view->setFrame(battle);
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QCOMPARE(left.size(), 1);
}

void tst_GameView::theEscapeKeyThatClosedSomethingDoesNotLeave()
{
    QSignalSpy left(m_view.get(), &GameView::leaveAsked);
    show({panelOf("menu", {}, {str("Items")})});
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    show({});
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QCOMPARE(left.size(), 0);
    QCOMPARE(m_view->keys().take().pressed, GameKeys{GameKey::kCancel});
    const auto leaves = [&] {
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        return !left.isEmpty();
    };
    QTRY_VERIFY_WITH_TIMEOUT(leaves(), 5000);
}

void tst_GameView::whatIsSaidIsReadOut_data()
{
    QTest::addColumn<QVector<Panel>>("panels");
    QTest::addColumn<QString>("words");
    using Panels = QVector<Panel>;
    QTest::newRow("nothing") << Panels() << QString();
    Panel message = panelOf("message", {str("Good morning."), str("Nice day.")});
    message.title = str("Mila");
    QTest::newRow("message") << Panels{message} << str("Mila\nGood morning.\nNice day.");
    Panel choices = panelOf("choices", {}, {str("Yes"), str("No")});
    choices.current = 1;
    QTest::newRow("choices of a message")
        << Panels{panelOf("message", {str("Well?")}), choices} << str("Well?\nNo");
    Panel shop = panelOf("shop", {}, {str("Herb")});
    shop.rows[0].rightText = str("20");
    QTest::newRow("row of a list") << Panels{shop} << str("Herb 20");
}

void tst_GameView::whatIsSaidIsReadOut()
{
    QFETCH(QVector<Panel>, panels);
    show(panels);
    QTEST(m_view->words(), "words");
    QCOMPARE(m_view->accessibleDescription(), m_view->words());
    QVERIFY(!m_view->accessibleName().isEmpty());
}

void tst_GameView::lettersComeFromAnInputMethodForANameOnly()
{
    show({});
    QVERIFY(!m_view->testAttribute(Qt::WA_InputMethodEnabled));
    show({panelOf("name", {str("Mi")})});
    QVERIFY(m_view->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent event;
    event.setCommitString(str("\u6751"));
    QCoreApplication::sendEvent(m_view.get(), &event);
    QTest::keyClick(m_view.get(), Qt::Key_W);
    QCOMPARE(m_view->keys().take().typed, str("\u6751w"));
    QVERIFY(m_view->inputMethodQuery(Qt::ImCursorRectangle).toRect().contains(QPoint(300, 500)));
}

void tst_GameView::aPausedGameSaysSo()
{
    show({});
    const QImage plays = m_view->grab().toImage();
    m_view->setPaused(true);
    QVERIFY(m_view->grab().toImage() != plays);
    m_view->setPaused(false);
    QCOMPARE(m_view->grab().toImage(), plays);
}

QTEST_MAIN(tst_GameView)
#include "tst_GameView.moc"
