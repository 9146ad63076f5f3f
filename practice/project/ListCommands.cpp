#include "project/ListCommands.h"

#include "project/JsonPointer.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

const QLatin1String kId("id");

/// How far beside each other entries with a place are put, and how many of them find one.
constexpr int kApart = 80;
constexpr int kMostApart = 6;

QString entryRoot()
{
    return QStringLiteral("entry");
}

QString countedRoot()
{
    return QStringLiteral("counted");
}

/// "traits" for "data/Weapons/{weapons}/traits": what the entries of a list are.
QString kindOf(const QString &path)
{
    const QStringList words = path.split(QLatin1Char('/'));
    for (auto word = words.crbegin(); word != words.crend(); ++word) {
        if (!word->contains(QLatin1Char('{'))) {
            return *word;
        }
    }
    return path;
}

/// A value of the same form with nothing in it.
QJsonValue emptied(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return false;
    case QJsonValue::Double:
        return 0;
    case QJsonValue::String:
        return QString();
    case QJsonValue::Array:
        return QJsonArray();
    case QJsonValue::Object: {
        QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            member.value() = emptied(member.value());
        }
        return object;
    }
    default:
        return value;
    }
}

/// Whether there is anything in the entry besides its number.
bool isFilled(const QJsonValue &entry)
{
    QJsonObject object = entry.toObject();
    object.remove(kId);
    return entry.isObject() ? emptied(object) != object : emptied(entry) != entry;
}

} // namespace

struct ListCommands::List
{
    QString path;
    DataPlace place;
    QJsonArray entries;
    /// Of the selected entry; -1 for none.
    int selected = -1;

    [[nodiscard]] bool hasIds() const { return !entries.isEmpty() && entries.at(0).isNull(); }
    [[nodiscard]] int first() const { return hasIds() ? 1 : 0; }
    [[nodiscard]] DataPlace placeOf(int number) const
    {
        return {place.file, place.pointer + QLatin1Char('/') + QString::number(number)};
    }

    /// A new entry for the place @p number: @p wished, or one that is like the last but empty.
    [[nodiscard]] QJsonValue fresh(const QJsonValue &wished, int number) const
    {
        const QJsonValue last = entries.isEmpty() ? QJsonValue() : entries.at(entries.size() - 1);
        QJsonValue entry = wished;
        if (entry.isUndefined()) {
            entry = last.isNull() ? QJsonValue(QString()) : emptied(last);
        }
        return withId(entry, number, last);
    }

    /// @p entry under the number @p number: with that as its id, where it or @p neighbour has one.
    [[nodiscard]] static QJsonValue withId(const QJsonValue &entry, int number, const QJsonValue &neighbour)
    {
        QJsonObject object = entry.toObject();
        if (!entry.isObject() || !(object.contains(kId) || neighbour.toObject().contains(kId))) {
            return entry;
        }
        object.insert(kId, number);
        return object;
    }
};

ListCommands::ListCommands(const RowSources *sources)
    : m_sources(sources)
{
}

void ListCommands::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    addCommand(commands, "list.add", &ListCommands::add, &ListCommands::canAdd);
    addCommand(commands, "list.addApart", &ListCommands::addApart, &ListCommands::canAdd);
    addCommand(commands, "list.remove", &ListCommands::remove, &ListCommands::hasEntry);
    addCommand(commands, "list.copy", &ListCommands::copy, &ListCommands::hasEntry);
    addCommand(commands, "list.paste", &ListCommands::paste, &ListCommands::canPaste);
    addCommand(commands, "list.up", &ListCommands::moveUp, &ListCommands::canMoveUp);
    addCommand(commands, "list.down", &ListCommands::moveDown, &ListCommands::canMoveDown);
    addCommand(commands, "list.edit", &ListCommands::edit, &ListCommands::hasEntry);
    addCommand(commands, "list.count", &ListCommands::count, &ListCommands::isThere);
    addCommand(commands, "list.resize", &ListCommands::resize, &ListCommands::isThere);
    fields.add(
        QStringLiteral("list.count"), [this](const DataLayer & /*layer*/) { return m_count; },
        [this](DataLayer & /*layer*/, const QVariant &value) { m_count = value.toInt(); });
    const auto keep = [](DataLayer & /*layer*/, const QVariant & /*value*/) {
    };
    fields.add(
        QStringLiteral("list.lost"), [this](const DataLayer &layer) { return lost(layer); }, keep);
    fields.add(
        QStringLiteral("list.loses"), [this](const DataLayer &layer) { return lost(layer) > 0; }, keep);
    for (const QString &root : {entryRoot(), countedRoot()}) {
        sources.addRoot(root, [root](const DataLayer &layer) { return layer.mark(root); });
    }
}

