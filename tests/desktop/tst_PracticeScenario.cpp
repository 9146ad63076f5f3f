#include "AuthorRun.h"
#include "PracticeTest.h"
#include "author/ScenarioPlayer.h"

#include <QCommandLineParser>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

#include <csignal>

namespace {

const QString kName = QStringLiteral("Harbor");

QString item(int id)
{
    return QStringLiteral(R"({"id":%1,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"click,",)"
                          R"("hint":qsTr("#%1"),"icon":"eye"})")
        .arg(id);
}

QByteArray catalogue(const QStringList &hints)
{
    QString messages;
    for (int id = 1; id <= hints.size(); ++id) {
        messages += QStringLiteral("<message><source>#%1</source><translation>%2</translation></message>")
                        .arg(QString::number(id), hints.at(id - 1));
    }
    return QStringLiteral("<TS version=\"2.1\" language=\"en_US\"><context><name>%1</name>%2</context></TS>")
        .arg(kName, messages)
        .toUtf8();
}

/// A key of the real keyboard, in the words of xdotool.
void press(const char *key)
{
    XWindows::run(QStringLiteral("xdotool"), {QStringLiteral("key"), QString::fromLatin1(key)});
}

} // namespace

/// An author's scenario file from disk, played with the real companion.
class tst_PracticeScenario : public PracticeTest
{
    Q_OBJECT

private Q_SLOTS:
    void staysAtTheStepWhenTheFileChanges();
    void isStartedAgain();
    void goesOnWhenTheCompanionHasDied();
    void keysAreRecorded();
    void aDoubleClickIsRecordedAsOneStep();

private:
    void write(const QString &fileName, const QByteArray &text) const;
    /// Starts the editor as the command line with this option does.
    void startWith(const QString &option);
    /// Plays a lesson of three steps, and goes on to the second.
    void playToTheSecond();
    /// Starts the editor so that it records; what it has written so far is in recorded().
    void startRecording();
    [[nodiscard]] QByteArray recorded() const;
    /// Presses the first button of the question that comes up.
    void accept(const char *question);

