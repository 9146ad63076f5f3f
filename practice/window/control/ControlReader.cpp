#include "window/control/ControlReader.h"

#include "project/RowText.h"

#include <QAbstractButton>
#include <QCursor>
#include <QJsonArray>

#include <algorithm>

namespace {

QVector<Row> rowsOf(const QVector<Choice> &choices)
{
    QVector<Row> rows;
    for (const Choice &choice : choices) {
        rows.append({choice.text, int(rows.size()), 0, GameMap::kEmpty, choice.value, choice.start});
    }
    return rows;
}

} // namespace

ControlReader::ControlReader(const ControlDescription *description, const ControlContext *context,
                             QStringList *errors)
    : m_description(description)
    , m_context(context)
    , m_json(description->own, errors)
{
}

QString ControlReader::label()
{
    require(QStringLiteral("label"), !m_description->label.isEmpty());
    return m_description->label.value(m_context->locale);
}

QString ControlReader::field()
{
    QString name = m_json.text(QStringLiteral("field"));
    const QString problem = m_context->project->fields().problemOf(name);
    if (!name.isEmpty() && !problem.isEmpty()) {
        m_json.addError(QStringLiteral("field"), problem);
    }
    return name;
}

QString ControlReader::source()
{
    QString name = m_json.text(QStringLiteral("source"));
    const QString problem = m_context->project->sources().problemOf(name);
    if (!name.isEmpty() && !problem.isEmpty()) {
        m_json.addError(QStringLiteral("source"), problem);
    }
    return name;
}

int ControlReader::rowHeight()
{
    require(QStringLiteral("rowHeight"), m_description->rowHeight != 0);
    return m_description->rowHeight;
}

QVector<int> ControlReader::tabWidths()
{
    require(QStringLiteral("tabWidth"), !m_description->tabWidths.isEmpty());
    return m_description->tabWidths;
}

void ControlReader::readAction()
{
    require(QStringLiteral("action"), !m_description->actionName.isEmpty());
}

Rows ControlReader::rows(bool hasNone)
{
    if (hasChoices()) {
        return choices();
    }
    const QString list = source();
    const std::shared_ptr<const RowText> text = rowText();
    const QString kNone = QStringLiteral("none");
    const bool addsNone = hasNone && has(kNone);
    const QString none = addsNone ? m_json.localText(kNone).value(m_context->locale) : QString();
    return [list, text, addsNone, none](const EditorWindow *window) {
        const RowSources &sources = window->project().sources();
        QVector<Row> rows = sources.rows(list, window->layer());
        for (Row &row : rows) {
            if (text != nullptr) {
                row.text =
                    text->text(sources.entry(list, row.number, window->layer()), row.number, window->layer());
            }
            // A row that shows nothing could not be told from the next one.
            if (row.text.isEmpty() && row.tile == GameMap::kEmpty) {
                row.text = namelessText(row.number);
            }
        }
        if (addsNone) {
            rows.prepend({none, 0});
        }
        return rows;
    };
}

Rows ControlReader::choices()
{
    const QString kField = QStringLiteral("choices");
    QVector<Row> rows;
    if (m_description->own.object.value(kField).isString()) {
        const QString set = m_json.text(kField);
        const ChoiceSets &sets = m_context->project->start().choices;
        const QString problem = sets.problemOf(set);
        if (!problem.isEmpty()) {
            m_json.addError(kField, problem);
        }
        rows = rowsOf(sets.choices(set));
    } else {
        const QVector<LocalText> texts = m_json.localTexts(kField);
        for (const LocalText &text : texts) {
            rows.append({text.value(m_context->locale), int(rows.size())});
        }
    }
    return [rows](const EditorWindow * /*window*/) {
        return rows;
    };
}

