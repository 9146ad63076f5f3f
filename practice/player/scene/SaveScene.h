#pragma once

#include "player/scene/ListPanel.h"
#include "player/scene/SaveFiles.h"
#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// The saved games of the project: one is written, or gone on with.
class SaveScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(SaveScene)

public:
    enum class Mode { kSave, kLoad };

    explicit SaveScene(Mode mode = Mode::kSave);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    void list(const Game &game);
    void pointAtNewest();
    [[nodiscard]] ListRow row(int slot, const SaveFiles &files, const GameData &data) const;
    void choose(Game *game);
    void carryOut(Game *game);

    Mode m_mode;
    bool m_isListed = false;
    /// The slot is asked about once more: what is there would be lost, or is of another version.
    bool m_isAsking = false;
    QVector<SaveSlot> m_slots;
    ListPanel m_list;
    ListPanel m_question;
    /// What came of it; a key goes on.
    QString m_notice;
    bool m_isDone = false;
};

} // namespace player
