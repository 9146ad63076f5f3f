#include "SoundTrial.h"
#include "player/scene/Frame.h"
#include "window/SampleEditor.h"

using player::Sound;

/// What is chosen is heard, before it is kept.
class tst_SoundTrial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsToBeHeardWhereNothingPlays();
    void musicIsHeardAsItIsChosenUntilItIsStopped();
    void musicIsSilentWhenItsWindowCloses_data();
    void musicIsSilentWhenItsWindowCloses();
    void aSoundIsHeardOnce();
    void listeningChangesNothing();
    void nobodyLooksForALoudspeakerBefore();

private:
    /// Notes what is heard.
    class Notes : public player::Loudspeaker
    {
    public:
        explicit Notes(QVector<player::Frame> *heard)
            : m_heard(heard)
        {
        }
        void hear(const player::Frame &frame) override { m_heard->append(frame); }
        void setMuted(bool /*isMuted*/) override {}

    private:
        QVector<player::Frame> *m_heard;
    };

    void handIn(bool isSilent = false)
    {
        const auto make = [this, isSilent]() -> std::unique_ptr<player::Loudspeaker> {
            ++m_made;
            return isSilent ? nullptr : std::make_unique<Notes>(&m_heard);
        };
        m_trial = std::make_unique<SoundTrial>(m_editor->operator->(), make);
    }
    void openBattleMusic()
    {
        m_editor->openDatabase(12);
        m_editor->click("DatabaseMain", "battleMusicChoose");
    }
    [[nodiscard]] bool isOfUse(const char *button) const
    {
        return m_editor->find<QAbstractButton>("AudioSelector", button)->isEnabled();
    }

    std::unique_ptr<SampleEditor> m_editor;
    std::unique_ptr<SoundTrial> m_trial;
    QVector<player::Frame> m_heard;
    int m_made = 0;
};

void tst_SoundTrial::init()
{
    m_editor = std::make_unique<SampleEditor>();
    m_heard.clear();
    m_made = 0;
}

void tst_SoundTrial::cleanup()
{
    m_trial.reset();
    m_editor.reset();
}

void tst_SoundTrial::nothingIsToBeHeardWhereNothingPlays()
{
    handIn(true);
    openBattleMusic();
    QVERIFY(!isOfUse("listen"));
    QVERIFY(!isOfUse("stop"));
    QVERIFY(m_editor->isThere("AudioSelector", "silentHint"));
}

void tst_SoundTrial::musicIsHeardAsItIsChosenUntilItIsStopped()
{
    handIn();
    openBattleMusic();
    QVERIFY(!m_editor->isThere("AudioSelector", "silentHint"));
    m_editor->clickRow("AudioSelector", "music", 9);
    m_editor->setNumber("AudioSelector", "volume", 35);
    QVERIFY(isOfUse("listen"));
    QVERIFY(!isOfUse("stop"));
    m_editor->click("AudioSelector", "listen");
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constLast().music, (Sound{str("boss"), 35, 100, 0}));
    QVERIFY(isOfUse("stop"));
    m_editor->click("AudioSelector", "stop");
    QCOMPARE(m_heard.size(), 2);
    QCOMPARE(m_heard.constLast().music, Sound());
    QVERIFY(!isOfUse("stop"));
}

void tst_SoundTrial::musicIsSilentWhenItsWindowCloses_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("kept") << QStringLiteral("ok");
    QTest::newRow("dropped") << QStringLiteral("cancel");
}

void tst_SoundTrial::musicIsSilentWhenItsWindowCloses()
{
    QFETCH(QString, button);
    handIn();
    openBattleMusic();
    m_editor->click("AudioSelector", "listen");
    m_editor->click("AudioSelector", button.toLatin1().constData());
    QCOMPARE(m_heard.size(), 2);
    QCOMPARE(m_heard.constLast().music, Sound());
    QVERIFY(!m_trial->isPlaying());
}

void tst_SoundTrial::aSoundIsHeardOnce()
{
    handIn();
    m_trial->listen(str("sound"), QJsonObject{{str("file"), str("bell")}, {str("pan"), -50}});
    QCOMPARE(m_heard.size(), 1);
    QCOMPARE(m_heard.constLast().sounds, (QVector<Sound>{{str("bell"), 100, 100, -50}}));
    QCOMPARE(m_heard.constLast().music, Sound());
    QVERIFY(!m_trial->isPlaying());
}

void tst_SoundTrial::listeningChangesNothing()
{
    handIn();
    openBattleMusic();
    const QString before = (*m_editor)->dataMark();
    m_editor->click("AudioSelector", "listen");
    m_editor->click("AudioSelector", "stop");
    QCOMPARE((*m_editor)->dataMark(), before);
}

void tst_SoundTrial::nobodyLooksForALoudspeakerBefore()
{
    handIn();
    m_editor->openDatabase(12);
    QCOMPARE(m_made, 0);
    m_editor->click("DatabaseMain", "battleMusicChoose");
    QCOMPARE(m_made, 1);
}

QTEST_MAIN(tst_SoundTrial)
#include "tst_SoundTrial.moc"
