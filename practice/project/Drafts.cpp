#include "project/Drafts.h"

#include "project/DataRootsJson.h"

#include <algorithm>

namespace {

QString draftMember()
{
    return QStringLiteral("draft");
}

} // namespace

QJsonValue Draft::file(const QString &name) const
{
    const auto own = m_files.constFind(name);
    return own != m_files.constEnd() ? *own : below()->file(name);
}

void Draft::change(const DataRoots &files, const QString &mergeKey)
{
    if (mergeKey != noStep()) {
        if (mergeKey.isEmpty() || mergeKey != m_mergeKey || m_past.isEmpty()) {
            m_past.append(state());
        }
        m_mergeKey = mergeKey;
        m_future.clear();
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        m_files.insert(file.key(), file.value());
    }
    Q_EMIT changed();
}

void Draft::accept()
{
    DataRoots files;
    for (auto own = m_files.cbegin(); own != m_files.cend(); ++own) {
        if (own.value() != below()->file(own.key())) {
            files.insert(own.key(), own.value());
        }
    }
    m_files.clear();
    forgetHistory();
    if (!files.isEmpty()) {
        below()->change(files, QString());
    }
    const QHash<QString, int> selected = selections();
    forgetSelections();
    for (auto list = selected.begin(); list != selected.end(); ++list) {
        below()->select(list.key(), list.value());
    }
    Q_EMIT changed();
}

QJsonObject Draft::saveSelf() const
{
    QJsonObject state = DataLayer::saveSelf();
    state.insert(draftMember(), saveTyped());
    return state;
}

QJsonObject Draft::saveTyped() const
{
    return DataRootsJson::save(m_files);
}

void Draft::loadSelf(const QJsonObject &state)
{
    forgetHistory();
    m_files = DataRootsJson::load(state.value(draftMember()).toObject());
    DataLayer::loadSelf(state);
}

void Draft::undo()
{
    step(&m_past, &m_future);
}

void Draft::redo()
{
    step(&m_future, &m_past);
}

void Draft::step(QVector<State> *from, QVector<State> *to)
{
    if (from->isEmpty()) {
        return;
    }
    to->append(state());
    const State wanted = from->takeLast();
    m_files = wanted.files;
    setSelections(wanted.selected);
    m_mergeKey.clear();
    Q_EMIT changed();
}

void Draft::forgetHistory()
{
    m_past.clear();
    m_future.clear();
    m_mergeKey.clear();
}

void Draft::clear()
{
    forgetHistory();
    m_files.clear();
    forgetSelections();
    forgetMarks();
    Q_EMIT changed();
}

Drafts::Drafts(DataLayer *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
}

DataLayer *Drafts::top() const
{
    return m_drafts.empty() ? m_project : m_drafts.back().get();
}

DataLayer *Drafts::begin()
{
    m_drafts.push_back(std::make_unique<Draft>(top()));
    connect(m_drafts.back().get(), &DataLayer::changed, this, &Drafts::changed);
    Q_EMIT changed();
    return top();
}

void Drafts::drop(const DataLayer *draft)
{
    const auto isIt = [draft](const std::unique_ptr<Draft> &other) {
        return other.get() == draft;
    };
    const auto found = std::find_if(m_drafts.begin(), m_drafts.end(), isIt);
    if (found == m_drafts.end()) {
        return;
    }
    while (m_drafts.back().get() != draft) {
        m_drafts.pop_back();
    }
    m_drafts.pop_back();
    Q_EMIT changed();
}

void Drafts::forgetHistory()
{
    if (!m_drafts.empty()) {
        m_drafts.back()->forgetHistory();
    }
}

void Drafts::clear()
{
    for (const auto &draft : m_drafts) {
        draft->clear();
    }
}
