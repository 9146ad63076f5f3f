#include "DocumentModel.h"
#include "ModelCommand.h"

namespace {

using Kind = ModelCommand::Kind;

} // namespace

bool DocumentModel::assign(int id, const QString &target, const QVariant &value, QVariant *old)
{
    ModelItem *entry = item(id);
    if (entry == nullptr) {
        return false;
    }
    QVariant present;
    if (target == QStringLiteral("x")) {
        present = entry->x;
        entry->x = value.toInt();
    } else if (target == QStringLiteral("translationId")) {
        present = entry->translationId;
        entry->translationId = value.toInt();
    } else if (target == QStringLiteral("hint")) {
        present = entry->hint;
        entry->hint = value.toString();
    } else if (target == QStringLiteral("showArrow")) {
        present = entry->showArrow;
        entry->showArrow = value.toBool();
    } else {
        return false;
    }
    if (old != nullptr) {
        *old = present;
    }
    return true;
}

void DocumentModel::run(ModelCommand *command)
{
    if (command->kind == Kind::kModify) {
        assign(command->id, command->target, command->value, &command->old);
    } else if (command->kind == Kind::kInsert) {
        ModelNode *target = find(&m_root, command->parentId);
        int place = command->index;
        if (target == nullptr) {
            target = &m_root;
            place = -1;
        } else if (command->parentId >= 0 && !target->folder) {
            int behind = 0;
            target = findParent(&m_root, command->parentId, &behind);
            place = place < 0 ? behind + 1 : place;
        }
        const int size = static_cast<int>(target->children.size());
        place = place < 0 || place > size ? size : place;
        target->children.insert(target->children.begin() + place, {command->id, false, {}});
        m_items.push_back(command->item);
    }
    for (const ModelCommandPtr &part : command->parts) {
        run(part.get());
    }
}

void DocumentModel::takeBack(ModelCommand *command)
{
    for (auto part = command->parts.rbegin(); part != command->parts.rend(); ++part) {
        takeBack(part->get());
    }
    if (command->kind == Kind::kModify) {
        assign(command->id, command->target, command->old, nullptr);
    } else if (command->kind == Kind::kInsert) {
        int place = 0;
        if (ModelNode *parent = findParent(&m_root, command->id, &place)) {
            parent->children.erase(parent->children.begin() + place);
        }
        const int index = indexOf(m_items, command->id);
        if (index >= 0) {
            m_items.erase(m_items.begin() + index);
        }
    }
}

bool DocumentModel::merge(ModelCommand *last, const ModelCommand &command)
{
    if (!m_mergeable || command.kind != Kind::kModify) {
        return false;
    }
    const auto takeOver = [&](ModelCommand *earlier) {
        if (earlier->target != command.target ||
            !assign(earlier->id, earlier->target, command.value, nullptr)) {
            return false;
        }
        earlier->value = command.value;
        return true;
    };
    for (auto part = last->parts.rbegin(); part != last->parts.rend(); ++part) {
        if (takeOver(part->get())) {
            return true;
        }
    }
    if (!takeOver(last)) {
        const auto clone = std::make_shared<ModelCommand>(command);
        clone->parts.clear();
        last->parts.push_back(clone);
    }
    return true;
}

void DocumentModel::add(const ModelCommandPtr &command)
{
    ModelCommand *last = nullptr;
    if (m_mergeable && m_inTransaction && m_depth <= 0 && m_index > 0) {
        last = m_steps[static_cast<std::size_t>(m_index - 1)].get();
        if (last->kind == Kind::kMacro && !last->parts.empty()) {
            last = last->parts.back().get();
        }
    }
    if (last != nullptr && last->kind == Kind::kModify) {
        run(command.get());
        if (!merge(last, *command)) {
            takeBack(command.get());
            push(command);
        }
    } else {
        push(command);
    }
    m_mergeable = true;
}

