#include "SomeWays.h"

using namespace SomeWays;

/// What is done again and again and leads nowhere: a step, a way back, and putting back itself.
class tst_InVain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whoIsLostAgainGoesBackFurther();
    void whoIsLostAgainAndAgainGoesBackFurtherEachTime();
    void whatIsUsedInVainIsPutBack();
    void whatDoesAsItIsToldIsNotInVain();
    void aWayThatIsUsedInVainLeadsNowhere();
    void waysThatLeadRoundInACircleLeadNowhere();
};

void tst_InVain::whoIsLostAgainGoesBackFurther()
{
    // There is no project to open, whoever opens the dialog.
    const ControlSpot open = Played::spot("FileDialog", "open");
    Played played;
    played.editor.m_controls.insert(str("FileDialog"), open);
    played.editor.m_hidden.append(open);
    played.play({Played::item(1, "MainWindow", "yesNo"),
                 Played::item(2, "MainWindow", "windowState,FileDialog,open"),
                 Played::item(3, "FileDialog", "windowState,FileDialog,close"), QStringLiteral(R"("id":4)")});
    played.session.answer(false);
    played.turn();
    for (const int back : {2, 1}) {
        played.use("MainWindow", "fileOpen");
        played.editor.open(str("FileDialog"));
        QCOMPARE(played.id(), 3);
        QTRY_VERIFY(played.session.isAstray());
        played.session.putBack();
        played.turn();
        QCOMPARE(played.id(), back);
        QVERIFY(!played.session.isAstray());
        QCOMPARE(played.editor.m_stack, QStringList{str("MainWindow")});
    }
}

void tst_InVain::whoIsLostAgainAndAgainGoesBackFurtherEachTime()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "enemy"));
    played.editor.m_entries = 1;
    QStringList items;
    for (int id = 1; id < 8; ++id) {
        items.append(Played::item(id, "MainWindow", "click,", "eye"));
    }
    items.append(Played::item(8, "MainWindow", "comboBox,enemy,1"));
    played.play(items);
    for (const int back : {7, 6, 4, 1}) {
        while (played.id() < 8) {
            played.session.next();
            played.turn();
        }
        QTRY_VERIFY(played.session.isAstray());
        played.session.putBack();
        played.turn();
        QCOMPARE(played.id(), back);
    }
}

void tst_InVain::whatIsUsedInVainIsPutBack()
{
    const ControlSpot button = Played::spot("MainWindow", "new");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), button);
    played.play({Played::item(1, "MainWindow", "click,"),
                 Played::item(2, "MainWindow", "windowState,NewProject,open"), QStringLiteral(R"("id":3)")});
    played.session.next();
    played.turn();
    QCOMPARE(played.id(), 2);
    // The button does something, and no window opens: its editor is in another state than the step needs.
    int uses = 0;
    while (!played.session.canPutBack() && uses < 20) {
        Q_EMIT played.editor.used(button);
        played.turn();
        ++uses;
    }
    // A double click or two may miss.
    QVERIFY2(uses > 4 && uses < 20, qPrintable(QString::number(uses)));
    played.session.putBack();
    played.turn();
    // The step cannot be done as it began, so it is done from the one before.
    QCOMPARE(played.id(), 1);
    QVERIFY(!played.session.canPutBack());
}

void tst_InVain::whatDoesAsItIsToldIsNotInVain()
{
    const ControlSpot button = Played::spot("MainWindow", "add");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), button);
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    for (int use = 0; use < 20; ++use) {
        Q_EMIT played.editor.used(button);
        played.turn();
        QVERIFY(!played.session.canPutBack());
    }
}

void tst_InVain::aWayThatIsUsedInVainLeadsNowhere()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str(kProperties), Played::spot(kProperties, "name"));
    played.editor.open(str(kProperties));
    played.play({Played::item(1, kProperties, "textLength,name,3"), QStringLiteral(R"("id":2)")});
    played.use(kProperties, "@dismiss");
    played.editor.close(str(kProperties));
    played.turn();
    QVERIFY(played.session.isAstray());
    const std::optional<Way> way = played.session.wayBack();
    QVERIFY(way);
    int uses = 0;
    while (played.session.wayBack() && uses < 20) {
        QVERIFY(!played.session.canPutBack());
        Q_EMIT played.editor.used(way->by);
        played.turn();
        ++uses;
    }
    QVERIFY2(uses > 4 && uses < 20, qPrintable(QString::number(uses)));
    QVERIFY(played.session.isAstray());
    QVERIFY(played.session.canPutBack());
    QVERIFY(played.lastTold().contains(str("|put it back|")));
    played.session.putBack();
    played.turn();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.editor.m_stack, (QStringList{str("MainWindow"), str(kProperties)}));
}

void tst_InVain::waysThatLeadRoundInACircleLeadNowhere()
{
    const QString other = str("NewProject");
    Played played;
    played.editor.m_ways = someWays() + Ways{way("NewProject", "cancel", "click", "NewProject", Does::kCloses,
                                                 "NewProject", true)};
    played.editor.m_controls.insert(str(kProperties), Played::spot(kProperties, "name"));
    played.editor.open(str(kProperties));
    played.play({Played::item(1, kProperties, "textLength,name,3"), QStringLiteral(R"("id":2)")});
    played.use(kProperties, "@dismiss");
    played.editor.close(str(kProperties));
    played.turn();
    int uses = 0;
    while (played.session.wayBack() && uses < 20) {
        QVERIFY(!played.session.canPutBack());
        // What opened the step's window opens another one now.
        played.editor.m_cause = played.session.wayBack()->by;
        if (played.editor.m_stack.contains(other)) {
            played.editor.close(other);
        } else {
            played.editor.open(other);
        }
        played.turn();
        ++uses;
    }
    QVERIFY2(uses > 4 && uses < 20, qPrintable(QString::number(uses)));
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    played.turn();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.editor.m_stack, (QStringList{str("MainWindow"), str(kProperties)}));
}

QTEST_GUILESS_MAIN(tst_InVain)
#include "tst_InVain.moc"
