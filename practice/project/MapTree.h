#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>
#include <QVector>

/// The list of a project's maps, the data file "data/MapInfos.json": which there are, and which belongs to
/// which. The numbers of maps are their places in the list, from 1.
class MapTree
{
public:
    struct Entry
    {
        int number = 0;
        QString name;
        /// Depth in the tree, 0 at the top.
        int level = 0;
    };

    /// Name of the data file.
    static QString file();
    /// Name of the data file of the map with this number.
    static QString fileOf(int number);

    /// A tree without maps.
    MapTree();
    explicit MapTree(const QJsonValue &file);

    [[nodiscard]] QJsonValue toFile() const { return m_infos; }

    /// All maps, each behind the one it belongs to; on top where that one is not there. A map that belongs to
    /// itself, by way of others or not, is left out.
    [[nodiscard]] QVector<Entry> entries() const;

    /// Adds a map behind all others and gives its number; it belongs to @p parent, 0 for none.
    int append(const QString &name, int parent);
    /// Adds a map beside @p neighbour, behind it and those that belong to it, and gives its number. Without a
    /// neighbour, 0, it comes last.
    int insertBehind(int neighbour, const QString &name);
    /// Takes a map out; those that belong to it belong to its parent then.
    void remove(int number);

private:
    void appendBelow(int parent, int level, QVector<Entry> *entries) const;
    /// Number of the map that a map belongs to, 0 where there is none.
    [[nodiscard]] int parentOf(int number) const;
    [[nodiscard]] int valueOf(int number, const char *member) const;
    void setValue(int number, const char *member, int value);
    [[nodiscard]] int lastOrder() const;
    int add(const QString &name, int parent, int order);

    QJsonArray m_infos;
};