    QTemporaryDir m_folder;
    std::unique_ptr<QTemporaryDir> m_room;
    qint64 m_companion = 0;
};

void tst_PracticeScenario::write(const QString &fileName, const QByteArray &text) const
{
    QFile file(m_folder.filePath(fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void tst_PracticeScenario::staysAtTheStepWhenTheFileChanges()
{
    const QString scenario = kName + QStringLiteral(".js");
    const QString texts = kName + QStringLiteral(".en_US.ts");
    write(scenario, QStringLiteral("var scenario = [%1,%2,%3];").arg(item(1), item(2), item(3)).toUtf8());
    write(texts, catalogue({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")}));
    PracticeEditor::Options options = this->options();
    options.hasLessonOfItsOwn = true;
    options.lesson = 0;
    start(options);
    ScenarioPlayer player(ScenarioFile(m_folder.filePath(scenario), options.locale), -1,
                          &m_editor->session());
    QSignalSpy reloaded(&player, &ScenarioPlayer::reloaded);
    waitForTheLesson();
    XWindows::click(overlays().buttons.constFirst().rect.center());
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QCOMPARE(stripText()->text(), QStringLiteral("Two"));
    write(texts, catalogue({QStringLiteral("One"), QStringLiteral("Second"), QStringLiteral("Three")}));
    QTRY_COMPARE_WITH_TIMEOUT(reloaded.size(), 1, kSoonMs);
    QCOMPARE(stepId(), 2);
    QCOMPARE(stripText()->text(), QStringLiteral("Second"));
    // A step in front of it, and the present one is still the same.
    write(scenario, QStringLiteral("var scenario = [%1,%2,%3];").arg(item(3), item(1), item(2)).toUtf8());
    QTRY_COMPARE_WITH_TIMEOUT(reloaded.size(), 2, kSoonMs);
    QCOMPARE(stepId(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kSoonMs);
}

void tst_PracticeScenario::startWith(const QString &option)
{
    PracticeEditor::Options options = this->options();
    options.hasLessonOfItsOwn = true;
    options.lesson = 0;
    QStringList errors;
    std::unique_ptr<EditorWindowSet> windows = EditorWindowSet::create(options.locale, &errors);
    QVERIFY2(windows != nullptr, qPrintable(errors.join(QLatin1Char('\n'))));
    m_windows = windows.get();
    m_editor = std::make_unique<PracticeEditor>(options, std::move(windows));
    connect(m_editor.get(), &PracticeEditor::companionConnected, this,
            [this](qint64 pid) { m_companion = pid; });
    const AuthorOptions author;
    QCommandLineParser parser;
    author.addTo(&parser);
    QVERIFY2(parser.parse({QStringLiteral("PracticeEditor"), option}), qPrintable(parser.errorText()));
    author.apply(parser, options.locale, m_editor.get(), m_windows);
    QString error;
    QVERIFY2(m_editor->start(&error), qPrintable(error));
}

void tst_PracticeScenario::playToTheSecond()
{
    const QString scenario = kName + QStringLiteral(".js");
    write(scenario, QStringLiteral("var scenario = [%1,%2,%3];").arg(item(1), item(2), item(3)).toUtf8());
    write(kName + QStringLiteral(".en_US.ts"),
          catalogue({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")}));
    startWith(QStringLiteral("--scenario=") + m_folder.filePath(scenario));
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 1, kSoonMs);
    find<QPushButton>("nextButton")->click();
    QCOMPARE(stepId(), 2);
    // It is kept where the lesson goes on.
    QTRY_COMPARE_WITH_TIMEOUT(m_editor->course().entry(kName).progress.step, 2, kSoonMs);
}

void tst_PracticeScenario::accept(const char *question)
{
    const auto isAsked = [question] {
        const QWidget *const asks = QApplication::activeModalWidget();
        return asks != nullptr && asks->objectName() == QLatin1String(question);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isAsked(), kSoonMs);
    qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->buttons().constFirst()->click();
}

void tst_PracticeScenario::isStartedAgain()
{
    playToTheSecond();
    if (QTest::currentTestFailed()) {
        return;
    }
    find<QPushButton>("startAgainButton")->click();
    accept("startAgainMessageBox");
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 1, kSoonMs);
    QCOMPARE(stripText()->text(), QStringLiteral("One"));
}

void tst_PracticeScenario::goesOnWhenTheCompanionHasDied()
{
    playToTheSecond();
    if (QTest::currentTestFailed()) {
        return;
    }
    QCOMPARE(kill(pid_t(m_companion), SIGKILL), 0);
    accept("lostMessageBox");
    QTRY_COMPARE_WITH_TIMEOUT(stepId(), 2, kSoonMs);
    QCOMPARE(stripText()->text(), QStringLiteral("Two"));
}

void tst_PracticeScenario::startRecording()
{
    m_room = std::make_unique<QTemporaryDir>();
    startWith(QStringLiteral("--record=") + m_room->filePath(QStringLiteral("Recorded.js")));
    if (QTest::currentTestFailed()) {
        return;
    }
    const auto hasFocus = [this] {
        return XWindows::activeWindow() == mainWindow()->winId();
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasFocus(), kSoonMs);
}

QByteArray tst_PracticeScenario::recorded() const
{
    QFile file(m_room->filePath(QStringLiteral("Recorded.js")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_PracticeScenario::keysAreRecorded()
{
    startRecording();
    if (QTest::currentTestFailed()) {
        return;
    }
    auto *const tiles = contents()->findChild<QWidget *>(QStringLiteral("tiles"));
    QVERIFY(tiles != nullptr);
    tiles->setFocus();
    press("Down");
    press("ctrl+n");
    QTRY_VERIFY_WITH_TIMEOUT(m_windows->openWindows().contains(QStringLiteral("NewProject")), kSoonMs);
    press("F3"); // does nothing
    press("Escape");
    QTRY_VERIFY_WITH_TIMEOUT(!m_windows->openWindows().contains(QStringLiteral("NewProject")), kSoonMs);
    press("Down");
    QTRY_COMPARE_WITH_TIMEOUT(recorded().count("\"condition\""), 3, kSoonMs);
    for (const char *condition : {"list,1", "windowState,NewProject,open", "windowState,NewProject,close"}) {
        QVERIFY2(recorded().contains(condition), recorded().constData());
    }
}

void tst_PracticeScenario::aDoubleClickIsRecordedAsOneStep()
{
    startRecording();
    if (QTest::currentTestFailed()) {
        return;
    }
    Project *const project = m_windows->project();
    project->run(QStringLiteral("newProject.create"), project->files());
    const ControlSpot map{QStringLiteral("MapEditTreeBox"), QStringLiteral("maps"), 0};
    std::optional<QRect> row;
    QTRY_VERIFY_WITH_TIMEOUT((row = m_windows->rectOf(map)), kSoonMs);
    QTRY_VERIFY_WITH_TIMEOUT(XWindows::takesClick(mainWindow()->winId(), row->center()), kSoonMs);
    XWindows::run(QStringLiteral("xdotool"),
                  {QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                   QStringLiteral("--delay"), QStringLiteral("50"), QStringLiteral("1")});
    QTRY_VERIFY_WITH_TIMEOUT(m_windows->openWindows().contains(QStringLiteral("MapProperties")), kSoonMs);
    press("Escape"); // what was done before is done
    QTRY_VERIFY_WITH_TIMEOUT(recorded().contains("\"windowState,MapProperties,open\""), kSoonMs);
    QCOMPARE(recorded().count("\"condition\""), 1);
    QVERIFY2(recorded().contains("\"doubleClick\""), recorded().constData());
}

QTEST_MAIN(tst_PracticeScenario)
#include "tst_PracticeScenario.moc"
