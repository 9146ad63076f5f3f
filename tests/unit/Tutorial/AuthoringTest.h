#pragma once

#include "AuthoringFixture.h"

#include <QObject>

#include <memory>

/// An author's tool for each test, with a little lesson in a file.
class AuthoringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<AuthoringFixture>();
        QVERIFY(m_tool->start());
        QVERIFY(!m_tool->file(QStringLiteral("Lesson.js"), lessonText()).isEmpty());
    }
    void cleanup()
    {
        // A locale brings its translator along, and the latest one speaks.
        m_tool->manager()->setProperty("locale", QStringLiteral("en_US"));
        m_tool.reset();
        deleteOverlays();
    }

protected:
    [[nodiscard]] static QByteArray lessonText()
    {
        return QByteArrayLiteral(
            "var scenario = [\n"
            "{\"id\":1,\"name\":\"Intro\",\"translationId\":1,\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\","
            "\"hint\":qsTr(\"#1\")},\n"
            "// a folder\n"
            "{\"id\":2,\"name\":\"Part\",\"folder\":true,\"children\":[\n"
            "{\"id\":3,\"name\":\"Inside\",\"translationId\":2,\"hint\":qsTr(\"#2\")}]},\n"
            "{\"id\":4,\"translationId\":3}\n"
            "];\n");
    }
    [[nodiscard]] static QString sourceLabel()
    {
        return QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp ");
    }
    [[nodiscard]] QString lesson() const { return m_tool->path(QStringLiteral("Lesson.js")); }

    std::unique_ptr<AuthoringFixture> m_tool;
};
