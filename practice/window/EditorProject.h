#pragma once

#include "lesson/description/DescriptionSet.h"
#include "window/GameMap.h"
#include "window/ProjectContents.h"
#include "window/ProjectData.h"

#include <QObject>
#include <QVariant>

#include <optional>

/// The state behind the windows: the open project with its maps, the drawing tools, and what is typed into a
/// dialog before it is accepted. Knows no widgets. Windows read fields and rows by name, write fields, and
/// run commands; the names are those that window descriptions use.
class EditorProject : public QObject
{
    Q_OBJECT

public:
    enum class Tool { kPencil, kRectangle, kEllipse, kFill, kEraser };

    struct Row
    {
        QString text;
        /// Depth in a tree, 0 at the top.
        int level = 0;
        /// Number of the tile to draw before the text, or GameMap::kEmpty.
        int tile = GameMap::kEmpty;

        bool operator==(const Row &other) const
        {
            return text == other.text && level == other.level && tile == other.tile;
        }
    };

    /// No project is open at first.
    explicit EditorProject(ProjectData data, QObject *parent = nullptr);

    static QStringList commands();
    static QStringList fields();
    static QStringList sources();
    static QStringList pictures();
    /// All of these, and the icons of tools: what window descriptions may name.
    static EditorNames names();

    /// Runs one of commands(); does nothing where it makes no sense, such as undo with nothing to undo.
    void run(const QString &command);

    /// Whether the tool, mode, layer or view that @p command selects is the present one; nothing for other
    /// commands.
    [[nodiscard]] std::optional<bool> isOn(const QString &command) const;

    [[nodiscard]] QVariant field(const QString &name) const;
    void setField(const QString &name, const QVariant &value);

    [[nodiscard]] QVector<Row> rows(const QString &source) const;
    /// The selected row of a list or the index of the current tab; -1 for none.
    [[nodiscard]] int currentRow(const QString &source) const;
    void setCurrentRow(const QString &source, int row);

    /// Replaces what the open project holds, and counts as saved; does nothing while none is open.
    void show(ProjectContents contents);

    [[nodiscard]] bool isOpen() const { return m_open; }
    [[nodiscard]] bool isModified() const { return m_modified; }
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] const ProjectData &data() const { return m_data; }

    /// The map on show, or nullptr when there is none. Valid until the next change.
    [[nodiscard]] const GameMap *map() const;
    /// The map that the properties dialog shows and changes until it is accepted.
    [[nodiscard]] const GameMap &draft() const { return m_draft; }
    [[nodiscard]] bool isEventMode() const { return m_eventMode; }
    [[nodiscard]] bool hasGrid() const { return m_grid; }
    [[nodiscard]] Tool tool() const { return m_tool; }
    [[nodiscard]] int layer() const { return m_layer; }
    /// Width and height of a cell on the screen, in pixels; 32 at full size.
    [[nodiscard]] int cellPixels() const { return m_cellPixels; }

    /// Cells that the present tool changes when it is drawn from one cell to another.
    [[nodiscard]] QVector<QPoint> cellsOfStroke(const QPoint &from, const QPoint &to) const;

    /// One stroke of the present tool: begin() keeps what undo brings back, paint() changes the cells.
    void beginStroke();
    void paint(const QVector<QPoint> &cells);

Q_SIGNALS:
    /// Anything but cells changed: lists, fields, tools, view.
    void changed();
    /// The person has made a new project, to stand in the folder @p name inside of @p location. It is open.
    void created(const QString &location, const QString &name);
    /// Cells of the map on show changed.
    void cellsChanged();

private:
    struct OpenMap
    {
        GameMap map;
        QVector<GameMap::Layers> undo;
        QVector<GameMap::Layers> redo;
    };

    bool runView(const QString &command);
    void runMap(const QString &command);
    void runDialog(const QString &command);
    void selectMap(int row);
    /// Makes the draft a copy of the map on show, so that the dialog never shows another one.
    void editMap();
    void acceptMap();
    void create();
    void replace(ProjectContents contents);
    void addMap(GameMap map);
    void swapLayers(QVector<GameMap::Layers> &from, QVector<GameMap::Layers> &to);
    [[nodiscard]] QString status() const;
    [[nodiscard]] OpenMap *current();

    ProjectData m_data;
    bool m_open = false;
    bool m_modified = false;
    QString m_name;
    QVector<OpenMap> m_maps;
    int m_currentMap = -1;
    /// Of the lists that come from data files, by source.
    QMap<QString, QStringList> m_names;
    QMap<QString, int> m_nameRows;
    int m_tileTab = 0;
    int m_tile = 0;
    Tool m_tool = Tool::kPencil;
    int m_layer = 0;
    bool m_eventMode = false;
    bool m_grid = false;
    int m_cellPixels = 32;
    /// Drafts of the dialogs.
    QString m_newName;
    QString m_newLocation;
    GameMap m_draft;
    /// Kept apart from the draft until it is accepted: a number half typed must not cut the map.
    QSize m_draftSize;
    bool m_draftIsNew = false;
    int m_draftTileSet = 0;
    int m_sampleMap = 0;
};
