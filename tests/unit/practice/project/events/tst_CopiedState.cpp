#include "EventsFixture.h"

#include <QJsonDocument>

namespace {

/// What the editor keeps beside the data, as it comes out of a file.
QJsonObject kept(ProjectRoom &room)
{
    return QJsonDocument::fromJson(QJsonDocument(room.project.states().save()).toJson()).object();
}

QJsonValue eventPart(ProjectRoom &room, const char *pointer)
{
    return room.layer().value(str("data/Map001.json"), str("/events/") + str(pointer));
}

/// The window of an event is open, and its list of commands has the first one chosen.
void openCommands(ProjectRoom &room)
{
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.project.drafts().begin();
    room.run((QByteArray("commands.of ") + kList).constData());
    room.choose((QByteArray("commands ") + kList).constData(), 0);
}

} // namespace

/// What was copied, as a part of the editor's state: at another step of a lesson, and in another run.
class tst_CopiedState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEventIsPastedInAnotherRun();
    void aPageIsPastedInAnotherRun();
    void commandsArePastedInAnotherRun();
    void anEntryOfAListIsPastedInAnotherRun();
    void goingBackBringsBackWhatWasCopiedThen();
    void nothingWasCopiedAtFirst();
};

void tst_CopiedState::anEventIsPastedInAnotherRun()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/image", str("chest"));
    room.run("event.copy");
    ProjectRoom later;
    begin(later, {7, 2});
    later.project.states().load(kept(room));
    later.project.board().setCursor({7, 2});
    later.run("event.paste");
    QCOMPARE(eventPart(later, "1/x"), QJsonValue(7));
    QCOMPARE(eventPart(later, "1/pages/0/image"), QJsonValue(str("chest")));
}

void tst_CopiedState::aPageIsPastedInAnotherRun()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/image", str("chest"));
    room.run("eventPage.copy");
    ProjectRoom later;
    begin(later, {1, 1});
    makeEvent(later, {1, 1});
    later.project.states().load(kept(room));
    later.run("eventPage.paste");
    QCOMPARE(eventPart(later, "1/pages/1/image"), QJsonValue(str("chest")));
}

void tst_CopiedState::commandsArePastedInAnotherRun()
{
    ProjectRoom room;
    openCommands(room);
    room.setField(kList, QJsonDocument::fromJson(R"([{"code": 230, "indent": 0, "parameters": [45]},
        {"code": 0, "indent": 0, "parameters": []}])")
                             .array()
                             .toVariantList());
    room.choose((QByteArray("commands ") + kList).constData(), 0);
    room.run("commands.copy");
    ProjectRoom later;
    openCommands(later);
    later.project.states().load(kept(room));
    later.run("commands.paste");
    QCOMPARE(eventPart(later, "1/pages/0/list/0/code"), QJsonValue(230));
    QCOMPARE(eventPart(later, "1/pages/0/list/0/parameters/0"), QJsonValue(45));
}

void tst_CopiedState::anEntryOfAListIsPastedInAnotherRun()
{
    ProjectRoom room;
    room.create();
    room.project.run(str("list.add data/Items"), room.layer(), QJsonObject{{str("price"), 77}});
    room.choose("data/Items", 0);
    QCOMPARE(room.field("data/Items/{items}/price").toInt(), 77);
    room.run("list.copy data/Items");
    ProjectRoom later;
    later.create();
    later.project.run(str("list.add data/Items"), later.layer(), QJsonObject{{str("price"), 5}});
    later.project.states().load(kept(room));
    later.choose("data/Items", 0);
    QCOMPARE(later.field("data/Items/{items}/price").toInt(), 5);
    later.run("list.paste data/Items");
    QCOMPARE(later.field("data/Items/{items}/price").toInt(), 77);
}

void tst_CopiedState::goingBackBringsBackWhatWasCopiedThen()
{
    ProjectRoom room;
    begin(room, {1, 1});
    makeEvent(room, {1, 1});
    room.setField("data/Map{maps}/events/{events}/pages/{eventPages}/image", str("chest"));
    room.run("event.copy");
    const QJsonObject then = kept(room);
    makeEvent(room, {3, 3});
    room.run("event.copy");
    room.project.states().load(then);
    room.project.board().setCursor({7, 2});
    room.run("event.paste");
    QCOMPARE(eventPart(room, "3/pages/0/image"), QJsonValue(str("chest")));
}

void tst_CopiedState::nothingWasCopiedAtFirst()
{
    ProjectRoom room;
    begin(room, {1, 1});
    const QJsonObject then = kept(room);
    makeEvent(room, {1, 1});
    room.run("event.copy");
    room.project.states().load(then);
    room.project.board().setCursor({7, 2});
    QVERIFY(!room.project.commands().canRun(str("event.paste"), room.layer()));
}

QTEST_GUILESS_MAIN(tst_CopiedState)
#include "tst_CopiedState.moc"
