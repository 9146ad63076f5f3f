#pragma once

#include "host/HostEditor.h"

#include <QHash>
#include <QJsonArray>

#include <functional>

/// An editor whose windows a test opens, closes and moves by itself, and that nobody sees.
class FakeEditor : public HostEditor
{
    Q_OBJECT

public:
    using HostEditor::HostEditor;

    QStringList m_stack = {QStringLiteral("MainWindow")};
    QHash<QString, QPoint> m_origins = {{QString(), QPoint()},
                                        {QStringLiteral("MainWindow"), QPoint(90, 190)}};
    QRect m_screen = {0, 0, 1280, 960};
    QHash<QString, QStringList> m_openedFrom;
    /// By window key: the control that has every point of it.
    QHash<QString, ControlSpot> m_controls;
    /// What cannot be used just now.
    QVector<ControlSpot> m_hidden;
    /// How many there are in each box to choose from.
    int m_entries = 2;
    /// What the person acts on from now on.
    ControlSpot m_cause;
    Ways m_ways;
    QVector<Activity> m_activities;
    /// Controls that bring no condition about.
    QStringList m_inert;
    /// Controls whose use does the same once more.
    QStringList m_adding;
    /// Window keys that it does not know.
    QStringList m_unknown;
    QHash<QString, QString> m_meanings;
    QVector<ControlSpot> m_chosen;
    /// All there is in the project; the state is that and the open windows.
    QString m_data = QStringLiteral("as it was");
    QString m_project = QStringLiteral("/games/mine");
    bool m_canRestore = true;
    /// The button to put things back shows here.
    std::optional<QPoint> m_putBackSpot;
    QVector<ControlUse> m_performed;
    /// What performing does.
    std::function<void()> m_onPerform;

    void open(const QString &windowKey)
    {
        m_stack.append(windowKey);
        m_origins.insert(windowKey, QPoint(300, 400));
        Q_EMIT pushed(windowKey);
        Q_EMIT moved(windowKey, m_origins.value(windowKey));
        Q_EMIT happened(
            {QStringLiteral("windowState"), windowKey, QStringLiteral("open"), windowKey, m_cause});
    }

    void close(const QString &windowKey)
    {
        m_stack.removeOne(windowKey);
        m_origins.remove(windowKey);
        Q_EMIT popped(windowKey);
        Q_EMIT happened(
            {QStringLiteral("windowState"), windowKey, QStringLiteral("close"), windowKey, m_cause});
    }

    void popUp(const QString &menu)
    {
        m_stack.append(QStringLiteral("Popup"));
        m_origins.insert(QStringLiteral("Menu"), QPoint(500, 600));
        Q_EMIT pushed(QStringLiteral("Popup"));
        Q_EMIT happened({QStringLiteral("popup"), menu, QString(), QStringLiteral("Menu"), m_cause});
    }

    void closeMenu()
    {
        m_stack.removeOne(QStringLiteral("Popup"));
        m_origins.remove(QStringLiteral("Menu"));
        Q_EMIT popped(QStringLiteral("Popup"));
    }

    void move(const QString &windowKey, const QPoint &to)
    {
        m_origins.insert(windowKey, to);
        Q_EMIT moved(windowKey, to);
    }

    void report(const QString &type, const QString &target, const QString &value = {})
    {
        Q_EMIT happened({type, target, value, m_stack.constLast(), m_cause});
    }

    [[nodiscard]] QStringList openWindows() const override { return m_stack; }
    [[nodiscard]] std::optional<QPoint> origin(const QString &windowKey) const override
    {
        const auto found = m_origins.constFind(windowKey);
        return found == m_origins.constEnd() ? std::nullopt : std::optional(*found);
    }
    [[nodiscard]] QStringList openedFrom(const QString &windowKey) const override
    {
        return m_openedFrom.value(windowKey);
    }
    [[nodiscard]] std::optional<ControlSpot> controlAt(const QString &windowKey,
                                                       const QPoint & /*point*/) const override
    {
        const auto found = m_controls.constFind(windowKey);
        return found == m_controls.constEnd() ? std::nullopt : std::optional(*found);
    }
    [[nodiscard]] std::optional<QRect> rectOf(const ControlSpot &spot) const override
    {
        const std::optional<QPoint> corner = origin(spot.windowKey);
        return corner && !m_hidden.contains(spot) ? std::optional(QRect(*corner, QSize(2000, 2000)))
                                                  : std::nullopt;
    }
    [[nodiscard]] bool canCause(const ControlSpot &spot, const Condition & /*condition*/) const override
    {
        return !m_inert.contains(spot.control);
    }
    [[nodiscard]] bool addsUp(const ControlSpot &spot) const override
    {
        return m_adding.contains(spot.control);
    }
    [[nodiscard]] bool offers(const ControlSpot & /*spot*/, const Condition &condition) const override
    {
        return condition.type() != Condition::Type::kComboBox || condition.value().toInt() < m_entries;
    }
    [[nodiscard]] Ways ways() const override { return m_ways; }
    [[nodiscard]] QVector<Activity> activities() const override { return m_activities; }
    [[nodiscard]] std::optional<UnknownWord> unknownWord(const Step &step) const override
    {
        return m_unknown.contains(step.windowKey)
                   ? std::optional(
                         UnknownWord{step.id, step.windowKey, QStringLiteral("there is no such window")})
                   : std::nullopt;
    }
    [[nodiscard]] QString meaningOf(const ControlSpot &spot) const override
    {
        return m_meanings.value(spot.control);
    }
    [[nodiscard]] QVector<ControlSpot> chosen() const override { return m_chosen; }
    [[nodiscard]] QString projectId() const override { return m_project; }
    [[nodiscard]] QString dataMark() const override { return m_data; }
    [[nodiscard]] EditorState state() const override
    {
        return EditorState::fromJson({{QStringLiteral("data"), m_data},
                                      {QStringLiteral("project"), m_project},
                                      {QStringLiteral("windows"), QJsonArray::fromStringList(m_stack)}});
    }
    bool restore(const EditorState &state) override
    {
        if (!m_canRestore) {
            return false;
        }
        const QJsonObject json = state.toJson();
        m_data = json.value(QLatin1String("data")).toString();
        m_project = json.value(QLatin1String("project")).toString();
        m_cause = ControlSpot();
        while (m_stack.size() > 1) {
            close(m_stack.constLast());
        }
        const QJsonArray windows = json.value(QLatin1String("windows")).toArray();
        for (int i = 1; i < windows.size(); ++i) {
            open(windows.at(i).toString());
        }
        return true;
    }
    bool perform(const ControlUse &use) override
    {
        m_performed.append(use);
        if (m_onPerform) {
            m_cause = use.spot;
            m_onPerform();
        }
        return true;
    }
    [[nodiscard]] QString hintBack(const Way &way, const Step & /*step*/) const override
    {
        return QStringLiteral("use ") + way.by.control + QLatin1Char(' ') + QString::number(way.by.part);
    }
    [[nodiscard]] QString hintToPutBack(const Step & /*step*/) const override
    {
        return QStringLiteral("put it back");
    }
    [[nodiscard]] std::optional<QPoint> spotToPutBack() const override { return m_putBackSpot; }
    [[nodiscard]] QRect screenRect() const override { return m_screen; }
    [[nodiscard]] QSize applicationSize() const override { return {1100, 720}; }
};
