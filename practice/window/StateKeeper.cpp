#include "window/StateKeeper.h"

#include "project/ProjectState.h"
#include "window/EditorWindow.h"
#include "window/EditorWindows.h"

#include <QJsonArray>

#include <utility>

namespace {

QString projectMember()
{
    return QStringLiteral("project");
}
QString partsMember()
{
    return QStringLiteral("parts");
}
QString windowsMember()
{
    return QStringLiteral("windows");
}
QString popupMember()
{
    return QStringLiteral("popup");
}
QString keyMember()
{
    return QStringLiteral("key");
}
QString layerMember()
{
    return QStringLiteral("layer");
}

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
    QJsonObject state{{projectMember(), ProjectState::save(*m_view.project)},
                      {partsMember(), m_view.project->states().save()}};
    QJsonArray windows;
    for (const QString &key : *m_view.stack) {
        QJsonObject window{{keyMember(), key}};
        if ((*m_view.descriptions)[key].isDraft) {
            window.insert(layerMember(), m_view.window(key)->layer().saveSelf());
        }
        windows.append(window);
    }
    state.insert(windowsMember(), windows);
    if (const EditorWindow *const popup = m_view.popup()) {
        const QPoint at = popup->mapToGlobal(QPoint());
        state.insert(popupMember(), QJsonObject{{keyMember(), popup->key()},
                                                {QStringLiteral("x"), at.x()},
                                                {QStringLiteral("y"), at.y()}});
    }
    return EditorState::fromJson(state);
}

bool StateKeeper::restore(const EditorState &state) const
{
    closeDialogs();
    const QJsonObject json = state.toJson();
    if (!ProjectState::restore(json.value(projectMember()).toObject(), *m_view.project)) {
        return false;
    }
    m_view.project->states().load(json.value(partsMember()).toObject());
    const QJsonArray windows = json.value(windowsMember()).toArray();
    for (const QJsonValue &value : windows) {
        const QJsonObject window = value.toObject();
        const QString key = window.value(keyMember()).toString();
        if (!m_view.stack->contains(key)) {
            m_windows->open(key);
        }
        if (window.contains(layerMember()) && m_view.stack->contains(key)) {
            m_view.window(key)->layer().loadSelf(window.value(layerMember()).toObject());
        }
    }
    const QJsonObject popup = json.value(popupMember()).toObject();
    if (!popup.isEmpty()) {
        m_popUp(popup.value(keyMember()).toString(),
                {popup.value(QLatin1String("x")).toInt(), popup.value(QLatin1String("y")).toInt()});
    }
    return true;
}

void StateKeeper::closeDialogs() const
{
    const QStringList open = m_windows->openWindows();
    for (int i = open.size() - 1; i > 0; --i) {
        m_windows->close(open.at(i));
    }
}
