#include "Field.h"
#include "player/battle/Effects.h"

#include <QTest>

#include <limits>

using namespace player;

class tst_BattleDeeds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBlowCostsTwiceTheAttackLessTheDefense_data();
    void aBlowCostsTwiceTheAttackLessTheDefense();
    void anAttackUsesWeaponArmorAndLevel();
    void whoGuardsTakesHalfRoundedUp();
    void elementsDoubleAndHalveDamage_data();
    void elementsDoubleAndHalveDamage();
    void aSkillWithoutEffectsIsAnAttack();
    void aSkillCostsMpAndFailsWithoutThem();
    void aSealedSkillFails();
    void healingStopsAtTheMostAndHelpsNobodyWhoHasFallen();
    void allEnemiesAreHit();
    void anItemIsUsedUpAndHarmfulOnesHitEnemies();
    void aTonicWakesWhoHasFallen();
    void aTargetThatHasFallenIsReplacedByAnother();
    void commonEventsOfEffectsAreHandedOut();
    void wildEffectsAreHarmless();
};

void tst_BattleDeeds::aBlowCostsTwiceTheAttackLessTheDefense_data()
{
    QTest::addColumn<int>("attack");
    QTest::addColumn<int>("defense");
    QTest::addColumn<int>("damage");
    QTest::newRow("usual") << 5 << 3 << 7;
    QTest::newRow("no attack") << 0 << 0 << 1;
    QTest::newRow("defense beyond it") << 5 << 50 << 1;
    QTest::newRow("negative attack") << -5 << 0 << 1;
    QTest::newRow("negative defense") << 5 << -3 << 13;
    QTest::newRow("huge") << std::numeric_limits<int>::max() << 0 << 99999;
    QTest::newRow("hugely negative defense") << 1 << std::numeric_limits<int>::min() << 99999;
}

void tst_BattleDeeds::aBlowCostsTwiceTheAttackLessTheDefense()
{
    QFETCH(int, attack);
    QFETCH(int, defense);
    QTEST(Effects::blow(attack, defense), "damage");
}

void tst_BattleDeeds::anAttackUsesWeaponArmorAndLevel()
{
    SlimeGame game;
    GearEntry sword;
    sword.id = 1;
    sword.attack = 4;
    game.data->weapons.insert(sword);
    game.begin();
    game.actor(1).weapon = 1;
    Field field(&game);
    // Attack 1 + 4 against defense 1.
    const QVector<Note> notes = field.deeds.carryOut({Deed::Kind::kAttack, kMila, 0, kSlime});
    QCOMPARE(kinds(notes), QVector<Note::Kind>({Note::Kind::kAttacks, Note::Kind::kLosesHp}));
    QCOMPARE(notes.at(1).amount, 9);
    QCOMPARE(field.fighters.hp(kSlime), 6);
}

void tst_BattleDeeds::whoGuardsTakesHalfRoundedUp()
{
    SlimeGame game;
    game.begin();
    Field field(&game);
    // Attack 4 against defense 1: 7.
    field.deeds.guard(kMila);
    const QVector<Note> guarded = field.deeds.carryOut({Deed::Kind::kAttack, kSlime, 0, kMila});
    QCOMPARE(guarded.at(1).amount, 4);
    field.deeds.beginTurn();
    const QVector<Note> open = field.deeds.carryOut({Deed::Kind::kAttack, kSlime, 0, kMila});
    QCOMPARE(open.at(1).amount, 7);
}

void tst_BattleDeeds::elementsDoubleAndHalveDamage_data()
{
    QTest::addColumn<QString>("trait");
    QTest::addColumn<int>("element");
    QTest::addColumn<int>("damage");
    QTest::newRow("none") << QStringLiteral("hpRate") << 100 << 6;
    QTest::newRow("weak to it") << QStringLiteral("weakTo") << 1 << 12;
    QTest::newRow("resists it") << QStringLiteral("resistsElement") << 1 << 3;
    QTest::newRow("weak to another") << QStringLiteral("weakTo") << 2 << 6;
}

void tst_BattleDeeds::elementsDoubleAndHalveDamage()
{
    QFETCH(QString, trait);
    QFETCH(int, element);
    SlimeGame game;
    SlimeGame::change(&game.data->enemies, 1, [&](EnemyEntry *slime) { slime->traits = {{trait, element}}; });
    game.begin();
    Field field(&game);
    const QVector<Note> notes = field.deeds.carryOut(skillDeed(kMila, SlimeGame::kFlame, kSlime));
    QCOMPARE(notes.at(1).kind, Note::Kind::kLosesHp);
    QTEST(notes.at(1).amount, "damage");
}

void tst_BattleDeeds::aSkillWithoutEffectsIsAnAttack()
{
    SlimeGame game;
    game.begin();
    Field field(&game);
    const QVector<Note> notes = field.deeds.carryOut(skillDeed(kSlime, SlimeGame::kStrike, kMila));
    QCOMPARE(kinds(notes), QVector<Note::Kind>({Note::Kind::kUsesSkill, Note::Kind::kLosesHp}));
    QCOMPARE(notes.at(1).amount, 7);
}

void tst_BattleDeeds::aSkillCostsMpAndFailsWithoutThem()
{
    SlimeGame game;
    game.begin();
    game.actor(1).mp = 5;
    Field field(&game);
    QCOMPARE(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpark, kSlime)).at(0).kind,
             Note::Kind::kUsesSkill);
    QCOMPARE(field.fighters.mp(kMila), 2);
    QCOMPARE(kinds(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpark, kSlime))),
             QVector<Note::Kind>({Note::Kind::kCannotPay}));
    QCOMPARE(field.fighters.mp(kMila), 2);
    QCOMPARE(field.fighters.hp(kSlime), 5);
}

