#include "PracticeEditor.h"
#include "PracticeTranslator.h"
#include "host/LessonHistory.h"
#include "window/EditorWindowSet.h"

#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

constexpr int kSoonMs = 25000; // what ends after 30 silent seconds has to end before

/// Process ids of the children of @p parent.
QVector<qint64> childrenOf(qint64 parent)
{
    QProcess pgrep;
    pgrep.start(QStringLiteral("pgrep"), {QStringLiteral("-P"), QString::number(parent)});
    pgrep.waitForFinished();
    QVector<qint64> children;
    const QList<QByteArray> lines = pgrep.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.isEmpty()) {
            children.append(line.toLongLong());
        }
    }
    return children;
}

/// A process that has ended and that nobody has asked after yet does not count.
bool isAlive(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    return stat.open(QIODevice::ReadOnly) && !stat.readAll().contains(") Z ");
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void end(qint64 pid, int signal)
{
    ::kill(static_cast<pid_t>(pid), signal);
}

} // namespace

/// Who ends whom, with the real companion.
class tst_PracticeLife : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closingTheEditorEndsTheCompanion();
    void killingTheEditorEndsTheCompanionWithinASecond();
    void aTerminatedEditorLeavesNothingBehind();
    void goesAwayInGoodOrderUnderAnOpenDialog();
    void aKilledCompanionIsRestartedOnRequest();
    void aLossIsToldInThePersonsLanguage_data();
    void aLossIsToldInThePersonsLanguage();
    void aLessonThatIsChosenBringsALostCompanionBack();
    void aLessonGoesOnAtItsStepWhenTheCompanionDied();
    void aLessonGoesOnAtItsStepInTheNextRun();
    void theNextRunOffersThePlaceOfTheLastProject();
    void aLessonCanBeginAtOnceWhereverItWasLeft();
    void aMissingCompanionIsSaid();
    void wrongOptionsAreSaid_data();
    void wrongOptionsAreSaid();

private:
    static PracticeEditor::Options options();
    static std::unique_ptr<EditorWindows> windows();
    /// The message box that is open; nullptr when there is none.
    static QMessageBox *messageBox();
    static QAbstractButton *acceptButton(const QMessageBox &box);
    /// Presses the button with this name, wherever it is.
    static void press(const char *name);
};

PracticeEditor::Options tst_PracticeLife::options()
{
    PracticeEditor::Options options;
    options.lesson = 1;
    options.locale = QStringLiteral("en_US");
    options.companionProgram = QStringLiteral(TUTORIAL_PROGRAM);
    return options;
}

std::unique_ptr<EditorWindows> tst_PracticeLife::windows()
{
    QStringList errors;
    return EditorWindowSet::create(QStringLiteral("en_US"), &errors);
}

QMessageBox *tst_PracticeLife::messageBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QAbstractButton *tst_PracticeLife::acceptButton(const QMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (box.buttonRole(button) == QMessageBox::AcceptRole) {
            return button;
        }
    }
    return nullptr;
}

void tst_PracticeLife::press(const char *name)
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *widget : topLevels) {
        if (auto *button = widget->findChild<QAbstractButton *>(QString::fromLatin1(name))) {
            button->click();
            return;
        }
    }
    QFAIL(name);
}

void tst_PracticeLife::closingTheEditorEndsTheCompanion()
{
    qint64 companion = 0;
    {
        PracticeEditor editor(options(), windows());
        QString error;
        QVERIFY2(editor.start(&error), qPrintable(error));
        QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
        companion = childrenOf(QCoreApplication::applicationPid()).value(0);
        QVERIFY(isAlive(companion));
        QSignalSpy ended(&editor, &PracticeEditor::ended);
        const QWidgetList topLevels = QApplication::topLevelWidgets();
        for (QWidget *widget : topLevels) {
            if (widget->findChild<QWidget *>(QStringLiteral("MainWindow")) != nullptr) {
                widget->close();
            }
        }
        QCOMPARE(ended.size(), 1);
    }
    QVERIFY(!isAlive(companion));
}

