#include "window/StateKeeper.h"

#include "project/ProjectState.h"
#include "window/EditorWindow.h"
#include "window/EditorWindows.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace {

// The members of a state, of a window in it, and of the open menu.
const QLatin1String kProject("project");
const QLatin1String kParts("parts");
const QLatin1String kWindows("windows");
const QLatin1String kPopup("popup");
const QLatin1String kKey("key");
const QLatin1String kLayer("layer");
const QLatin1String kX("x");
const QLatin1String kY("y");

} // namespace

StateKeeper::StateKeeper(EditorWindows *windows, const EditorView &view,
                         std::function<void(const QString &, const QPoint &)> popUp)
    : m_windows(windows)
    , m_view(view)
    , m_popUp(std::move(popUp))
{
}

EditorState StateKeeper::state() const
{
    QJsonObject state{{kProject, ProjectState::save(*m_view.project)},
                      {kParts, m_view.project->states().save()}};
    QJsonArray windows;
    for (const QString &key : *m_view.stack) {
        QJsonObject window{{kKey, key}};
        if ((*m_view.descriptions)[key].isDraft) {
            window.insert(kLayer, m_view.window(key)->layer().saveSelf());
        }
        windows.append(window);
    }
    state.insert(kWindows, windows);
    if (const EditorWindow *const popup = m_view.popup()) {
        const QPoint at = popup->mapToGlobal(QPoint()) - mainCorner();
        state.insert(kPopup, QJsonObject{{kKey, popup->key()}, {kX, at.x()}, {kY, at.y()}});
    }
    return EditorState::fromJson(state);
}

QString StateKeeper::dataMark() const
{
    QCryptographicHash typed(QCryptographicHash::Sha1);
    // Who copies something else in between would paste it.
    typed.addData(QJsonDocument(m_view.project->states().saveCopied()).toJson(QJsonDocument::Compact));
    for (const QString &key : *m_view.stack) {
        if ((*m_view.descriptions)[key].isDraft) {
            const DataLayer &draft = m_view.window(key)->layer();
            typed.addData(key.toUtf8() + QJsonDocument(draft.saveTyped()).toJson(QJsonDocument::Compact));
        }
    }
    return m_view.project->files().lastStep() + QString::fromLatin1(typed.result().toHex());
}

bool StateKeeper::restore(const EditorState &state) const
{
    m_windows->closeDialogs();
    const QJsonObject json = state.toJson();
    if (!ProjectState::restore(json.value(kProject).toObject(), *m_view.project)) {
        return false;
    }
    m_view.project->states().load(json.value(kParts).toObject());
    const QJsonArray windows = json.value(kWindows).toArray();
    for (const QJsonValue &value : windows) {
        const QJsonObject window = value.toObject();
        const QString key = window.value(kKey).toString();
        if (!m_view.stack->contains(key)) {
            m_windows->open(key);
        }
        if (window.contains(kLayer) && m_view.stack->contains(key)) {
            m_view.window(key)->layer().loadSelf(window.value(kLayer).toObject());
        }
    }
    const QJsonObject popup = json.value(kPopup).toObject();
    if (!popup.isEmpty()) {
        m_popUp(popup.value(kKey).toString(),
                mainCorner() + QPoint(popup.value(kX).toInt(), popup.value(kY).toInt()));
    }
    return true;
}

QPoint StateKeeper::mainCorner() const
{
    return m_view.window(m_view.stack->constFirst())->mapToGlobal(QPoint());
}