void DocumentModel::push(const ModelCommandPtr &command)
{
    run(command.get());
    const bool macro = !m_openMacros.empty();
    if (!macro) {
        m_steps.resize(static_cast<std::size_t>(m_index));
    }
    std::vector<ModelCommandPtr> &row = macro ? m_openMacros.back()->parts : m_steps;
    if (!row.empty() && row.back()->kind == Kind::kModify && merge(row.back().get(), *command)) {
        if (!macro) {
            m_modified = m_index != m_saved;
        }
        return;
    }
    row.push_back(command);
    if (!macro) {
        limit();
        setIndex(m_index + 1);
    }
}

void DocumentModel::limit()
{
    while (m_steps.size() > 10) {
        m_steps.erase(m_steps.begin());
        --m_index;
    }
}

void DocumentModel::setIndex(int index)
{
    m_index = index;
    m_modified = index != m_saved;
}

void DocumentModel::markerAndUndo()
{
    add(std::make_shared<ModelCommand>(Kind::kMarker));
    undo();
}

void DocumentModel::beginSingle(const QString &name, qint64 nowMs)
{
    m_name = name;
    m_inTransaction = true;
    m_mergeable = false;
    if (name != m_lastName) {
        m_unmergeable = true;
    } else if (!m_unmergeable && (!m_timeSet || nowMs - m_lastMs < 1000)) {
        m_mergeable = true;
    }
    m_lastMs = nowMs;
    m_timeSet = true;
}

void DocumentModel::endSingle()
{
    m_inTransaction = false;
    m_lastName = m_name;
    m_name.clear();
    m_unmergeable = false;
}

void DocumentModel::beginSequence(const QString &name, qint64 nowMs)
{
    m_inTransaction = true;
    m_mergeable = false;
    m_name = name;
    m_lastMs = nowMs;
    m_timeSet = true;
    if (m_sequenceStart < 0) {
        m_sequenceStart = m_index;
    }
    const auto macro = std::make_shared<ModelCommand>(Kind::kMacro);
    if (m_openMacros.empty()) {
        m_steps.resize(static_cast<std::size_t>(m_index));
        m_steps.push_back(macro);
    } else {
        m_openMacros.back()->parts.push_back(macro);
    }
    m_openMacros.push_back(macro);
    ++m_depth;
}

void DocumentModel::endSequence()
{
    if (m_depth > 0) {
        --m_depth;
        if (!m_openMacros.empty()) {
            m_openMacros.pop_back();
            if (m_openMacros.empty()) {
                limit();
                setIndex(m_index + 1);
            }
        }
    }
    if (m_depth == 0) {
        m_inTransaction = false;
    }
    if (m_inTransaction) {
        return;
    }
    if (m_sequenceStart >= 0 && m_sequenceStart < static_cast<int>(m_steps.size())) {
        const ModelCommand &step = *m_steps[static_cast<std::size_t>(m_sequenceStart)];
        if (step.kind != Kind::kMacro || step.parts.empty()) {
            undo();
            markerAndUndo();
        }
    }
    m_sequenceStart = -1;
    m_lastName = m_name;
    m_name.clear();
    m_unmergeable = false;
}

void DocumentModel::undo()
{
    if (m_openMacros.empty() && m_index > 0) {
        takeBack(m_steps[static_cast<std::size_t>(m_index - 1)].get());
        setIndex(m_index - 1);
    }
}

void DocumentModel::redo()
{
    if (m_openMacros.empty() && m_index < static_cast<int>(m_steps.size())) {
        run(m_steps[static_cast<std::size_t>(m_index)].get());
        setIndex(m_index + 1);
    }
}

void DocumentModel::undoAndMakeUnredoable()
{
    undo();
    markerAndUndo();
}

bool DocumentModel::canUndo() const
{
    return m_openMacros.empty() && m_index > 0;
}

bool DocumentModel::canRedo() const
{
    return m_openMacros.empty() && m_index < static_cast<int>(m_steps.size()) &&
           m_steps[static_cast<std::size_t>(m_index)]->kind != Kind::kMarker;
}
