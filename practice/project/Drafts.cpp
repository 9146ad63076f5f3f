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

void Draft::change(const DataRoots &files, const QString & /*mergeKey*/)
{
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
    m_files = DataRootsJson::load(state.value(draftMember()).toObject());
    DataLayer::loadSelf(state);
}

void Draft::clear()
{
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

void Drafts::clear()
{
    for (const auto &draft : m_drafts) {
        draft->clear();
    }
}