void ListCommands::addTo(StateParts &states)
{
    const QString entry = QStringLiteral("entry");
    const QString from = QStringLiteral("from");
    states.addCopied(
        QStringLiteral("copiedEntry"),
        [this, entry, from] {
            QJsonObject copied{{from, m_copiedFrom}};
            if (!m_copied.isUndefined()) {
                copied.insert(entry, m_copied);
            }
            return copied;
        },
        [this, entry, from](const QJsonValue &value) {
            if (value.isObject()) {
                m_copied = value.toObject().value(entry);
                m_copiedFrom = value.toObject().value(from).toString();
            }
        });
}

void ListCommands::addCommand(Commands &commands, const char *name, Change change, Can can)
{
    const Commands::RunWithArgument run = [this, change, can](DataLayer &layer, const CommandCall &call) {
        std::optional<List> found = list(call.argument, layer);
        if (found && (this->*can)(*found)) {
            (this->*change)(*found, call, layer);
        }
    };
    commands.add(QString::fromLatin1(name), run, {},
                 [this, can](const DataLayer &layer, const QString &argument) {
                     const std::optional<List> found = list(argument, layer);
                     return found && (this->*can)(*found);
                 });
}

std::optional<ListCommands::List> ListCommands::list(const QString &path, const DataLayer &layer) const
{
    const std::optional<DataPlace> place = m_sources->place(path, layer);
    if (!place || layer.file(place->file).isUndefined()) {
        return std::nullopt;
    }
    return List{path, *place, layer.value(place->file, place->pointer).toArray(),
                m_sources->number(path, layer)};
}

void ListCommands::write(const List &list, int number, DataLayer &layer) const
{
    const std::optional<QJsonValue> file =
        JsonPointer::withWay(layer.file(list.place.file), list.place.pointer, list.entries);
    if (!file) {
        return;
    }
    // Without a key, so that it never joins the step before: two entries that are added are two steps.
    layer.change({{list.place.file, *file}}, QString());
    layer.select(list.path, number);
}

void ListCommands::add(List &list, const CommandCall &call, DataLayer &layer)
{
    const int number = list.hasIds() ? int(list.entries.size()) : list.selected + 1;
    list.entries.insert(number, list.fresh(call.entry, number));
    write(list, number, layer);
    layer.setMark(entryRoot(), list.placeOf(number));
}

void ListCommands::addApart(List &list, const CommandCall &call, DataLayer &layer)
{
    QJsonObject entry = call.entry.toObject();
    const auto isAmong = [&list, &entry](const QStringList &members) {
        return std::any_of(list.entries.cbegin(), list.entries.cend(), [&](const QJsonValue &other) {
            return std::all_of(members.cbegin(), members.cend(),
                               [&](const QString &member) { return other[member] == entry.value(member); });
        });
    };
    const QString kX = QStringLiteral("x");
    const int middle = entry.value(kX).toInt();
    for (int number = 1; entry.contains(kX) && isAmong({kX, QStringLiteral("y")}) && number <= kMostApart;
         ++number) {
        const int steps = number % 2 == 1 ? (number + 1) / 2 : -number / 2;
        entry.insert(kX, middle + steps * kApart);
    }
    const QString kActor = QStringLiteral("actorId");
    const int actors = int(layer.file(QStringLiteral("data/Actors.json")).toArray().size());
    for (int actor = 1; entry.contains(kActor) && isAmong({kActor}) && actor < actors; ++actor) {
        entry.insert(kActor, actor);
    }
    QJsonValue other = call.entry.isObject() ? QJsonValue(entry) : call.entry;
    for (int actor = 1; other.isDouble() && list.entries.contains(other) && actor < actors; ++actor) {
        other = actor;
    }
    add(list, {call.argument, other}, layer);
}

