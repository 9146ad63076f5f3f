#include "project/Chooser.h"

namespace {

QString root()
{
    return QStringLiteral("choice");
}

/// The mark that holds the kind, as the name of a file.
QString kindMark()
{
    return QStringLiteral("choice.kind");
}

} // namespace

Chooser::Chooser(const RowSources *sources)
    : m_sources(sources)
{
}

void Chooser::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    const Commands::RunWithArgument run = [this](DataLayer &layer, const CommandCall &call) {
        chooseInto(layer, call);
    };
    commands.add(QStringLiteral("choose.into"), run);
    fields.add(kindMark(), [](const DataLayer &layer) -> QVariant {
        const std::optional<DataPlace> kind = layer.mark(kindMark());
        return kind ? kind->file : QString();
    });
    sources.addRoot(root(), [](const DataLayer &layer) { return layer.mark(root()); });
    sources.add(QStringLiteral("choice.number"), [](const DataLayer &layer) {
        const std::optional<DataPlace> place = layer.mark(root());
        const int number = place ? layer.value(place->file, place->pointer).toInt() : 0;
        return number > 0 ? QVector<Row>{{QString(), number}} : QVector<Row>();
    });
}

void Chooser::chooseInto(DataLayer &layer, const CommandCall &call) const
{
    const QLatin1Char blank(' ');
    if (const std::optional<DataPlace> place = m_sources->place(call.argument.section(blank, 0, 0), layer)) {
        layer.setMark(root(), *place);
        layer.setMark(kindMark(), {call.argument.section(blank, 1), QString()});
    }
}
