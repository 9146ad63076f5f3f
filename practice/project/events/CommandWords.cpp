#include "project/events/CommandWords.h"

#include "project/RowText.h"
#include "project/events/BattleEnemies.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// The form of the command that is edited, and which list is: both stand in drafts alone.
QString formFile()
{
    return str("command");
}

/// The form with a text for each of the fields for choices: what is typed behind a gap has its place then.
/// Those at the end that stay empty are dropped when the form is accepted.
QJsonObject typable(QJsonObject form)
{
    constexpr int kFields = 10;
    const QString first = str("0");
    QJsonArray texts = form.value(first).toArray();
    if (form.value(str("code")).toInt() == EventCommands::kChoices && form.value(first).isArray()) {
        while (texts.size() < kFields) {
            texts.append(QString());
        }
        form.insert(first, texts);
    }
    return form;
}

QString listFile()
{
    return str("commands");
}

QString codesSource()
{
    return str("commandsOfTab");
}

QString tabsSource()
{
    return str("commandTab");
}

QString entriesMember()
{
    return str("entries");
}

/// The name under which a list of commands is a list of rows.
QString sourceOf(const QString &path)
{
    return str("commands ") + path;
}

/// The enemies whom a command in a list can mean.
QString enemiesSource()
{
    return str("battleEnemies");
}

/// The same, and all of them at once.
QString enemiesOrAllSource()
{
    return str("battleEnemiesOrAll");
}

/// The text of a row whose enemies are those of the list at @p path, whichever list is edited.
QString withEnemiesOf(const QString &path, QString row)
{
    for (const QString &source : {enemiesSource(), enemiesOrAllSource()}) {
        row.replace(str(">%1}").arg(source), str(">%1 %2}").arg(source, path));
    }
    return row;
}

/// The form with lists of texts as one text each, and with the number of its entries.
QJsonObject inOneLine(QJsonObject form, const QString &separator)
{
    for (auto member = form.begin(); member != form.end(); ++member) {
        const QJsonArray list = member.value().toArray();
        QStringList texts;
        for (const QJsonValue &text : list) {
            texts.append(text.toString());
        }
        if (list.at(0).isString()) {
            member.value() = texts.join(separator);
        } else if (member.key() == entriesMember()) {
            member.value() = int(list.size());
        }
    }
    return form;
}

QString tabOf(const DataLayer &layer)
{
    return EventCommands::tabs().value(qMax(0, layer.selected(tabsSource())));
}

} // namespace

CommandWords::CommandWords(const StartData *start, const RowSources *sources)
    : m_start(start)
    , m_sources(sources)
{
}

void CommandWords::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    sources.addFamily(str("commands"),
                      [this](const QString &path, const DataLayer &layer) { return rows(path, layer); });
    commands.add(str("commands.of"), [](DataLayer &layer, const CommandCall &call) {
        const QJsonObject edited{{str("list"), call.argument}};
        if (layer.file(listFile()) != edited) {
            layer.change({{listFile(), edited}}, DataLayer::noStep());
        }
    });
    const auto isCommand = [this](const DataLayer &layer, const QString & /*argument*/) {
        return list(layer).isCommand(selected(layer));
    };
    commands.add(
        str("commands.remove"),
        [this](DataLayer &layer) {
            CommandList edited = list(layer);
            const int place = selected(layer);
            edited.remove(place);
            setList(edited, place, layer);
        },
        {}, isCommand);
    commands.add(
        str("commands.copy"), [this](DataLayer &layer) { m_copied = list(layer).block(selected(layer)); }, {},
        isCommand);
    commands.add(
        str("commands.paste"),
        [this](DataLayer &layer) {
            CommandList edited = list(layer);
            const int place = edited.paste(selected(layer), m_copied);
            setList(edited, place, layer);
        },
        {}, [this](const DataLayer &, const QString &) { return !m_copied.isEmpty(); });
    fields.add(str("commands.kind"), [this](const DataLayer &layer) { return kind(layer); });
    addForms(commands, fields, sources);
    addChoice(sources);
    addEnemies(sources);
}