void ListCommands::remove(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    if (list.hasIds()) {
        const QJsonValue old = list.entries.at(list.selected);
        const bool isLast = list.selected == list.entries.size() - 1 && list.selected > list.first();
        if (isLast && !isFilled(old)) {
            list.entries.removeLast();
            --list.selected;
        } else {
            list.entries.replace(list.selected, List::withId(emptied(old), list.selected, old));
        }
    } else {
        list.entries.removeAt(list.selected);
    }
    write(list, list.selected, layer);
}

void ListCommands::copy(List &list, const CommandCall & /*call*/, DataLayer & /*layer*/)
{
    m_copied = list.entries.at(list.selected);
    m_copiedFrom = kindOf(list.path);
}

void ListCommands::paste(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    const int number = list.hasIds() ? list.selected : list.selected + 1;
    if (list.hasIds()) {
        list.entries.replace(number, List::withId(m_copied, number, list.entries.at(number)));
    } else {
        list.entries.insert(number, m_copied);
    }
    write(list, number, layer);
}

void ListCommands::moveUp(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    list.entries.insert(list.selected - 1, list.entries.takeAt(list.selected));
    write(list, list.selected - 1, layer);
}

void ListCommands::moveDown(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    list.entries.insert(list.selected + 1, list.entries.takeAt(list.selected));
    write(list, list.selected + 1, layer);
}

void ListCommands::edit(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    layer.setMark(entryRoot(), list.placeOf(list.selected));
}

void ListCommands::count(List &list, const CommandCall & /*call*/, DataLayer &layer)
{
    m_count = int(list.entries.size()) - list.first();
    layer.setMark(countedRoot(), list.place);
}

void ListCommands::resize(List &list, const CommandCall &call, DataLayer &layer)
{
    const int first = list.first();
    const int size = qMax(0, m_count) + first;
    while (list.entries.size() > size) {
        list.entries.removeLast();
    }
    while (list.entries.size() < size) {
        list.entries.append(list.fresh(call.entry, int(list.entries.size())));
    }
    write(list, qBound(first, list.selected, qMax(first, size - 1)), layer);
}

int ListCommands::lost(const DataLayer &layer) const
{
    const std::optional<DataPlace> place = layer.mark(countedRoot());
    if (!place) {
        return 0;
    }
    const QJsonArray entries = layer.value(place->file, place->pointer).toArray();
    const int first = !entries.isEmpty() && entries.at(0).isNull() ? 1 : 0;
    const int kept = qMin(int(entries.size()), qMax(0, m_count) + first);
    return int(std::count_if(entries.cbegin() + kept, entries.cend(), &isFilled));
}

bool ListCommands::canAdd(const List &list) const
{
    return !list.hasIds() || list.entries.size() - list.first() < kMost;
}

bool ListCommands::isThere(const List & /*list*/) const
{
    return true;
}

bool ListCommands::hasEntry(const List &list) const
{
    return list.selected >= 0 && list.selected < list.entries.size();
}

bool ListCommands::canPaste(const List &list) const
{
    return !m_copied.isUndefined() && m_copiedFrom == kindOf(list.path) && (!list.hasIds() || hasEntry(list));
}

bool ListCommands::canMoveUp(const List &list) const
{
    return hasEntry(list) && !list.hasIds() && list.selected > 0;
}

bool ListCommands::canMoveDown(const List &list) const
{
    return hasEntry(list) && !list.hasIds() && list.selected + 1 < list.entries.size();
}
