#pragma once

#include "project/Commands.h"
#include "project/RowSources.h"
#include "project/StartData.h"
#include "project/StateParts.h"

/// What the person draws with and how the map is shown: tool, layer, tile, mode, zoom and grid. None of it
/// belongs to a project.
class EditorTools : public QObject
{
    Q_OBJECT

public:
    enum class Tool { kPencil, kRectangle, kEllipse, kFill, kEraser };

    /// Width and height of a cell on the screen at full size, in pixels.
    static constexpr int kFullSize = 32;

    /// @p start outlives the tools.
    explicit EditorTools(const StartData *start, QObject *parent = nullptr);

    [[nodiscard]] const StartData &start() const { return *m_start; }

    /// Adds the commands that choose tools, and the lists of tiles.
    void addTo(Commands &commands, RowSources &sources);

    /// Keeps all of it as a part of the editor's state.
    void addTo(StateParts &states);

    [[nodiscard]] Tool tool() const { return m_tool; }
    [[nodiscard]] int layer() const { return m_layer; }
    /// The tile to draw with.
    [[nodiscard]] int tile() const { return m_tile; }
    [[nodiscard]] bool isEventMode() const { return m_eventMode; }
    [[nodiscard]] bool hasGrid() const { return m_grid; }
    /// Width and height of a cell on the screen, in pixels.
    [[nodiscard]] int cellPixels() const { return m_cellPixels; }

Q_SIGNALS:
    void changed();

private:
    /// A command that gives @p member the value @p choice.
    template<typename Value>
    void addChoice(Commands &commands, const char *name, Value EditorTools::*member, Value choice);
    void setCellPixels(int pixels);
    [[nodiscard]] QVector<Row> tilesOfTab() const;

    const StartData *m_start;
    Tool m_tool = Tool::kPencil;
    int m_layer = 0;
    int m_tileTab = 0;
    int m_tile = 0;
    bool m_eventMode = false;
    bool m_grid = false;
    int m_cellPixels = kFullSize;
};