void tst_PracticeLife::killingTheEditorEndsTheCompanionWithinASecond()
{
    // The companion writes its log where it can be read when the editor is gone.
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log"));
    QFile wrapper(folder.filePath(QStringLiteral("Guide")));
    QVERIFY(wrapper.open(QIODevice::WriteOnly));
    wrapper.write(QStringLiteral("#!/bin/sh\nexec '" TUTORIAL_PROGRAM "' \"$@\" 2>'%1'\n").arg(log).toUtf8());
    wrapper.close();
    QVERIFY(wrapper.setPermissions(QFile::ReadOwner | QFile::ExeOwner));

    QProcess editor;
    editor.start(QStringLiteral(PRACTICE_PROGRAM), {QStringLiteral("--lesson"), QStringLiteral("1"),
                                                    QStringLiteral("--companion"), wrapper.fileName()});
    QVERIFY(editor.waitForStarted(kSoonMs));
    QTRY_VERIFY_WITH_TIMEOUT(contentsOf(log).contains("TutorialManager::onConnected 408"), kSoonMs);
    const qint64 companion = childrenOf(editor.processId()).value(0);
    QVERIFY(isAlive(companion));
    end(editor.processId(), SIGKILL);
    QVERIFY(editor.waitForFinished(kSoonMs));
    // Each second of the companion's own time is a heartbeat in its log, however late anyone is to look.
    const auto heartbeats = [&log] {
        return contentsOf(log).count("TutorialManager::send 1396 \"alive\"");
    };
    const int before = heartbeats();
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(companion), kSoonMs);
    QVERIFY(contentsOf(log).contains("TutorialManager::onDisconnected 414"));
    QVERIFY2(heartbeats() <= before + 1, contentsOf(log).constData());
}

void tst_PracticeLife::aTerminatedEditorLeavesNothingBehind()
{
    const QString key = QStringLiteral("life%1").arg(QCoreApplication::applicationPid());
    const QString socket = QDir::temp().filePath(QStringLiteral("tkvq") + key);
    QProcess editor;
    editor.start(QStringLiteral(PRACTICE_PROGRAM), {QStringLiteral("--key"), key});
    QVector<qint64> children;
    QTRY_VERIFY_WITH_TIMEOUT(!(children = childrenOf(editor.processId())).isEmpty(), kSoonMs);
    QVERIFY(QFile::exists(socket));
    editor.terminate();
    QVERIFY(editor.waitForFinished(kSoonMs));
    QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
    const QByteArray said = editor.readAllStandardError();
    QVERIFY2(editor.exitCode() == 128 + SIGTERM, said.constData());
    QVERIFY(!isAlive(children.constFirst()));
    QVERIFY(!QFile::exists(socket));
}

void tst_PracticeLife::goesAwayInGoodOrderUnderAnOpenDialog()
{
    PracticeEditor::Options withoutLesson = options();
    withoutLesson.lesson = 0;
    qint64 companion = 0;
    {
        PracticeEditor editor(withoutLesson, windows());
        QString error;
        QVERIFY2(editor.start(&error), qPrintable(error));
        // The list of lessons blocks the main window until it is deleted, in the midst of the editor's own
        // end.
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() != nullptr, kSoonMs);
        companion = childrenOf(QCoreApplication::applicationPid()).value(0);
        QVERIFY(isAlive(companion));
    }
    QVERIFY(!isAlive(companion));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_PracticeLife::aKilledCompanionIsRestartedOnRequest()
{
    PracticeEditor editor(options(), windows());
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    const qint64 first = childrenOf(QCoreApplication::applicationPid()).value(0);
    end(first, SIGKILL);

    QTRY_VERIFY_WITH_TIMEOUT(messageBox() != nullptr, kSoonMs);
    QCOMPARE(messageBox()->objectName(), QStringLiteral("lostMessageBox"));
    QVERIFY(!editor.session().runner().isRunning());
    acceptButton(*messageBox())->click();
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    QCOMPARE(editor.session().lessonName(), QStringLiteral("TutorialStep1"));
    const qint64 second = childrenOf(QCoreApplication::applicationPid()).value(0);
    QVERIFY(second != first && isAlive(second));
}

void tst_PracticeLife::aLossIsToldInThePersonsLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("guide");
    QTest::addColumn<QString>("restart");
    QTest::addColumn<QString>("wrong");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("The guide")
                             << QStringLiteral("Restart") << QStringLiteral("Something went wrong.");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("ガイド")
                              << QStringLiteral("もう一度起動") << QStringLiteral("問題が起きました。");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("向导")
                             << QStringLiteral("重新启动") << QStringLiteral("出错了。");
}

