#include "SessionFixture.h"

#include <QJsonDocument>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

/// A lesson that another run goes on with.
class tst_Resume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resumesWhereALessonWasLeft();
    void goesBackBehindTheStepAtWhichItWasResumed();
    void passesOverStepsThatAreNoMoreInTheLesson();
    void resumesKnowingHowTheWindowsCameUp();
    void resumesKnowingWhatWrongMovesHaveChosen();
    void beginsAgainWhenTheStateIsGone();
    void theBookmarkOutlivesTheCompanionAndNotTheLesson();
};

void tst_Resume::resumesWhereALessonWasLeft()
{
    const QStringList items{Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "list,1"),
                            Played::item(3, "MainWindow", "click,")};
    QJsonObject bookmark;
    {
        Played first;
        first.session.request(str("TutorialStep1"));
        first.play(items);
        first.editor.m_data = str("drawn on");
        QSignalSpy changed(&first.session, &LessonSession::bookmarkChanged);
        first.session.receive(str("next"));
        first.turn();
        QCOMPARE(changed.size(), 1);
        first.editor.m_data = str("and a wrong move later");
        bookmark = QJsonDocument::fromJson(QJsonDocument(first.session.bookmark()).toJson()).object();
    }
    Played second;
    second.session.resume(bookmark);
    QCOMPARE(second.told, QStringList{str("tutorial|TutorialStep1")});
    second.play(items);
    QCOMPARE(second.id(), 2);
    QCOMPARE(second.editor.m_data, str("drawn on"));
    QVERIFY(!second.session.isAstray());
    QCOMPARE(second.session.bookmark(), bookmark);
    // What came before is known, too.
    QVERIFY(second.session.canGoBack());
    second.session.back();
    QCOMPARE(second.id(), 1);
    QCOMPARE(second.editor.m_data, str("as it was"));
    // The next time it begins at the first step again.
    second.session.request(str("TutorialStep1"));
    second.play(items);
    QCOMPARE(second.id(), 1);
}

void tst_Resume::goesBackBehindTheStepAtWhichItWasResumed()
{
    const QStringList items{Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                            Played::item(3, "MainWindow", "click,"), Played::item(4, "MainWindow", "click,")};
    // One run for each step, and all of it back in the last.
    QJsonObject bookmark;
    for (int run = 1; run <= 3; ++run) {
        Played played;
        if (bookmark.isEmpty()) {
            played.session.request(str("TutorialStep1"));
        } else {
            played.session.resume(bookmark);
        }
        played.play(items);
        QCOMPARE(played.id(), run);
        played.editor.m_data = QStringLiteral("of step %1").arg(run + 1);
        played.session.receive(str("next"));
        played.turn();
        bookmark = QJsonDocument::fromJson(QJsonDocument(played.session.bookmark()).toJson()).object();
    }
    Played last;
    last.session.resume(bookmark);
    last.play(items);
    QCOMPARE(last.id(), 4);
    for (const char *data : {"of step 3", "of step 2", "as it was"}) {
        last.session.back();
        last.turn();
        QCOMPARE(last.editor.m_data, str(data));
    }
    QCOMPARE(last.id(), 1);
    QVERIFY(!last.session.canGoBack());
}

void tst_Resume::passesOverStepsThatAreNoMoreInTheLesson()
{
    Played first;
    first.session.request(str("TutorialStep1"));
    first.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                Played::item(3, "MainWindow", "click,")});
    for (int step = 0; step < 2; ++step) {
        first.session.receive(str("next"));
        first.turn();
    }
    Played second;
    second.session.resume(first.session.bookmark());
    second.play({Played::item(1, "MainWindow", "click,"), Played::item(3, "MainWindow", "click,")});
    QCOMPARE(second.id(), 3);
    second.session.back();
    QCOMPARE(second.id(), 1);
}

