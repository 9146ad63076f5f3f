#include "SomeWays.h"

using namespace SomeWays;

namespace {

ControlSpot map(int row)
{
    return Played::spot("MainWindow", "maps", row);
}

ControlSpot tile(int row)
{
    return Played::spot("MainWindow", "tiles", row);
}

/// A step to look at while the map 1 and the tile 0 are chosen, then one that asks for a button.
void begin(Played *played, const char *condition = "click,", const char *icon = "eye")
{
    played->editor.m_controls.insert(str("MainWindow"), map(1));
    played->editor.m_chosen = {map(1), tile(0)};
    played->play({Played::item(1, "MainWindow", condition, icon), Played::item(2, "MainWindow", "list,1"),
                  QStringLiteral(R"("id":3)")});
}

/// The person chooses another map.
void choose(Played *played, int row)
{
    played->use("MainWindow", "maps", row);
    played->editor.m_chosen = {map(row), tile(0)};
    played->editor.report(str("list"), QString::number(row));
    played->turn();
}

} // namespace

/// A learner who plays with what a step only shows.
class tst_LookingAround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextChoosesAgainWhatWasLeft();
    void anAnswerAndTheEndOfAWaitDoSoToo_data();
    void anAnswerAndTheEndOfAWaitDoSoToo();
    void whatIsChosenStillStays();
    void whatIsOutOfReachStays();
    void whatAStepAsksForStaysChosen();
    void whoLooksElsewhereDoesNotRunAhead();
    void theFirstClickOfTwoIsNoLookElsewhere();
    void whatALookHasChangedIsPutBack();
    void aTextMayBeTypedIntoWhatIsShown();
};

void tst_LookingAround::nextChoosesAgainWhatWasLeft()
{
    Played played;
    begin(&played);
    choose(&played, 2);
    QVERIFY(!played.session.isAstray());
    QVERIFY(!played.session.canPutBack());
    played.session.next();
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, map(1));
    QCOMPARE(played.editor.m_performed.constFirst().kind, ControlUse::Kind::kClick);
    QCOMPARE(played.id(), 2);
}

void tst_LookingAround::anAnswerAndTheEndOfAWaitDoSoToo_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::newRow("an answer") << QByteArray("yesNo");
    QTest::newRow("a wait") << QByteArray("wait,1000");
}

void tst_LookingAround::anAnswerAndTheEndOfAWaitDoSoToo()
{
    QFETCH(const QByteArray, condition);
    Played played;
    begin(&played, condition.constData());
    choose(&played, 2);
    if (condition == "yesNo") {
        played.session.answer(true);
    }
    QTRY_COMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, map(1));
}

void tst_LookingAround::whatIsChosenStillStays()
{
    Played played;
    begin(&played);
    choose(&played, 2);
    played.editor.m_chosen = {map(1), tile(0)};
    Q_EMIT played.editor.used(map(1));
    played.turn();
    played.session.next();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.editor.m_performed.isEmpty());
}

void tst_LookingAround::whatIsOutOfReachStays()
{
    Played played;
    begin(&played);
    choose(&played, 2);
    played.editor.m_hidden.append(map(1));
    played.session.next();
    QVERIFY(played.editor.m_performed.isEmpty());
}

void tst_LookingAround::whatAStepAsksForStaysChosen()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), map(2));
    played.editor.m_chosen = {map(1), tile(0)};
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    choose(&played, 2);
    played.session.next();
    QCOMPARE(played.id(), 2);
    // It is clicked once more, as it may have been left since, and nothing else is.
    for (const ControlUse &use : qAsConst(played.editor.m_performed)) {
        QCOMPARE(use.spot, map(2));
    }
}

void tst_LookingAround::whoLooksElsewhereDoesNotRunAhead()
{
    Played played;
    begin(&played);
    played.use("MainWindow", "tiles", 3);
    played.editor.m_chosen = {map(1), tile(3)};
    played.editor.report(str("list"), str("3"));
    played.turn();
    choose(&played, 1);
    played.editor.m_chosen = {map(1), tile(3)};
    QCOMPARE(played.id(), 1);
    played.session.next();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.constFirst().spot, tile(0));
}

void tst_LookingAround::theFirstClickOfTwoIsNoLookElsewhere()
{
    Played played;
    begin(&played);
    // The step behind points at the maps, too.
    played.use("MainWindow", "maps", 4);
    played.editor.m_chosen = {map(4), tile(0)};
    Q_EMIT played.editor.used(map(4));
    played.turn();
    choose(&played, 1);
    QCOMPARE(played.id(), 3);
}

void tst_LookingAround::whatALookHasChangedIsPutBack()
{
    Played played;
    begin(&played);
    played.use("MainWindow", "maps", 1);
    played.editor.m_data = str("another balloon");
    played.editor.report(str("comboBox"), str("balloon"), str("2"));
    played.turn();
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    QCOMPARE(played.editor.m_data, str("as it was"));
    QCOMPARE(played.id(), 1);
}

void tst_LookingAround::aTextMayBeTypedIntoWhatIsShown()
{
    Played played;
    begin(&played);
    played.use("MainWindow", "maps", 1);
    played.editor.m_data = str("a better name");
    played.editor.report(str("textLength"), str("name"), str("9"));
    played.turn();
    QVERIFY(!played.session.canPutBack());
}

QTEST_GUILESS_MAIN(tst_LookingAround)
#include "tst_LookingAround.moc"
