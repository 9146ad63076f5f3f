#include "project/RowSources.h"

#include <QJsonArray>
#include <QJsonObject>

#include <utility>

namespace {

/// A list whose first entry is null counts from 1.
int firstNumber(const QJsonArray &list)
{
    return !list.isEmpty() && list.at(0).isNull() ? 1 : 0;
}

QVector<Row> rowsOf(const QJsonArray &list)
{
    QVector<Row> rows;
    for (int number = firstNumber(list); number < list.size(); ++number) {
        const QJsonValue entry = list.at(number);
        if (entry.isNull()) {
            continue;
        }
        const QString name = entry.toObject().value(QLatin1String("name")).toString();
        rows.append({entry.isString() ? entry.toString() : name, number});
    }
    return rows;
}

} // namespace

QString namelessText(int number)
{
    return QStringLiteral("%1:").arg(number);
}

void RowSources::add(const QString &name, Rows rows)
{
    m_sources.insert(name, {std::move(rows), {}, {}});
    m_ways.clear();
}

void RowSources::add(const QString &name, Rows rows, Current current, SetCurrent setCurrent)
{
    add(
        name, std::move(rows),
        [current = std::move(current)](const DataLayer & /*layer*/) { return current(); },
        [setCurrent = std::move(setCurrent)](int row, DataLayer & /*layer*/) { setCurrent(row); });
}

void RowSources::add(const QString &name, Rows rows, CurrentIn current, SetCurrentIn setCurrent)
{
    m_sources.insert(name, {std::move(rows), std::move(current), std::move(setCurrent)});
    m_ways.clear();
}

void RowSources::addTabs(const QString &name, int count)
{
    if (m_sources.contains(name)) {
        return;
    }
    add(name, [count](const DataLayer & /*layer*/) {
        QVector<Row> rows;
        for (int tab = 0; tab < count; ++tab) {
            rows.append({QString(), tab});
        }
        return rows;
    });
}

void RowSources::addFamily(const QString &name, const RowsOf &rows)
{
    m_families.insert(name, rows);
}

std::optional<QString> RowSources::argumentOf(const QString &name) const
{
    const int blank = int(name.indexOf(QLatin1Char(' ')));
    return blank > 0 && m_families.contains(name.left(blank)) ? std::optional(name.mid(blank + 1))
                                                              : std::nullopt;
}

void RowSources::addRoot(const QString &name, const Root &root)
{
    m_roots.insert(name, root);
    m_ways.clear();
}

bool RowSources::isPath(const QString &text) const
{
    return !m_sources.contains(text) && DataPath::isPath(text, m_roots.keys());
}

QString RowSources::problemOfPath(const QString &path) const
{
    return way(path).problem();
}

QString RowSources::problemOf(const QString &name) const
{
    if (const std::optional<QString> argument = argumentOf(name)) {
        return problemOfPath(*argument);
    }
    if (isPath(name)) {
        return problemOfPath(name);
    }
    return m_sources.contains(name)
               ? QString()
               : QStringLiteral("\"%1\" is unknown; use the path of a list in a data file, "
                                "such as data/Items, or one of: %2")
                     .arg(name, names().join(QStringLiteral(", ")));
}

QVector<Row> RowSources::rows(const QString &name, const DataLayer &layer) const
{
    const auto source = m_sources.constFind(name);
    if (source != m_sources.constEnd()) {
        return source->rows(layer);
    }
    if (const std::optional<QString> argument = argumentOf(name)) {
        return m_families.value(name.section(QLatin1Char(' '), 0, 0))(*argument, layer);
    }
    const std::optional<DataPlace> list = place(name, layer);
    return list ? rowsOf(layer.value(list->file, list->pointer).toArray()) : QVector<Row>();
}

int RowSources::currentRow(const QString &name, const DataLayer &layer) const
{
    const auto source = m_sources.constFind(name);
    if (source != m_sources.constEnd() && source->current) {
        return source->current(layer);
    }
    const QVector<Row> all = rows(name, layer);
    const int selected = layer.selected(name);
    int nearest = all.isEmpty() ? -1 : 0;
    for (int row = 0; row < all.size(); ++row) {
        if (all.at(row).number == selected) {
            return row;
        }
        if (all.at(row).number < selected) {
            nearest = row;
        }
    }
    return nearest;
}

void RowSources::setCurrentRow(const QString &name, int row, DataLayer &layer) const
{
    const auto source = m_sources.constFind(name);
    if (source != m_sources.constEnd() && source->setCurrent) {
        source->setCurrent(row, layer);
        return;
    }
    const QVector<Row> all = rows(name, layer);
    if (!all.isEmpty()) {
        layer.select(name, all.at(qBound(0, row, int(all.size()) - 1)).number);
    }
}

int RowSources::number(const QString &name, const DataLayer &layer) const
{
    // What windows ask most of all, and no rows are needed for it: whether the selected entry is still there.
    const int selected = layer.selected(name);
    if (selected >= 0 && isPath(name)) {
        const QJsonValue chosen = entry(name, selected, layer);
        if (!chosen.isUndefined() && !chosen.isNull()) {
            return selected;
        }
    }
    const int row = currentRow(name, layer);
    const QVector<Row> all = rows(name, layer);
    return row >= 0 && row < all.size() ? all.at(row).number : -1;
}

DataPath RowSources::way(const QString &path) const
{
    const auto known = m_ways.constFind(path);
    if (known != m_ways.constEnd()) {
        return *known;
    }
    return *m_ways.insert(path, DataPath(path, names(), m_roots.keys()));
}

std::optional<DataPlace> RowSources::place(const QString &path, const DataLayer &layer) const
{
    // A list with a name of its own may be a path, too.
    if (!DataPath::isPath(path, m_roots.keys())) {
        return std::nullopt;
    }
    const DataPath found = way(path);
    const std::optional<DataPlace> base =
        found.root().isEmpty() ? DataPlace() : m_roots.value(found.root())(layer);
    if (!base) {
        return std::nullopt;
    }
    return found.place([this, &layer](const QString &list) { return number(list, layer); }, *base);
}

QJsonValue RowSources::entry(const QString &path, int number, const DataLayer &layer) const
{
    const std::optional<DataPlace> list = place(path, layer);
    return list ? layer.value(list->file, QStringLiteral("%1/%2").arg(list->pointer, QString::number(number)))
                : QJsonValue(QJsonValue::Undefined);
}
