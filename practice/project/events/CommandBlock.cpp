#include "project/events/CommandBlock.h"

#include <algorithm>

namespace {

/// Parameters of a command that stand for the first of its entries: kind, number, kind of price, price.
constexpr int kEntrySize = 4;

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

int codeOf(const QJsonValue &entry)
{
    return entry[QLatin1String("code")].toInt();
}

int indentOf(const QJsonValue &entry)
{
    return entry[QLatin1String("indent")].toInt();
}

QJsonArray parametersOf(const QJsonValue &entry)
{
    return entry[QLatin1String("parameters")].toArray();
}

QJsonObject withParameters(const QJsonValue &entry, const QJsonArray &parameters)
{
    QJsonObject changed = entry.toObject();
    changed.insert(str("parameters"), parameters);
    return changed;
}

QJsonArray first(const QJsonArray &values, int count)
{
    QJsonArray some;
    for (int i = 0; i < qMin(count, int(values.size())); ++i) {
        some.append(values.at(i));
    }
    return some;
}

/// What belongs to a command, cut into its pieces.
struct Parts
{
    QJsonArray followUps;
    /// What stands right behind the command.
    QJsonArray body;
    struct Branch
    {
        QJsonValue marker;
        QJsonArray body;
    };
    QVector<Branch> branches;
    QJsonValue end;
};

Parts partsOf(const EventCommands::Command *command, const QJsonArray &entries)
{
    Parts parts;
    if (entries.isEmpty() || command == nullptr) {
        return parts;
    }
    const int indent = indentOf(entries.at(0));
    int at = 1;
    while (at < entries.size() && command->followUp() != 0 && codeOf(entries.at(at)) == command->followUp() &&
           indentOf(entries.at(at)) == indent) {
        parts.followUps.append(entries.at(at++));
    }
    for (; at < entries.size(); ++at) {
        const QJsonValue entry = entries.at(at);
        if (indentOf(entry) > indent) {
            QJsonArray &body = parts.branches.isEmpty() ? parts.body : parts.branches.last().body;
            body.append(entry);
        } else if (codeOf(entry) == command->branches.end) {
            parts.end = entry;
        } else {
            parts.branches.append({entry, {}});
        }
    }
    return parts;
}

QString linesOf(const QJsonArray &followUps)
{
    QStringList lines;
    for (const QJsonValue &line : followUps) {
        lines.append(parametersOf(line).at(0).toString());
    }
    return lines.join(QLatin1Char('\n'));
}

/// The entries of a shop: what the command itself says is the first one. A number 0 means nothing.
QJsonArray goodsOf(const QJsonArray &parameters, const QJsonArray &followUps)
{
    QJsonArray goods;
    if (parameters.at(1).toInt() != 0 || !followUps.isEmpty()) {
        goods.append(first(parameters, kEntrySize));
    }
    for (const QJsonValue &entry : followUps) {
        goods.append(parametersOf(entry));
    }
    return goods;
}

/// What stands for nothing beside a value of this type.
QJsonValue nothingLike(const QJsonValue &value)
{
    return value.isString() ? QJsonValue(QString()) : value.isBool() ? QJsonValue(false) : QJsonValue(0);
}

QJsonArray withoutEmptyEnd(QJsonArray texts)
{
    while (!texts.isEmpty() && texts.at(texts.size() - 1).toString().isEmpty()) {
        texts.removeLast();
    }
    return texts;
}

/// The form's parameters over those from before, of which it may have fewer.
QJsonArray parametersFrom(const EventCommands::Command *command, const QJsonObject &form,
                          QJsonArray parameters)
{
    for (auto member = form.begin(); member != form.end(); ++member) {
        bool isNumber = false;
        const int number = member.key().toInt(&isNumber);
        if (!isNumber || number < 0) {
            continue;
        }
        while (parameters.size() <= number) {
            parameters.append(nothingLike(member.value()));
        }
        parameters.replace(number, member.value());
    }
    if (command != nullptr && command->branches.areChoices && !parameters.isEmpty()) {
        parameters.replace(0, withoutEmptyEnd(parameters.at(0).toArray()));
    }
    if (command != nullptr && command->isRange && form.value(str("single")).toBool()) {
        parameters.replace(1, parameters.at(0));
    }
    if (command == nullptr || command->entries == 0) {
        return parameters;
    }
    const QJsonArray head = form.value(str("entries")).toArray().at(0).toArray();
    for (int i = 0; i < kEntrySize && i < parameters.size(); ++i) {
        parameters.replace(i, head.isEmpty() ? QJsonValue(0) : head.at(i));
    }
    return parameters;
}

/// The entries that follow the command. Those that say the same as before are the same.
QJsonArray followUpsFrom(const EventCommands::Command &command, const QJsonObject &form, int indent,
                         const Parts &before)
{
    QVector<QJsonArray> wanted;
    const QString lines = form.value(str("lines")).toString();
    if (command.lines != 0 && lines == linesOf(before.followUps)) {
        return before.followUps;
    }
    if (command.lines != 0 && !lines.isEmpty()) {
        const QStringList texts = lines.split(QLatin1Char('\n'));
        for (const QString &line : texts) {
            wanted.append(QJsonArray{line});
        }
    }
    if (command.entries != 0) {
        const QJsonArray goods = form.value(str("entries")).toArray();
        for (int i = 1; i < goods.size(); ++i) {
            wanted.append(goods.at(i).toArray());
        }
    }
    QJsonArray made;
    for (int i = 0; i < wanted.size(); ++i) {
        made.append(i < before.followUps.size()
                        ? withParameters(before.followUps.at(i), wanted.at(i))
                        : CommandBlock::entry(command.followUp(), indent, wanted.at(i)));
    }
    return made;
}

/// The entries ahead of each list that the command is to have, without those lists.
QVector<QJsonObject> markersFrom(const EventCommands::Branches &branches, const QJsonObject &form, int indent,
                                 const QJsonArray &parameters)
{
    using CommandBlock::entry;
    QVector<QJsonObject> markers;
    if (branches.areChoices) {
        const QJsonArray texts = parameters.at(0).toArray();
        for (int i = 0; i < texts.size(); ++i) {
            markers.append(entry(EventCommands::kChoice, indent, {i, texts.at(i)}));
        }
        if (parameters.at(1).toInt() == EventCommands::kWayOut) {
            markers.append(entry(EventCommands::kCancelled, indent));
        }
    }
    if (branches.otherwise != 0 && form.value(str("else")).toBool()) {
        markers.append(entry(branches.otherwise, indent));
    }
    bool isAnyThere = false;
    for (const EventCommands::Outcome &outcome : branches.outcomes) {
        isAnyThere = isAnyThere || parameters.at(outcome.when).toBool();
    }
    for (const EventCommands::Outcome &outcome : branches.outcomes) {
        if (outcome.when == EventCommands::kAny ? isAnyThere : parameters.at(outcome.when).toBool()) {
            markers.append(entry(outcome.code, indent));
        }
    }
    return markers;
}

/// Whether both stand ahead of the same list of their command.
bool areTheSame(const QJsonValue &left, const QJsonValue &right)
{
    const bool isChoice = codeOf(left) == EventCommands::kChoice;
    return codeOf(left) == codeOf(right) &&
           (!isChoice || parametersOf(left).at(0) == parametersOf(right).at(0));
}

/// The entry as it was, but for the text of its choice.
QJsonObject kept(const QJsonValue &marker, const QJsonObject &wanted)
{
    if (codeOf(marker) != EventCommands::kChoice) {
        return marker.toObject();
    }
    QJsonArray parameters = parametersOf(marker);
    while (parameters.size() < 2) {
        parameters.append(QJsonValue());
    }
    parameters.replace(1, parametersOf(wanted).at(1));
    return withParameters(marker, parameters);
}

void append(QJsonArray *list, const QJsonArray &more)
{
    for (const QJsonValue &value : more) {
        list->append(value);
    }
}

} // namespace

