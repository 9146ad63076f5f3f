#pragma once

namespace player {

/// Somebody in a battle, by its place in the party or the troop, from 0.
struct Fighter
{
    bool isEnemy = false;
    /// -1 for nobody.
    int place = -1;

    friend bool operator==(const Fighter &left, const Fighter &right)
    {
        return left.isEnemy == right.isEnemy && left.place == right.place;
    }
    friend bool operator!=(const Fighter &left, const Fighter &right) { return !(left == right); }
};

/// What somebody is to do in a turn.
struct Deed
{
    enum class Kind { kNothing, kAttack, kSkill, kItem, kGuard };

    Kind kind = Kind::kNothing;
    Fighter doer;
    /// Of the skill or item.
    int id = 0;
    /// Where the deed concerns one only. Nobody: anyone, by chance.
    Fighter target;
};

/// One thing that has happened.
struct Note
{
    enum class Kind {
        kAttacks,
        /// The skill or item id.
        kUsesSkill,
        kUsesItem,
        kGuards,
        /// By amount points.
        kLosesHp,
        kGainsHp,
        kLosesMp,
        kGainsMp,
        /// The state id.
        kGetsState,
        kLosesState,
        kKeepsState,
        /// The skill id.
        kLearns,
        /// A state that is resisted, points that are full already, nobody who is there.
        kNoEffect,
        kCannotPay,
        kFlees,
        kCannotFlee,
    };

    Kind kind = Kind::kNoEffect;
    Fighter who;
    int id = 0;
    int amount = 0;
};

} // namespace player
