#include "project/MapTree.h"

#include <QJsonObject>

#include <algorithm>

QString MapTree::file()
{
    return QStringLiteral("data/MapInfos.json");
}

QString MapTree::fileOf(int number)
{
    return QStringLiteral("data/Map%1.json").arg(number, 3, 10, QLatin1Char('0'));
}

MapTree::MapTree()
    : m_infos{QJsonValue()}
{
}

MapTree::MapTree(const QJsonValue &file)
    : m_infos(file.toArray())
{
}

QVector<MapTree::Entry> MapTree::entries() const
{
    QVector<Entry> entries;
    // Each map is reached once: it has one parent, and the walk begins at none.
    appendBelow(0, 0, &entries);
    return entries;
}

void MapTree::appendBelow(int parent, int level, QVector<Entry> *entries) const
{
    QVector<int> children;
    for (int number = 1; number < m_infos.size(); ++number) {
        // An entry that is no object has no number of its own.
        if (valueOf(number, "id") == number && parentOf(number) == parent) {
            children.append(number);
        }
    }
    std::stable_sort(children.begin(), children.end(), [this](int left, int right) {
        return valueOf(left, "order") < valueOf(right, "order");
    });
    for (const int number : qAsConst(children)) {
        entries->append({number, m_infos.at(number)[QLatin1String("name")].toString(), level});
        appendBelow(number, level + 1, entries);
    }
}

int MapTree::append(const QString &name, int parent)
{
    return add(name, parent, lastOrder() + 1);
}

int MapTree::insertBehind(int neighbour, const QString &name)
{
    const QVector<Entry> all = entries();
    const auto isNeighbour = [neighbour](const Entry &entry) {
        return entry.number == neighbour;
    };
    const auto found = std::find_if(all.begin(), all.end(), isNeighbour);
    if (found == all.end()) {
        return append(name, 0);
    }
    int order = valueOf(neighbour, "order");
    for (auto below = found + 1; below != all.end() && below->level > found->level; ++below) {
        order = qMax(order, valueOf(below->number, "order"));
    }
    for (int number = 1; number < m_infos.size(); ++number) {
        if (m_infos.at(number).isObject() && valueOf(number, "order") > order) {
            setValue(number, "order", valueOf(number, "order") + 1);
        }
    }
    return add(name, parentOf(neighbour), order + 1);
}

void MapTree::remove(int number)
{
    if (number < 1 || number >= m_infos.size()) {
        return;
    }
    const int parent = parentOf(number);
    for (int child = 1; child < m_infos.size(); ++child) {
        if (m_infos.at(child).isObject() && valueOf(child, "parentId") == number) {
            setValue(child, "parentId", parent);
        }
    }
    m_infos.replace(number, QJsonValue());
}

int MapTree::parentOf(int number) const
{
    const int parent = valueOf(number, "parentId");
    return parent > 0 && valueOf(parent, "id") == parent ? parent : 0;
}

int MapTree::valueOf(int number, const char *member) const
{
    return m_infos.at(number)[QLatin1String(member)].toInt();
}

void MapTree::setValue(int number, const char *member, int value)
{
    QJsonObject info = m_infos.at(number).toObject();
    info.insert(QLatin1String(member), value);
    m_infos.replace(number, info);
}

int MapTree::lastOrder() const
{
    int last = 0;
    for (int number = 1; number < m_infos.size(); ++number) {
        last = qMax(last, valueOf(number, "order"));
    }
    return last;
}

int MapTree::add(const QString &name, int parent, int order)
{
    if (m_infos.isEmpty()) {
        m_infos.append(QJsonValue());
    }
    const int number = int(m_infos.size());
    m_infos.append(QJsonObject{{QStringLiteral("id"), number},
                               {QStringLiteral("name"), name},
                               {QStringLiteral("parentId"), parent},
                               {QStringLiteral("order"), order},
                               {QStringLiteral("expanded"), true}});
    return number;
}
