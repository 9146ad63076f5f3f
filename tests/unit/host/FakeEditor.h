#pragma once

#include "host/HostEditor.h"

#include <QHash>

/// An editor whose windows a test opens, closes and moves by itself, and that nobody sees.
class FakeEditor : public HostEditor
{
    Q_OBJECT

public:
    using HostEditor::HostEditor;

    QStringList m_stack = {QStringLiteral("MainWindow")};
    QHash<QString, QPoint> m_origins = {{QString(), QPoint()},
                                        {QStringLiteral("MainWindow"), QPoint(90, 190)}};
    QHash<QString, QStringList> m_openedFrom;

    void open(const QString &windowKey)
    {
        m_stack.append(windowKey);
        m_origins.insert(windowKey, QPoint(300, 400));
        Q_EMIT pushed(windowKey);
        Q_EMIT moved(windowKey, m_origins.value(windowKey));
        Q_EMIT happened({QStringLiteral("windowState"), windowKey, QStringLiteral("open"), windowKey});
    }

    void close(const QString &windowKey)
    {
        m_stack.removeOne(windowKey);
        m_origins.remove(windowKey);
        Q_EMIT popped(windowKey);
        Q_EMIT happened({QStringLiteral("windowState"), windowKey, QStringLiteral("close"), windowKey});
    }

    void move(const QString &windowKey, const QPoint &to)
    {
        m_origins.insert(windowKey, to);
        Q_EMIT moved(windowKey, to);
    }

    void report(const QString &type, const QString &target, const QString &value = {})
    {
        Q_EMIT happened({type, target, value, m_stack.constLast()});
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
    [[nodiscard]] QRect screenRect() const override { return {0, 0, 1280, 960}; }
    [[nodiscard]] QSize applicationSize() const override { return {1100, 720}; }
};