void CommandWords::addEnemies(RowSources &sources)
{
    const QVector<QPair<QString, QString>> setsOf{{enemiesSource(), str("commandEnemyPlaces")},
                                                  {enemiesOrAllSource(), str("commandEnemies")}};
    for (const auto &[source, set] : setsOf) {
        const auto rowsOf = [this, set = set](const QString &path, const DataLayer &layer) {
            return BattleEnemies::rows(*m_start, set, m_sources->place(path, layer), layer);
        };
        sources.addFamily(source, rowsOf);
        sources.add(source, [rowsOf](const DataLayer &layer) { return rowsOf(path(layer), layer); });
    }
}

void CommandWords::addTo(StateParts &states)
{
    states.addCopied(
        str("copiedCommands"), [this] { return m_copied; },
        [this](const QJsonValue &value) {
            if (value.isArray()) {
                m_copied = value.toArray();
            }
        });
}

void CommandWords::addForms(Commands &commands, Fields &fields, RowSources &sources)
{
    sources.addRoot(formFile(), [](const DataLayer & /*layer*/) -> std::optional<DataPlace> {
        return DataPlace{formFile(), QString()};
    });
    // The goods of a shop: a kind and the number of an entry each.
    sources.add(str("command/entries"), [this](const DataLayer &layer) { return goods(layer); });
    commands.add(str("command.new"), [this](DataLayer &layer) {
        QJsonObject form = typable(CommandList::newForm(m_start->eventCommands, chosenCode(layer)));
        form.insert(str("isNew"), true);
        layer.change({{formFile(), form}}, QString());
    });
    commands.add(str("command.edit"), [this](DataLayer &layer) {
        layer.change({{formFile(), typable(list(layer).form(selected(layer)))}}, QString());
    });
    commands.add(str("command.accept"), [this](DataLayer &layer) { accept(layer); });
    commands.add(str("command.insert"), [this](DataLayer &layer) {
        CommandList edited = list(layer);
        const int place =
            edited.insert(selected(layer), CommandList::newForm(m_start->eventCommands, chosenCode(layer)));
        setList(edited, place + 1, layer);
    });
    fields.add(str("command.name"), [this](const DataLayer &layer) {
        const auto *command = m_start->eventCommands.find(layer.value(formFile(), str("/code")).toInt());
        return command != nullptr ? command->name : QString();
    });
    fields.add(str("commandsOfTab.hasForm"), [this](const DataLayer &layer) {
        const auto *command = m_start->eventCommands.find(chosenCode(layer));
        return command != nullptr && command->hasForm;
    });
}

void CommandWords::addChoice(RowSources &sources)
{
    sources.add(tabsSource(), [](const DataLayer & /*layer*/) {
        QVector<Row> rows;
        const QStringList tabs = EventCommands::tabs();
        for (int tab = 0; tab < tabs.size(); ++tab) {
            rows.append({tabs.at(tab), tab});
        }
        return rows;
    });
    const auto codesIn = [this](const DataLayer &layer) {
        return m_start->eventCommands.codesIn(tabOf(layer));
    };
    const auto rowsIn = [this, codesIn](const DataLayer &layer) {
        QVector<Row> rows;
        const QVector<int> codes = codesIn(layer);
        for (const int code : codes) {
            rows.append({m_start->eventCommands.find(code)->name, code});
        }
        return rows;
    };
    // A tab that comes to the front begins at its first command, unless it has the one that was chosen last.
    const auto current = [codesIn](const DataLayer &layer) {
        return qMax(0, int(codesIn(layer).indexOf(layer.selected(codesSource()))));
    };
    sources.add(codesSource(), rowsIn, current, [codesIn](int row, DataLayer &layer) {
        layer.select(codesSource(), codesIn(layer).value(row, -1));
    });
}

