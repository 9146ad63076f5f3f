#include "AuthoringExample.h"
#include "AuthoringFixture.h"

namespace {

const QByteArray kLesson = QByteArrayLiteral("[{\"id\":1,\"name\":\"Intro\",\"x\":10,\"y\":20,\"windowKey\":"
                                             "\"MainWindow\"},{\"id\":5,\"name\":\"End\"}]");

} // namespace

/// The example in docs/authoring.md.
class tst_AuthoringExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void the_document_shows_this_code();
    void it_appends_a_moved_copy_and_saves();
    void it_is_one_step();
    void it_tells_what_went_wrong();

private:
    [[nodiscard]] QString run(const QString &fileName, int id) const
    {
        return appendMovedCopy(m_tool->manager(), m_tool->history(), fileName, id, QPoint(5, -3));
    }

    std::unique_ptr<AuthoringFixture> m_tool;
    QString m_lesson;
};

void tst_AuthoringExample::init()
{
    m_tool = std::make_unique<AuthoringFixture>();
    QVERIFY(m_tool->start());
    m_lesson = m_tool->file(QStringLiteral("Lesson.js"), kLesson);
    QVERIFY(!m_lesson.isEmpty());
}

void tst_AuthoringExample::cleanup()
{
    m_tool.reset();
    deleteOverlays();
}

void tst_AuthoringExample::the_document_shows_this_code()
{
    const QByteArray document =
        AuthoringFixture::contentOf(QStringLiteral(TUTORIAL_SOURCE_DIR "/docs/authoring.md"));
    const QByteArray code = AuthoringFixture::contentOf(
        QStringLiteral(TUTORIAL_SOURCE_DIR "/tests/unit/Tutorial/AuthoringExample.cpp"));
    const QByteArray first = "#include \"TutorialEditor/ItemTreeOperations.h\"";
    QVERIFY(code.contains(first));
    QVERIFY(document.contains("```cpp\n" + code.mid(code.indexOf(first)) + "```\n"));
}

void tst_AuthoringExample::it_appends_a_moved_copy_and_saves()
{
    QCOMPARE(run(m_lesson, 1), QString());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->load(m_lesson), QString());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 5 2"));
    QCOMPARE(m_tool->item(2)->name, QStringLiteral("Intro(1)"));
    QCOMPARE(m_tool->item(2)->x, 15);
    QCOMPARE(m_tool->item(2)->y, 17);
    QCOMPARE(m_tool->item(1)->x, 10);
}

void tst_AuthoringExample::it_is_one_step()
{
    QCOMPARE(run(m_lesson, 1), QString());
    const QString after = m_tool->document();
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 5"));
    QVERIFY(m_tool->modified());
    QVERIFY(!m_tool->canUndo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->document(), after);
    QVERIFY(!m_tool->modified());
}

void tst_AuthoringExample::it_tells_what_went_wrong()
{
    QCOMPARE(m_tool->load(m_lesson), QString());
    const QString missing = m_tool->path(QStringLiteral("None.js"));
    QCOMPARE(run(missing, 1), QStringLiteral("%1 has no step 1").arg(missing));
    QVERIFY(!QFileInfo::exists(missing));
    QCOMPARE(run(m_lesson, 9), QStringLiteral("%1 has no step 9").arg(m_lesson));
    QCOMPARE(m_tool->contentOf(m_lesson), kLesson);
    const QString broken = m_tool->file(QStringLiteral("Broken.js"), "[{\"name\":\"no id\"},{\"id\":1}]");
    QCOMPARE(run(broken, 1), QStringLiteral("Item 1 is left out: it is no object with an \"id\""));
    QCOMPARE(m_tool->contentOf(broken), QByteArray("[{\"name\":\"no id\"},{\"id\":1}]"));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_AuthoringExample>(argc, argv);
}

#include "tst_AuthoringExample.moc"
