#include "ProjectFixture.h"

/// The commands that let the project be played: what they hand to whoever plays it.
class tst_PlayWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nobodyPlaysUntilSomebodyIsHandedIn();
    void nothingIsPlayedWhileNoProjectIsOpen();
    void theProjectIsPlayedAsItStands();
    void aDialogPlaysWhatItHolds();
    void aBattleIsFoughtAgainstTheSelectedTroop();

private:
    [[nodiscard]] bool canRun(const char *command)
    {
        return m_room->project.commands().canRun(str(command), m_room->project.files());
    }
    void handIn()
    {
        m_room->project.setPlayer([this](const PlayRequest &request) { m_played.append(request); });
    }

    std::unique_ptr<ProjectRoom> m_room;
    QVector<PlayRequest> m_played;
};

void tst_PlayWords::init()
{
    m_room = std::make_unique<ProjectRoom>();
    m_played.clear();
}

void tst_PlayWords::nobodyPlaysUntilSomebodyIsHandedIn()
{
    m_room->create();
    QVERIFY(!canRun("play.project"));
    m_room->run("play.project");
    QSignalSpy changed(&m_room->project, &Project::changed);
    handIn();
    QCOMPARE(changed.size(), 1);
    QVERIFY(canRun("play.project"));
    m_room->run("play.project");
    QCOMPARE(m_played.size(), 1);
}

void tst_PlayWords::nothingIsPlayedWhileNoProjectIsOpen()
{
    handIn();
    QVERIFY(!canRun("play.project"));
    QVERIFY(!canRun("play.battle"));
    m_room->run("play.project");
    m_room->run("play.battle");
    QCOMPARE(m_played.size(), 0);
}

void tst_PlayWords::theProjectIsPlayedAsItStands()
{
    m_room->create();
    handIn();
    DataFiles &files = m_room->project.files();
    QVERIFY(files.set(str("data/System.json"), str("/gameTitle"), str("Not saved")));
    m_room->run("play.project");
    const PlayRequest &request = m_played.constFirst();
    QCOMPARE(request.files.keys(), files.names());
    QCOMPARE(request.files.value(str("data/System.json"))[str("gameTitle")].toString(), str("Not saved"));
    QCOMPARE(request.folder, files.folder());
    QCOMPARE(request.troop, 0);
    QCOMPARE(request.start, &m_room->project.start());
    // Playing changes nothing.
    QVERIFY(m_room->project.isModified());
    QCOMPARE(files.changedFiles(), QStringList{str("data/System.json")});
}

void tst_PlayWords::aDialogPlaysWhatItHolds()
{
    m_room->create();
    handIn();
    DataLayer *const dialog = m_room->project.drafts().begin();
    QVERIFY(dialog->set(str("data/System.json"), str("/gameTitle"), str("Only typed")));
    m_room->project.run(str("play.project"), *dialog);
    QCOMPARE(m_played.constFirst().files.value(str("data/System.json"))[str("gameTitle")].toString(),
             str("Only typed"));
    QVERIFY(!m_room->project.isModified());
}

void tst_PlayWords::aBattleIsFoughtAgainstTheSelectedTroop()
{
    m_room->create();
    handIn();
    DataFiles &files = m_room->project.files();
    files.change({{str("data/Troops.json"), QJsonArray{QJsonValue()}}}, QString());
    QVERIFY(!canRun("play.battle"));
    const QJsonObject troop{{str("id"), 1}, {str("name"), str("Bats")}};
    files.change({{str("data/Troops.json"), QJsonArray{QJsonValue(), troop, troop}}}, QString());
    files.select(str("data/Troops"), 2);
    QVERIFY(canRun("play.battle"));
    m_room->run("play.battle");
    QCOMPARE(m_played.constFirst().troop, 2);
}

QTEST_GUILESS_MAIN(tst_PlayWords)
#include "tst_PlayWords.moc"
