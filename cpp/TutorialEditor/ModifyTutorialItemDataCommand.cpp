#include "TutorialEditor/ModifyTutorialItemDataCommand.h"

#include "TutorialEditor/ItemTreeOperations.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/TutorialItemData.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/LogLine.h"

#include <QStringList>

#include <memory>
#include <type_traits>
#include <utility>
#include <variant>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\ModifyTutorialItemDataCommand.cpp)";

struct Target
{
    const char *name;
    std::variant<int TutorialItemData::*, QString TutorialItemData::*, bool TutorialItemData::*> field;
};

const Target kTargets[] = {
    {"translationId", &TutorialItemData::translationId},
    {"x", &TutorialItemData::x},
    {"y", &TutorialItemData::y},
    {"windowKey", &TutorialItemData::windowKey},
    {"condition", &TutorialItemData::condition},
    {"hint", &TutorialItemData::hint},
    {"hint2", &TutorialItemData::hint2},
    {"icon", &TutorialItemData::icon},
    {"jump", &TutorialItemData::jump},
    {"jumpNo", &TutorialItemData::jumpNo},
    {"command", &TutorialItemData::command},
    {"showArrow", &TutorialItemData::showArrow},
    {"prohibited", &TutorialItemData::prohibited},
};

const Target *findTarget(const QString &name)
{
    for (const Target &target : kTargets) {
        if (name == QLatin1String(target.name)) {
            return &target;
        }
    }
    return nullptr;
}

QString commandText(int id, const PropertyHash &properties, const QVariant &value)
{
    QStringList texts;
    for (auto property = properties.constBegin(); property != properties.constEnd(); ++property) {
        texts << property.key() + QLatin1Char(':') + property.value().toString();
    }
    return QStringLiteral("ModifyTutorialItemDataCommand(%1: %2, %3)")
        .arg(QString::number(id), texts.join(QLatin1Char(',')), value.toString());
}

void setUndoNote(const QString &note)
{
    if (!note.isEmpty() && UndoRedo::instance() != nullptr) {
        UndoRedo::instance()->setUndoNote(note);
    }
}

} // namespace

ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand(int id, const PropertyHash &properties,
                                                             const QVariant &value, QString note)
    : UndoMergeableCommand(value)
    , m_tutorialItemId(id)
    , m_properties(properties)
    , m_note(std::move(note))
{
    setText(commandText(id, m_properties, value));
}

void ModifyTutorialItemDataCommand::doUndo()
{
    apply(m_oldValue, false, nullptr);
    setUndoNote(m_note);
}

void ModifyTutorialItemDataCommand::doRedo()
{
    apply(value(), true, nullptr);
    if (m_firstRedo) {
        m_firstRedo = false;
        return;
    }
    setUndoNote(m_note);
}

int ModifyTutorialItemDataCommand::commandType() const
{
    return kType;
}

bool ModifyTutorialItemDataCommand::mergeSame(const UndoMergeableCommand &other)
{
    logDebug(kSource, "ModifyTutorialItemDataCommand::mergeWith", 545) << text() << other.text();
    const auto *modify = dynamic_cast<const ModifyTutorialItemDataCommand *>(&other);
    if (UndoRedo::instance() == nullptr || !UndoRedo::instance()->mergeable() || id() != other.id() ||
        modify == nullptr || m_properties != modify->m_properties) {
        return false;
    }
    return apply(other.value(), false, &other);
}

bool ModifyTutorialItemDataCommand::apply(const QVariant &value, bool saveOld,
                                          const UndoMergeableCommand *source)
{
    TutorialEditor::Manager *document = TutorialEditor::Manager::instance();
    const Target *target = findTarget(m_properties.value(QStringLiteral("target"), QString()));
    TutorialItemData *data =
        document == nullptr ? nullptr : findData(&document->tree()->items, m_tutorialItemId);
    if (target == nullptr || data == nullptr) {
        return false;
    }
    std::visit(
        [&](auto field) {
            using Value = std::decay_t<decltype(data->*field)>;
            if (saveOld) {
                m_oldValue = QVariant::fromValue(data->*field);
            }
            data->*field = value.value<Value>();
        },
        target->field);
    if (source == nullptr) {
        return false;
    }
    setValue(value);
    return true;
}

UndoMergeableCommand *ModifyTutorialItemDataCommand::clone() const
{
    auto copy =
        std::make_unique<ModifyTutorialItemDataCommand>(m_tutorialItemId, m_properties, value(), m_note);
    copy->m_oldValue = m_oldValue;
    copy->m_firstRedo = m_firstRedo;
    copy->setText(text());
    return copy.release();
}
