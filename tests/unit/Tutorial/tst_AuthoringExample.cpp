#include "AuthoringExample.h"
#include "AuthoringFixture.h"

#include <QProcess>

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

    void theDocumentShowsThisCode_data();
    void theDocumentShowsThisCode();
    void theProgramAppendsAMovedCopy();
    void theProgramTellsWhatWentWrong();
    void itAppendsAMovedCopyAndSaves();
    void aStepThatPointsAtNothingStaysSo();
    void itIsOneStep();
    void itTellsWhatWentWrong();

private:
    struct Run
    {
        int status;
        QString output;
    };
    [[nodiscard]] static Run runProgram(const QStringList &arguments);
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

void tst_AuthoringExample::theDocumentShowsThisCode_data()
{
    QTest::addColumn<QByteArray>("shown");
    const QString folder = QStringLiteral(TUTORIAL_SOURCE_DIR "/tests/unit/Tutorial/");
    const QStringList names{QStringLiteral("AppendCopy.cpp"), QStringLiteral("AuthoringExample.cpp")};
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << "```cpp\n" + AuthoringFixture::contentOf(folder + name) + "```\n";
    }
    const QByteArray rules = AuthoringFixture::contentOf(folder + QStringLiteral("CMakeLists.txt"));
    const int begin = rules.indexOf("add_executable(append-copy ");
    const int end = rules.indexOf("set_target_properties(append-copy ", begin);
    QTest::newRow("CMakeLists.txt") << "```cmake\n" + rules.mid(begin, end - begin) + "```\n";
}

void tst_AuthoringExample::theDocumentShowsThisCode()
{
    QFETCH(QByteArray, shown);
    const QByteArray document =
        AuthoringFixture::contentOf(QStringLiteral(TUTORIAL_SOURCE_DIR "/docs/authoring.md"));
    QVERIFY2(document.contains(shown), shown.constData());
}

tst_AuthoringExample::Run tst_AuthoringExample::runProgram(const QStringList &arguments)
{
    QProcess program;
    program.start(QStringLiteral(APPEND_COPY), arguments);
    if (!program.waitForFinished(ManagerFixture::kLimitMs) || program.exitStatus() != QProcess::NormalExit) {
        return {-1, program.errorString()};
    }
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput())};
}

void tst_AuthoringExample::theProgramAppendsAMovedCopy()
{
    const Run done = runProgram({QStringLiteral("no-host"), m_lesson, QStringLiteral("1"),
                                 QStringLiteral("5"), QStringLiteral("-3")});
    QCOMPARE(done.output, QString());
    QCOMPARE(done.status, 0);
    QCOMPARE(m_tool->load(m_lesson), QString());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 5 2"));
    QCOMPARE(m_tool->item(2)->x, 15);
    QCOMPARE(m_tool->item(2)->y, 17);
}

void tst_AuthoringExample::theProgramTellsWhatWentWrong()
{
    const Run failed = runProgram({QStringLiteral("no-host"), m_lesson, QStringLiteral("9"),
                                   QStringLiteral("5"), QStringLiteral("-3")});
    QCOMPARE(failed.output, QStringLiteral("%1 has no step 9").arg(m_lesson));
    QCOMPARE(failed.status, 1);
    const Run usage = runProgram({QStringLiteral("no-host")});
    QCOMPARE(usage.output, QStringLiteral("append-copy KEY FILE ID DX DY\n"));
    QCOMPARE(usage.status, 2);
    QCOMPARE(m_tool->contentOf(m_lesson), kLesson);
}

void tst_AuthoringExample::itAppendsAMovedCopyAndSaves()
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

void tst_AuthoringExample::aStepThatPointsAtNothingStaysSo()
{
    QCOMPARE(run(m_lesson, 5), QString());
    QCOMPARE(m_tool->item(2)->name, QStringLiteral("End(1)"));
    QCOMPARE(m_tool->item(2)->x, -9999);
    QCOMPARE(m_tool->item(2)->y, -9999);
}

void tst_AuthoringExample::itIsOneStep()
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

void tst_AuthoringExample::itTellsWhatWentWrong()
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