void tst_BattleDeeds::aSealedSkillFails()
{
    SlimeGame game;
    SlimeGame::change(&game.data->classes, 1, [](ClassEntry *entry) {
        entry->traits = {{QStringLiteral("sealSkill"), SlimeGame::kSpark}};
    });
    game.begin();
    Field field(&game);
    QCOMPARE(kinds(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpark, kSlime))),
             QVector<Note::Kind>({Note::Kind::kCannotPay}));
}

void tst_BattleDeeds::healingStopsAtTheMostAndHelpsNobodyWhoHasFallen()
{
    SlimeGame game;
    game.begin();
    game.actor(1).hp = 35;
    game.actor(2).changeHp(-40, *game.data);
    Field field(&game);
    const QVector<Note> notes = field.deeds.carryOut(skillDeed(kMila, SlimeGame::kHeal, kMila));
    QCOMPARE(notes.at(1).kind, Note::Kind::kGainsHp);
    QCOMPARE(notes.at(1).amount, 5);
    QCOMPARE(kinds(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kHeal, kToma))),
             QVector<Note::Kind>({Note::Kind::kUsesSkill, Note::Kind::kNoEffect}));
    QCOMPARE(field.fighters.hp(kToma), 0);
}

void tst_BattleDeeds::allEnemiesAreHit()
{
    SlimeGame game;
    game.setTroop(3);
    game.begin();
    Field field(&game);
    const QVector<Note> notes = field.deeds.carryOut(skillDeed(kMila, SlimeGame::kQuake, {}));
    QCOMPARE(notes.size(), 4);
    for (int place = 0; place < 3; ++place) {
        QCOMPARE(field.fighters.hp({true, place}), 10);
    }
}

void tst_BattleDeeds::anItemIsUsedUpAndHarmfulOnesHitEnemies()
{
    SlimeGame game;
    game.begin();
    game.state.addGoods(Goods::kItem, SlimeGame::kBomb, 1);
    Field field(&game);
    const Deed bomb{Deed::Kind::kItem, kMila, SlimeGame::kBomb, kSlime};
    QCOMPARE(kinds(field.deeds.carryOut(bomb)),
             QVector<Note::Kind>({Note::Kind::kUsesItem, Note::Kind::kLosesHp}));
    QCOMPARE(field.fighters.hp(kSlime), 7);
    QCOMPARE(game.state.count(Goods::kItem, SlimeGame::kBomb), 0);
    QCOMPARE(kinds(field.deeds.carryOut(bomb)), QVector<Note::Kind>({Note::Kind::kNoEffect}));
    QCOMPARE(field.fighters.hp(kSlime), 7);
}

void tst_BattleDeeds::aTonicWakesWhoHasFallen()
{
    SlimeGame game;
    game.begin();
    game.actor(2).changeHp(-40, *game.data);
    game.state.addGoods(Goods::kItem, SlimeGame::kTonic, 1);
    Field field(&game);
    QCOMPARE(field.fighters.standing(false), QVector<Fighter>({kMila}));
    const QVector<Note> notes = field.deeds.carryOut({Deed::Kind::kItem, kMila, SlimeGame::kTonic, kToma});
    QCOMPARE(kinds(notes), QVector<Note::Kind>({Note::Kind::kUsesItem, Note::Kind::kLosesState}));
    QCOMPARE(field.fighters.hp(kToma), 1);
    QVERIFY(field.fighters.isStanding(kToma));
}

void tst_BattleDeeds::aTargetThatHasFallenIsReplacedByAnother()
{
    SlimeGame game;
    game.setTroop(2);
    game.begin();
    Field field(&game);
    field.fighters.changeHp(kSlime, -15);
    static_cast<void>(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpark, kSlime)));
    QCOMPARE(field.fighters.hp({true, 1}), 5);
}

void tst_BattleDeeds::commonEventsOfEffectsAreHandedOut()
{
    SlimeGame game;
    SlimeGame::change(&game.data->items, SlimeGame::kStone, [](ItemEntry *stone) {
        stone->effects = {{QStringLiteral("commonEvent"), 7}};
    });
    game.begin();
    game.state.addGoods(Goods::kItem, SlimeGame::kStone, 1);
    Field field(&game);
    static_cast<void>(field.deeds.carryOut({Deed::Kind::kItem, kMila, SlimeGame::kStone, kMila}));
    QCOMPARE(field.deeds.takeCommonEvents(), QVector<int>({7}));
    QVERIFY(field.deeds.takeCommonEvents().isEmpty());
}

void tst_BattleDeeds::wildEffectsAreHarmless()
{
    SlimeGame game;
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    SlimeGame::change(&game.data->skills, SlimeGame::kSpark, [](SkillEntry *spark) {
        spark->mpCost = 0;
        spark->effects = {{QStringLiteral("hp"), kLeast},          {QStringLiteral("hp"), kMost},
                          {QStringLiteral("mp"), kLeast},          {QStringLiteral("addState"), 999},
                          {QStringLiteral("removeState"), kLeast}, {QStringLiteral("learnSkill"), kMost},
                          {QStringLiteral("nonsense"), 1},         {QStringLiteral("element"), kMost}};
    });
    game.begin();
    Field field(&game);
    static_cast<void>(field.deeds.carryOut(skillDeed(kMila, SlimeGame::kSpark, kSlime)));
    QCOMPARE(field.fighters.hp(kSlime), 0);
    QVERIFY(field.deeds.carryOut(skillDeed(kMila, 999, kSlime)).isEmpty());
    QVERIFY(field.deeds.carryOut(skillDeed({false, 99}, SlimeGame::kSpark, kSlime)).isEmpty());
}

QTEST_GUILESS_MAIN(tst_BattleDeeds)
#include "tst_BattleDeeds.moc"
