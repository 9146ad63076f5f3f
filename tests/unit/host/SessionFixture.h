#pragma once

#include "FakeEditor.h"
#include "host/LessonSession.h"

#include <QSignalSpy>
#include <QTest>

/// A session that plays in an editor of a test, and what it said.
class Played
{
public:
    Played()
    {
        session.setDoublePressMs(0);
        QObject::connect(&session, &LessonSession::sends, &editor, [this](QString command) {
            told.append(command.replace(QChar(1), QLatin1Char('|')));
        });
    }

    /// Begins a lesson of these items, each the fields of one without braces.
    void play(const QStringList &items)
    {
        session.receive(scenario(items));
        turn();
    }
    static QString scenario(const QStringList &items)
    {
        return QStringLiteral("start\u0001var scenario = [{%1}];\u0001-1")
            .arg(items.join(QStringLiteral("},{")));
    }
    /// An item that points into a window.
    static QString item(int id, const char *window, const char *condition, const char *icon = "click",
                        const char *hint = "Hint")
    {
        return QStringLiteral(
                   R"("id":%1,"x":5,"y":6,"windowKey":"%2","condition":"%3","icon":"%4","hint":"%5")")
            .arg(id)
            .arg(QString::fromLatin1(window), QString::fromLatin1(condition), QString::fromLatin1(icon),
                 QString::fromUtf8(hint));
    }

    /// One turn of the event loop passes.
    static void turn()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// The person acts on a control from now on.
    void use(const char *window, const char *control, int part = -1)
    {
        turn();
        editor.m_cause = spot(window, control, part);
    }
    static ControlSpot spot(const char *window, const char *control, int part = -1)
    {
        return {QString::fromLatin1(window), QString::fromLatin1(control), part};
    }

    [[nodiscard]] int id() const { return session.runner().isRunning() ? session.runner().step().id : -1; }
    /// The last step that the companion was told.
    [[nodiscard]] QString lastTold() const
    {
        QString last;
        for (const QString &command : told) {
            last = command.startsWith(QLatin1String("indicator|update|")) ? command : last;
        }
        return last;
    }

    FakeEditor editor;
    LessonSession session{&editor};
    QStringList told;
};
