#include "TutorialEditor/ModifyTutorialItemDataCommand.h"

#include "TutorialEditor/ItemFields.h"
#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/TutorialItemData.h"
#include "tool/LogLine.h"

#include <QStringList>

#include <memory>
#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\ModifyTutorialItemDataCommand.cpp)";

QString commandText(int id, const PropertyHash &properties, const QVariant &value)
{
    QStringList texts;
    for (auto property = properties.constBegin(); property != properties.constEnd(); ++property) {
        texts << property.key() + QLatin1Char(':') + property.value().toString();
    }
    return QStringLiteral("ModifyTutorialItemDataCommand(%1: %2, %3)")
        .arg(QString::number(id), texts.join(QLatin1Char(',')), value.toString());
}

} // namespace

ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand(ScenarioDocument *document, int id,
                                                             const PropertyHash &properties,
                                                             const QVariant &value, QString note)
    : UndoMergeableCommand(value, document == nullptr ? HistorySource() : document->historySource())
    , m_document(document)
    , m_tutorialItemId(id)
    , m_properties(properties)
    , m_note(std::move(note))
{
    setText(commandText(id, m_properties, value));
}

void ModifyTutorialItemDataCommand::doUndo()
{
    apply(m_oldValue, false, nullptr);
    tellUndoNote(history(), m_note);
}

void ModifyTutorialItemDataCommand::doRedo()
{
    apply(value(), true, nullptr);
    if (m_firstRedo) {
        m_firstRedo = false;
        return;
    }
    tellUndoNote(history(), m_note);
}

int ModifyTutorialItemDataCommand::commandType() const
{
    return kType;
}

bool ModifyTutorialItemDataCommand::mergeSame(const UndoMergeableCommand &other)
{
    logDebug(kSource, "ModifyTutorialItemDataCommand::mergeWith", 545) << text() << other.text();
    const auto *modify = dynamic_cast<const ModifyTutorialItemDataCommand *>(&other);
    if (!mergingAllowed() || id() != other.id() || modify == nullptr ||
        m_properties != modify->m_properties) {
        return false;
    }
    return apply(other.value(), false, &other);
}

bool ModifyTutorialItemDataCommand::apply(const QVariant &value, bool saveOld,
                                          const UndoMergeableCommand *source)
{
    const ItemField *field = findItemField(m_properties.value(QStringLiteral("target"), QString()));
    TutorialItemData *data =
        m_document == nullptr ? nullptr : findData(&m_document->tree()->items, m_tutorialItemId);
    if (field == nullptr || data == nullptr) {
        return false;
    }
    if (saveOld) {
        m_oldValue = field->value(*data);
    }
    field->setValue(data, value);
    if (source == nullptr) {
        return false;
    }
    setValue(value);
    return true;
}

std::unique_ptr<UndoMergeableCommand> ModifyTutorialItemDataCommand::clone() const
{
    auto copy = std::make_unique<ModifyTutorialItemDataCommand>(m_document, m_tutorialItemId, m_properties,
                                                                value(), m_note);
    copy->m_oldValue = m_oldValue;
    copy->m_firstRedo = m_firstRedo;
    copy->setText(text());
    return copy;
}

bool changeItem(ScenarioDocument *document, int id, const QString &field, const QVariant &value)
{
    UndoHistory *history = document->history();
    const TutorialItemData *data = findData(&document->tree()->items, id);
    if (history == nullptr || data == nullptr || findItemField(field) == nullptr) {
        return false;
    }
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), field);
    history->addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(document, id, properties, value, data->changeNote()));
    return true;
}