QVector<Row> CommandWords::rows(const QString &path, const DataLayer &layer) const
{
    const std::optional<DataPlace> place = m_sources->place(path, layer);
    QVector<Row> rows;
    if (!place) {
        return rows;
    }
    const CommandList list(&m_start->eventCommands, layer.value(place->file, place->pointer).toArray());
    const QVector<int> places = list.rows();
    for (const int row : places) {
        rows.append({rowText(list, row, path, layer), row, list.indentAt(row)});
    }
    return rows;
}

QString CommandWords::rowText(const CommandList &list, int place, const QString &path,
                              const DataLayer &layer) const
{
    const int code = list.codeAt(place);
    if (code == EventCommands::kEnd) {
        return str("+");
    }
    const EventCommands::Command *command = m_start->eventCommands.find(code);
    if (command == nullptr) {
        return m_start->texts.value(str("unknownCommand")).arg(code);
    }
    const QJsonObject form = list.head(place) == place ? list.form(place) : list.formOfEntry(place);
    return RowText(withEnemiesOf(path, command->rowOf(form)), m_sources, &m_start->choices)
        .text(inOneLine(form, m_start->texts.value(str("listSeparator"))), code, layer)
        .simplified();
}

QVector<Row> CommandWords::goods(const DataLayer &layer) const
{
    const QStringList lists{str("data/Items"), str("data/Weapons"), str("data/Armors")};
    QVector<Row> rows;
    const QJsonArray entries = layer.value(formFile(), QLatin1Char('/') + entriesMember()).toArray();
    for (int i = 0; i < entries.size(); ++i) {
        const QJsonArray entry = entries.at(i).toArray();
        const QJsonValue thing =
            m_sources->entry(lists.value(entry.at(0).toInt()), entry.at(1).toInt(), layer);
        const QJsonValue price = entry.at(2).toInt() == 0 ? thing[QLatin1String("price")] : entry.at(3);
        rows.append({str("%1: %2").arg(thing[QLatin1String("name")].toString()).arg(price.toInt()), i});
    }
    return rows;
}

QString CommandWords::path(const DataLayer &layer)
{
    return layer.value(listFile(), str("/list")).toString();
}

CommandList CommandWords::list(const DataLayer &layer) const
{
    const std::optional<DataPlace> place = m_sources->place(path(layer), layer);
    return {&m_start->eventCommands,
            place ? layer.value(place->file, place->pointer).toArray() : QJsonArray()};
}

void CommandWords::setList(const CommandList &list, int selected, DataLayer &layer) const
{
    if (const std::optional<DataPlace> place = m_sources->place(path(layer), layer)) {
        layer.set(place->file, place->pointer, list.entries());
        layer.select(sourceOf(path(layer)), selected);
    }
}

int CommandWords::selected(const DataLayer &layer) const
{
    return path(layer).isEmpty() ? -1 : m_sources->number(sourceOf(path(layer)), layer);
}

QString CommandWords::kind(const DataLayer &layer) const
{
    const CommandList edited = list(layer);
    const int place = edited.head(selected(layer));
    if (place < 0 || !edited.isCommand(place)) {
        return str("empty");
    }
    const EventCommands::Command *command = m_start->eventCommands.find(edited.codeAt(place));
    return command != nullptr && command->hasForm ? str("form") : str("command");
}

int CommandWords::chosenCode(const DataLayer &layer) const
{
    return qMax(0, m_sources->number(codesSource(), layer));
}

void CommandWords::accept(DataLayer &layer) const
{
    const QJsonObject form = layer.file(formFile()).toObject();
    CommandList edited = list(layer);
    int place = selected(layer);
    if (form.value(str("isNew")).toBool()) {
        place = edited.insert(place, form);
        const int added = int(edited.rows().indexOf(place));
        setList(edited, edited.rows().value(added + 1), layer);
    } else {
        edited.change(place, form);
        setList(edited, edited.head(place), layer);
    }
    layer.change({{formFile(), QJsonValue(QJsonValue::Undefined)}}, QString());
    layer.accept();
}