namespace CommandBlock {

QJsonObject entry(int code, int indent, const QJsonArray &parameters)
{
    return {{str("code"), code}, {str("indent"), indent}, {str("parameters"), parameters}};
}

QJsonObject form(const EventCommands &table, const QJsonArray &entries)
{
    const int code = codeOf(entries.at(0));
    const EventCommands::Command *command = table.find(code);
    const QJsonArray parameters = parametersOf(entries.at(0));
    QJsonObject form{{str("code"), code}};
    for (int i = 0; i < parameters.size(); ++i) {
        form.insert(QString::number(i), parameters.at(i));
    }
    if (command == nullptr) {
        return form;
    }
    const Parts parts = partsOf(command, entries);
    if (command->lines != 0) {
        form.insert(str("lines"), linesOf(parts.followUps));
    }
    if (command->entries != 0) {
        form.insert(str("entries"), goodsOf(parameters, parts.followUps));
    }
    if (command->isRange) {
        form.insert(str("single"), parameters.at(0) == parameters.at(1));
    }
    if (command->branches.otherwise != 0) {
        form.insert(str("else"), !parts.branches.isEmpty());
    }
    return form;
}

QJsonArray made(const EventCommands &table, const QJsonObject &form, int indent, const QJsonArray &before)
{
    const int code = form.value(str("code")).toInt();
    const EventCommands::Command *command = table.find(code);
    QJsonObject head = before.isEmpty() ? entry(code, indent) : before.at(0).toObject();
    const QJsonArray parameters = parametersFrom(command, form, parametersOf(head));
    head.insert(str("parameters"), parameters);
    QJsonArray made{head};
    if (command == nullptr) {
        for (int i = 1; i < before.size(); ++i) {
            made.append(before.at(i));
        }
        return made;
    }
    const Parts parts = partsOf(command, before);
    append(&made, followUpsFrom(*command, form, indent, parts));
    const EventCommands::Branches &branches = command->branches;
    const QVector<QJsonObject> markers = markersFrom(branches, form, indent, parameters);
    if (branches.end == 0 || (markers.isEmpty() && !branches.outcomes.isEmpty())) {
        append(&made, parts.body);
        return made;
    }
    const QJsonArray nothing{entry(EventCommands::kEnd, indent + 1)};
    const bool beginsWithList = !branches.areChoices && branches.outcomes.isEmpty();
    append(&made, parts.body.isEmpty() && beginsWithList ? nothing : parts.body);
    for (const QJsonObject &marker : markers) {
        const auto isIt = [&marker](const Parts::Branch &branch) {
            return areTheSame(branch.marker, marker);
        };
        const auto old = std::find_if(parts.branches.cbegin(), parts.branches.cend(), isIt);
        const bool isOld = old != parts.branches.cend();
        made.append(isOld ? kept(old->marker, marker) : marker);
        append(&made, isOld ? old->body : nothing);
    }
    made.append(parts.end.isObject() ? parts.end : QJsonValue(entry(branches.end, indent)));
    return made;
}

} // namespace CommandBlock