void tst_PracticeLife::aLossIsToldInThePersonsLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, guide);
    QFETCH(QString, restart);
    QFETCH(QString, wrong);
    const QTemporaryDir folder;
    PracticeEditor::Options inLanguage = options();
    inLanguage.locale = locale;
    inLanguage.companionProgram = folder.filePath(QStringLiteral("Guide"));
    QVERIFY(QFile::link(QStringLiteral(TUTORIAL_PROGRAM), inLanguage.companionProgram));
    const PracticeTranslator translator(locale);
    PracticeEditor editor(inLanguage, windows());
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    // It ends, and cannot be started again.
    QVERIFY(QFile::remove(inLanguage.companionProgram));
    end(childrenOf(QCoreApplication::applicationPid()).value(0), SIGKILL);

    QTRY_VERIFY_WITH_TIMEOUT(messageBox() != nullptr, kSoonMs);
    QVERIFY2(messageBox()->text().startsWith(guide), qPrintable(messageBox()->text()));
    QCOMPARE(acceptButton(*messageBox())->text(), restart);
    acceptButton(*messageBox())->click();
    QTRY_VERIFY_WITH_TIMEOUT(messageBox() != nullptr && messageBox()->text() == wrong, kSoonMs);
    const QString details = messageBox()->informativeText();
    QVERIFY2(details.contains(guide, Qt::CaseInsensitive), qPrintable(details));
    QVERIFY2(details.contains(inLanguage.companionProgram), qPrintable(details));
    acceptButton(*messageBox())->click();
    QTRY_VERIFY_WITH_TIMEOUT(messageBox() == nullptr, kSoonMs);
}