void tst_Resume::resumesKnowingHowTheWindowsCameUp()
{
    const QString key = str("MapProperties");
    const QStringList items{Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                            Played::item(2, "MapProperties", "action,picture,")};
    const Ways ways{{Played::spot("MainWindow", "maps"), str("doubleClick"), str("MainWindow"),
                     Way::Does::kOpens, key, false}};
    Played first;
    first.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 4));
    first.session.request(str("TutorialStep1"));
    first.play(items);
    first.use("MainWindow", "maps", 4);
    first.editor.open(key);
    first.turn();
    QCOMPARE(first.id(), 2);
    Played second;
    second.editor.m_ways = ways;
    second.session.resume(first.session.bookmark());
    second.play(items);
    QCOMPARE(second.id(), 2);
    QVERIFY(second.editor.m_stack.contains(key));
    second.use("MapProperties", "cancel");
    second.editor.close(key);
    second.turn();
    QCOMPARE(second.session.wayBack()->by, Played::spot("MainWindow", "maps", 4));
}

void tst_Resume::resumesKnowingWhatWrongMovesHaveChosen()
{
    const QStringList items{Played::item(1, "MainWindow", "action,modeEvent,"),
                            Played::item(2, "MainWindow", "windowState,MapProperties,open"),
                            QStringLiteral(R"("id":3)")};
    const auto choose = [](Played *played, int map) {
        played->use("MainWindow", "maps", map);
        played->editor.m_chosen = {Played::spot("MainWindow", "maps", map)};
        played->editor.m_meanings.insert(str("map"), str("map %1").arg(map));
        played->editor.report(str("list"), QString::number(map));
        played->turn();
    };
    Played first;
    first.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "tool"));
    choose(&first, 0);
    first.session.request(str("TutorialStep1"));
    first.play(items);
    choose(&first, 3);
    first.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "map", 7));
    first.use("MainWindow", "tool");
    first.editor.report(str("action"), str("modeEvent"));
    first.turn();
    QCOMPARE(first.id(), 2);
    Played second;
    second.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "map", 7));
    second.editor.m_chosen = {Played::spot("MainWindow", "maps", 3)};
    second.editor.m_meanings.insert(str("map"), str("map 3"));
    second.session.resume(QJsonDocument::fromJson(QJsonDocument(first.session.bookmark()).toJson()).object());
    second.play(items);
    QCOMPARE(second.id(), 2);
    QVERIFY(!second.session.isAstray());
    choose(&second, 0);
    QVERIFY(!second.session.isAstray());
    choose(&second, 3);
    QVERIFY(second.session.isAstray());
    QCOMPARE(second.session.wayBack()->by, Played::spot("MainWindow", "maps", 0));
}

void tst_Resume::beginsAgainWhenTheStateIsGone()
{
    const QStringList items{Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "list,1")};
    Played first;
    first.session.request(str("TutorialStep1"));
    first.play(items);
    first.session.receive(str("next"));
    first.turn();
    Played second;
    QSignalSpy problems(&second.session, &LessonSession::problemFound);
    second.editor.m_canRestore = false;
    second.session.resume(first.session.bookmark());
    second.play(items);
    QCOMPARE(second.id(), 1);
    QCOMPARE(problems.size(), 1);
}

void tst_Resume::theBookmarkOutlivesTheCompanionAndNotTheLesson()
{
    Played played;
    played.session.request(str("TutorialStep1"));
    QVERIFY(played.session.bookmark().isEmpty());
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,")});
    played.session.abandon();
    const QJsonObject bookmark = played.session.bookmark();
    QCOMPARE(bookmark.value(str("lesson")).toString(), str("TutorialStep1"));
    played.session.resume(bookmark);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,")});
    played.session.receive(str("next"));
    played.turn();
    played.session.stop();
    QVERIFY(!played.session.bookmark().isEmpty());
    played.session.resume(played.session.bookmark());
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,")});
    QCOMPARE(played.id(), 2);
    played.session.receive(str("next"));
    QVERIFY(played.session.bookmark().isEmpty());
}

QTEST_GUILESS_MAIN(tst_Resume)
#include "tst_Resume.moc"
