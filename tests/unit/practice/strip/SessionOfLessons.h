#pragma once

#include "FakeEditor.h"
#include "host/LessonSession.h"
#include "strip/LessonCatalog.h"

/// A session whose companion is the test: it has listed three lessons, and hands one over when the test says
/// so. The second of the three is one that is not written yet.
struct SessionOfLessons
{
    FakeEditor m_editor;
    LessonSession m_session{&m_editor};
    /// Commands to the companion, fields joined by "|".
    QStringList m_sent;
    /// Lists that were asked for, and have not been answered.
    int m_listsDue = 0;

    SessionOfLessons()
    {
        QObject::connect(&m_session, &LessonSession::sends, &m_editor, [this](QString command) {
            m_sent << command.replace(QChar(1), QLatin1Char('|'));
            m_listsDue += m_sent.constLast() == QLatin1String("tutorialList") ? 1 : 0;
        });
    }

    /// What is known of the lessons, the second one being unwritten.
    static LessonCatalog catalog()
    {
        return LessonCatalog(QStringLiteral("en_US"),
                             QStringLiteral(TUTORIAL_SOURCE_DIR "/tests/unit/practice/strip/lessons.json"));
    }

    static QString first() { return QStringLiteral("TutorialStep1"); }
    static QString unwritten() { return QStringLiteral("TutorialStep19"); }
    static QString last() { return QStringLiteral("Another"); }

    void list()
    {
        m_session.receive(QStringLiteral("tutorialList\u0001[{\"filename\":\"%1\",\"title\":\"Maps\"},"
                                         "{\"filename\":\"%2\",\"title\":\"People\"},"
                                         "{\"filename\":\"%3\",\"title\":\"Doors\"}]")
                              .arg(first(), unwritten(), last()));
    }

    /// It answers in order, and where a lesson is given up its list is asked for ahead of the next one.
    void answerLists()
    {
        for (; m_listsDue > 0; --m_listsDue) {
            list();
        }
    }

    /// The companion hands over the lesson that was asked for: a step to read, a question, one that asks to
    /// drag, and one to read.
    void handOver()
    {
        answerLists();
        m_session.receive(QStringLiteral(
            "start\u0001var scenario = ["
            R"({"id":1,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"click,","hint":"Read","icon":"eye"},)"
            R"({"id":2,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"yesNo","hint":"Well?","icon":"eye"},)"
            R"({"id":3,"x":10,"y":10,"windowKey":"MainWindow","condition":"list,2","hint":"Press, drag","icon":"click"},)"
            R"({"id":4,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"click,","hint":"Done","icon":"eye"}])"
            "\u0001-1"));
    }

    [[nodiscard]] int stepId() const
    {
        return m_session.runner().isRunning() ? m_session.runner().step().id : -1;
    }

    [[nodiscard]] int asked(const QString &lesson) const
    {
        return m_sent.count(QStringLiteral("tutorial|%1").arg(lesson));
    }
};
