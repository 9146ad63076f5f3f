#pragma once

#include "FakeEditor.h"
#include "host/LessonSession.h"

#include <QSignalSpy>
#include <QTest>

#include <utility>

inline const QString kPointing = QStringLiteral(
    R"({"id":1,"x":10,"y":-20,"windowKey":"MainWindow","condition":"list,2","hint":"Choose","icon":"doubleClick"})");
inline const QString kReading = QStringLiteral(
    R"({"id":2,"x":-9999,"y":-9999,"windowKey":"","condition":"click,","hint":"Read","icon":"eye"})");

inline QString startCommand(const QString &items, const QString &id = QStringLiteral("-1"))
{
    return QStringLiteral("start\u0001var scenario = [%1];\u0001%2").arg(items, id);
}

/// A session of its own for each test, in an editor that nobody sees.
class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_windows = new FakeEditor;
        m_session = new LessonSession(m_windows, m_windows);
        m_session->setDoublePressMs(0);
        m_sent.clear();
        m_problems.clear();
        connect(m_session, &LessonSession::sends, this,
                [this](QString command) { m_sent << command.replace(QChar(1), QLatin1Char('|')); });
        connect(m_session, &LessonSession::problemFound, this,
                [this](const QString &problem) { m_problems << problem; });
    }
    void cleanup() { delete m_windows; }

protected:
    /// The commands since the last call, fields joined by "|".
    QStringList sent() { return std::exchange(m_sent, {}); }

    FakeEditor *m_windows = nullptr;
    LessonSession *m_session = nullptr;
    QStringList m_problems;

private:
    QStringList m_sent;
};
