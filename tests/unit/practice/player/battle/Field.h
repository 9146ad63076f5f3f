#pragma once

#include "../SlimeGame.h"
#include "player/battle/Deeds.h"

inline const player::Fighter kMila{false, 0};
inline const player::Fighter kToma{false, 1};
inline const player::Fighter kSlime{true, 0};

/// A battle's fighters and deeds, without its turns.
struct Field
{
    explicit Field(SlimeGame *game)
        : fighters(*game->data, &game->state, game->data->troops.find(1))
        , deeds(*game->data, &game->state, &fighters)
    {
    }

    player::Fighters fighters;
    player::Deeds deeds;
};

inline QVector<player::Note::Kind> kinds(const QVector<player::Note> &notes)
{
    QVector<player::Note::Kind> kinds;
    for (const player::Note &note : notes) {
        kinds.append(note.kind);
    }
    return kinds;
}

inline player::Deed skillDeed(const player::Fighter &doer, int id, const player::Fighter &target)
{
    return {player::Deed::Kind::kSkill, doer, id, target};
}
