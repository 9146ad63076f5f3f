#pragma once

#include "window/EditorWindows.h"

#include <QHash>

/// Windows that a test opens, closes and moves by itself, and that nobody sees.
class FakeWindows : public EditorWindows
{
    Q_OBJECT

public:
    using EditorWindows::EditorWindows;

    QStringList m_stack = {QStringLiteral("MainWindow")};
    QHash<QString, QPoint> m_origins = {{QStringLiteral("MainWindow"), QPoint(90, 190)}};

    bool open(const QString &windowKey) override
    {
        if (m_stack.contains(windowKey)) {
            return true;
        }
        m_stack.append(windowKey);
        m_origins.insert(windowKey, QPoint(300, 400));
        Q_EMIT pushed(windowKey);
        Q_EMIT moved(windowKey, origin(windowKey));
        Q_EMIT happened({QStringLiteral("windowState"), windowKey, QStringLiteral("open"), windowKey});
        return true;
    }

    void close(const QString &windowKey) override
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
    [[nodiscard]] QPoint origin(const QString &windowKey) const override
    {
        return m_origins.value(windowKey);
    }
    [[nodiscard]] QString title(const QString &windowKey) const override
    {
        return windowKey + QStringLiteral("!");
    }
    [[nodiscard]] QRect screenRect() const override { return {0, 0, 1280, 960}; }
    void setProjectsFolder(const QString & /*folder*/) override {}
    void showProject(const QMap<QString, QString> & /*files*/) override {}
    [[nodiscard]] QSize applicationSize() const override { return {1100, 720}; }
};