std::shared_ptr<const RowText> ControlReader::rowText()
{
    const QString kField = QStringLiteral("rowText");
    if (!has(kField)) {
        return nullptr;
    }
    // A text that has no words in it is the same in all languages.
    const QString text = m_description->own.object.value(kField).isString()
                             ? m_json.text(kField)
                             : m_json.localText(kField).value(m_context->locale);
    const Project *project = m_context->project;
    auto rowText = std::make_shared<RowText>(text, &project->sources(), &project->start().choices);
    if (!rowText->problem().isEmpty()) {
        m_json.addError(kField, rowText->problem());
    }
    return rowText;
}

void ControlReader::oneOf(const QString &field, const QString &value, const QStringList &allowed)
{
    if (!value.isEmpty() && !allowed.contains(value)) {
        m_json.addError(field, QStringLiteral("\"%1\" is unknown; use one of: %2")
                                   .arg(value, allowed.join(QStringLiteral(", "))));
    }
}

void ControlReader::finish()
{
    const QVector<QPair<QString, bool>> shared{
        {QStringLiteral("label"), !m_description->label.isEmpty()},
        {QStringLiteral("rowHeight"), m_description->rowHeight != 0},
        {QStringLiteral("tabWidth"), !m_description->tabWidths.isEmpty()},
        {QStringLiteral("action"), !m_description->actionName.isEmpty()}};
    for (const auto &[field, isThere] : shared) {
        if (isThere && !m_taken.contains(field)) {
            m_json.addError(field,
                            QStringLiteral("is no field of a control of this type; remove it or correct its "
                                           "name"));
        }
    }
    m_json.reportUnknownFields();
    checkCommands();
    checkRequirements(QStringLiteral("shownWhen"), m_description->shownWhen);
    checkRequirements(QStringLiteral("enabledWhen"), m_description->enabledWhen);
}

void ControlReader::checkCommands()
{
    const auto actions = m_description->actions();
    for (const auto &[field, action] : actions) {
        checkRequirements(field + QStringLiteral(".when"), action.when);
        const QStringList commands = action.run + action.begin;
        for (const QString &command : commands) {
            const QString problem = m_context->project->problemOf(command);
            if (!problem.isEmpty()) {
                m_json.addError(field, problem);
            }
        }
    }
}

void ControlReader::checkRequirements(const QString &place, const QVector<ControlRequirement> &requirements)
{
    for (const ControlRequirement &requirement : requirements) {
        const QString problem = requirement.field.isEmpty()
                                    ? m_context->project->sources().problemOf(requirement.source)
                                    : m_context->project->fields().problemOf(requirement.field);
        if (!problem.isEmpty()) {
            m_json.addError(place, problem);
        }
    }
}

void ControlReader::require(const QString &field, bool isThere)
{
    m_taken.append(field);
    if (!isThere) {
        m_json.addError(field, QStringLiteral("is missing; controls of this type need it"));
    }
}

QJsonValue fieldValue(const EditorWindow *window, const QString &field)
{
    const QVariant value = window->field(field);
    return value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue fieldValue(const EditorWindow *window, const QString &field, const QJsonValue &missing)
{
    const QJsonValue value = fieldValue(window, field);
    return value.isUndefined() ? missing : value;
}

int rowWith(const QVector<Row> &rows, const QJsonValue &value)
{
    const auto isIt = [&value](const Row &row) {
        return ChoiceSets::isSame(value, row.chosen());
    };
    const auto found = std::find_if(rows.cbegin(), rows.cend(), isIt);
    return found != rows.cend() ? int(found - rows.cbegin()) : -1;
}

void wireClick(QAbstractButton *button, const ControlDescription &description, EditorWindow *window)
{
    QObject::connect(button, &QAbstractButton::clicked, window, [description, window] {
        const ControlSpot cause = window->spot(description.name);
        window->act(description.click, QCursor::pos(), cause);
        if (!description.actionName.isEmpty()) {
            window->report(QStringLiteral("action"), description.actionName, description.actionState, cause);
        }
    });
}
