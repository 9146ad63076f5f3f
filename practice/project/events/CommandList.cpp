#include "project/events/CommandList.h"

#include "project/events/CommandBlock.h"

namespace {

QJsonObject indented(const QJsonValue &entry, int by)
{
    QJsonObject moved = entry.toObject();
    const QString member = QStringLiteral("indent");
    moved.insert(member, moved.value(member).toInt() + by);
    return moved;
}

QJsonArray indented(const QJsonArray &entries, int by)
{
    QJsonArray moved;
    for (const QJsonValue &entry : entries) {
        moved.append(indented(entry, by));
    }
    return moved;
}

} // namespace

CommandList::CommandList(const EventCommands *table, const QJsonArray &entries)
    : m_table(table)
    , m_entries(entries)
{
    findHeads();
}

int CommandList::codeAt(int place) const
{
    return m_entries.at(place)[QLatin1String("code")].toInt();
}

int CommandList::indentAt(int place) const
{
    return m_entries.at(place)[QLatin1String("indent")].toInt();
}

const EventCommands::Command *CommandList::commandAt(int place) const
{
    return m_table->find(codeAt(place));
}

void CommandList::findHeads()
{
    m_heads.fill(-1, int(m_entries.size()));
    for (int place = 0; place < m_heads.size(); ++place) {
        if (m_heads.at(place) >= 0) {
            continue;
        }
        m_heads[place] = place;
        const int end = behind(place);
        for (int part = place + 1; part < end; ++part) {
            if (indentAt(part) == indentAt(place)) {
                m_heads[part] = place;
            }
        }
    }
}

int CommandList::behindFollowUps(int place) const
{
    const EventCommands::Command *command = commandAt(place);
    int at = place + 1;
    while (command != nullptr && command->followUp() != 0 && at < m_entries.size() &&
           codeAt(at) == command->followUp() && indentAt(at) == indentAt(place)) {
        ++at;
    }
    return at;
}

int CommandList::behind(int place) const
{
    const EventCommands::Command *command = commandAt(place);
    const QVector<int> markers = command != nullptr ? command->markers() : QVector<int>();
    const int end = command != nullptr ? command->branches.end : EventCommands::kEnd;
    int at = behindFollowUps(place);
    // What is indented further belongs to it, even to a command that nobody knows.
    while (at < m_entries.size() && codeAt(place) != EventCommands::kEnd) {
        const bool isMarker = indentAt(at) == indentAt(place) && markers.contains(codeAt(at));
        if (indentAt(at) <= indentAt(place) && !isMarker) {
            break;
        }
        ++at;
        if (isMarker && codeAt(at - 1) == end) {
            break;
        }
    }
    return at;
}

QVector<int> CommandList::rows() const
{
    QVector<int> rows;
    for (int place = 0; place < m_heads.size(); ++place) {
        const int head = m_heads.at(place);
        if (place == head || place >= behindFollowUps(head)) {
            rows.append(place);
        }
    }
    return rows;
}

int CommandList::head(int place) const
{
    return m_heads.value(place, -1);
}

bool CommandList::isCommand(int place) const
{
    return place >= 0 && head(place) == place && codeAt(place) != EventCommands::kEnd;
}

QJsonObject CommandList::newForm(const EventCommands &table, int code)
{
    const EventCommands::Command *command = table.find(code);
    return command != nullptr ? CommandBlock::form(table, {CommandBlock::entry(code, 0, command->parameters)})
                              : QJsonObject();
}

QJsonObject CommandList::form(int place) const
{
    const int first = head(place);
    return first >= 0 ? CommandBlock::form(*m_table, slice(first, behind(first))) : QJsonObject();
}

QJsonObject CommandList::formOfEntry(int place) const
{
    return CommandBlock::form(*m_table, slice(place, place + 1));
}

CommandList::Spot CommandList::spotAt(int place) const
{
    const int first = head(place);
    if (first < 0) {
        const bool hasEnd = !m_entries.isEmpty() && codeAt(int(m_entries.size()) - 1) == EventCommands::kEnd;
        return {int(m_entries.size()) - (hasEnd ? 1 : 0), 0};
    }
    const int indent = indentAt(first);
    if (first == place || place < behindFollowUps(first)) {
        return {first, indent};
    }
    const bool endsIt = codeAt(place) == commandAt(first)->branches.end;
    return {place + 1, endsIt ? indent : indent + 1};
}

int CommandList::insert(int place, const QJsonObject &form)
{
    const Spot spot = spotAt(place);
    splice(spot.place, spot.place, CommandBlock::made(*m_table, form, spot.indent, {}));
    return spot.place;
}

void CommandList::change(int place, const QJsonObject &form)
{
    const int first = head(place);
    if (first >= 0 && isCommand(first)) {
        const int end = behind(first);
        splice(first, end, CommandBlock::made(*m_table, form, indentAt(first), slice(first, end)));
    }
}

void CommandList::remove(int place)
{
    if (isCommand(place)) {
        splice(place, behind(place), {});
    }
}

QJsonArray CommandList::block(int place) const
{
    return isCommand(place) ? indented(slice(place, behind(place)), -indentAt(place)) : QJsonArray();
}

int CommandList::paste(int place, const QJsonArray &block)
{
    const Spot spot = spotAt(place);
    splice(spot.place, spot.place, indented(block, spot.indent));
    return spot.place;
}

QJsonArray CommandList::slice(int from, int to) const
{
    QJsonArray part;
    for (int place = from; place < to; ++place) {
        part.append(m_entries.at(place));
    }
    return part;
}

void CommandList::splice(int from, int to, const QJsonArray &entries)
{
    QJsonArray all = slice(0, from);
    for (const QJsonValue &entry : entries) {
        all.append(entry);
    }
    const QJsonArray rest = slice(to, int(m_entries.size()));
    for (const QJsonValue &entry : rest) {
        all.append(entry);
    }
    const QJsonValue last = all.last();
    if (all.isEmpty() || last[QLatin1String("code")].toInt() != EventCommands::kEnd ||
        last[QLatin1String("indent")].toInt() != 0) {
        all.append(CommandBlock::entry(EventCommands::kEnd, 0));
    }
    m_entries = all;
    findHeads();
}