void tst_PracticeLife::aLessonThatIsChosenBringsALostCompanionBack()
{
    PracticeEditor editor(options(), windows());
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    end(childrenOf(QCoreApplication::applicationPid()).value(0), SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(messageBox() != nullptr, kSoonMs);
    messageBox()->reject(); // on without the guide
    QTRY_VERIFY_WITH_TIMEOUT(messageBox() == nullptr, kSoonMs);
    press("lessonsButton");
    press("beginButton");
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    QCOMPARE(childrenOf(QCoreApplication::applicationPid()).size(), 1);
}

void tst_PracticeLife::aLessonGoesOnAtItsStepWhenTheCompanionDied()
{
    PracticeEditor editor(options(), windows());
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    press("nextButton");
    QTRY_COMPARE_WITH_TIMEOUT(editor.session().runner().index(), 1, kSoonMs);
    // A place is kept once the step has begun, at the end of the turn.
    QTRY_COMPARE_WITH_TIMEOUT(LessonHistory::stepOf(editor.session().bookmark()), 2, kSoonMs);
    end(childrenOf(QCoreApplication::applicationPid()).value(0), SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(messageBox() != nullptr, kSoonMs);
    acceptButton(*messageBox())->click();
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    QCOMPARE(editor.session().runner().index(), 1);
}

void tst_PracticeLife::aLessonGoesOnAtItsStepInTheNextRun()
{
    const QTemporaryDir folder;
    PracticeEditor::Options kept = options();
    kept.progressFolder = folder.path();
    const QString progress = folder.filePath(QStringLiteral("progress.json"));
    {
        PracticeEditor editor(kept, windows());
        QString error;
        QVERIFY2(editor.start(&error), qPrintable(error));
        QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
        press("nextButton");
        press("skipButton");
        QTRY_COMPARE_WITH_TIMEOUT(editor.session().runner().index(), 2, kSoonMs);
        QTRY_VERIFY_WITH_TIMEOUT(contentsOf(progress).contains("\"step\":3"), kSoonMs);
    }
    PracticeEditor editor(kept, windows());
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    // It asks: from where?
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() != nullptr, kSoonMs);
    QVERIFY(!editor.session().runner().isRunning());
    press("goOnButton");
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    QCOMPARE(editor.session().runner().index(), 2);
}

void tst_PracticeLife::theNextRunOffersThePlaceOfTheLastProject()
{
    const QTemporaryDir folder;
    PracticeEditor::Options kept = options();
    kept.projectsFolder = folder.filePath(QStringLiteral("usual"));
    kept.placeFile = folder.filePath(QStringLiteral("places.ini"));
    const QString chosen = folder.filePath(QStringLiteral("\u904A\u3073"));
    const QString location = QStringLiteral("newProject.location");
    for (const QString &offered : {kept.projectsFolder, chosen}) {
        QStringList errors;
        auto set = EditorWindowSet::create(kept.locale, &errors);
        Project &project = *set->project();
        const PracticeEditor editor(kept, std::move(set));
        QCOMPARE(project.fields().value(location, project.files()).toString(), offered);
        project.fields().setValue(location, chosen, project.files());
        project.run(QStringLiteral("newProject.create"), project.files());
        QVERIFY(project.isOpen());
    }
    QVERIFY(QDir(chosen).removeRecursively());
    QStringList errors;
    auto set = EditorWindowSet::create(kept.locale, &errors);
    Project &project = *set->project();
    const PracticeEditor editor(kept, std::move(set));
    QCOMPARE(project.fields().value(location, project.files()).toString(), kept.projectsFolder);
}

void tst_PracticeLife::aLessonCanBeginAtOnceWhereverItWasLeft()
{
    const QTemporaryDir folder;
    PracticeEditor::Options kept = options();
    kept.progressFolder = folder.path();
    {
        PracticeEditor editor(kept, windows());
        QString error;
        QVERIFY2(editor.start(&error), qPrintable(error));
        QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
        press("nextButton");
        QTRY_VERIFY_WITH_TIMEOUT(
            contentsOf(folder.filePath(QStringLiteral("progress.json"))).contains("\"step\":2"), kSoonMs);
    }
    kept.beginsAtOnce = true;
    PracticeEditor editor(kept, windows());
    editor.session().setFirstStep(7);
    QString error;
    QVERIFY2(editor.start(&error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(editor.session().runner().isRunning(), kSoonMs);
    QCOMPARE(editor.session().runner().step().id, 7);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_PracticeLife::aMissingCompanionIsSaid()
{
    PracticeEditor::Options missing = options();
    missing.companionProgram = QStringLiteral("/nowhere/Tutorial");
    PracticeEditor editor(missing, windows());
    QString error;
    QVERIFY(!editor.start(&error));
    QVERIFY2(error.contains(QStringLiteral("/nowhere/Tutorial")), qPrintable(error));
}

void tst_PracticeLife::wrongOptionsAreSaid_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("no such lesson") << QStringList{QStringLiteral("--lesson"), QStringLiteral("20")}
                                    << QByteArray("no lesson 20");
    QTest::newRow("no number") << QStringList{QStringLiteral("--lesson"), QStringLiteral("one")}
                               << QByteArray("no lesson one");
    QTest::newRow("no such locale") << QStringList{QStringLiteral("--locale"), QStringLiteral("fr_FR")}
                                    << QByteArray("no locale fr_FR");
    QTest::newRow("a pilot without a lesson")
        << QStringList{QStringLiteral("--pilot")} << QByteArray("--lesson N");
    QTest::newRow("a pilot without an X display")
        << QStringList{QStringLiteral("--pilot"), QStringLiteral("--lesson"), QStringLiteral("1")}
        << QByteArray("--pilot cannot play here");
    QTest::newRow("an answer that is none")
        << QStringList{QStringLiteral("--pilot"), QStringLiteral("--lesson"), QStringLiteral("1"),
                       QStringLiteral("--way"), QStringLiteral("maybe")}
        << QByteArray("--way takes yes, no or both");
    QTest::newRow("a lesson that no pilot knows")
        << QStringList{QStringLiteral("--pilot"), QStringLiteral("--lesson"), QStringLiteral("20")}
        << QByteArray("--lesson takes 1 to 19 or all");
    QTest::newRow("a clock that stands still")
        << QStringList{QStringLiteral("--pilot"), QStringLiteral("--lesson"), QStringLiteral("1"),
                       QStringLiteral("--clock"), QStringLiteral("0")}
        << QByteArray("--clock takes a whole number from 1");
    QTest::newRow("a key that names no server")
        << QStringList{QStringLiteral("--key"), QStringLiteral("a/b/c")} << QByteArray("cannot listen");
}

void tst_PracticeLife::wrongOptionsAreSaid()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QProcess editor;
    editor.start(QStringLiteral(PRACTICE_PROGRAM), arguments);
    QVERIFY(editor.waitForFinished(kSoonMs));
    QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
    QCOMPARE(editor.exitCode(), 2);
    const QByteArray said = editor.readAllStandardError();
    QVERIFY2(said.contains(message), said.constData());
}

QTEST_MAIN(tst_PracticeLife)
#include "tst_PracticeLife.moc"
