#include "FakeEditor.h"
#include "author/Recorder.h"
#include "author/ScenarioFile.h"
#include "lesson/Scenario.h"
#include "lesson/description/ControlSpots.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Press = Recorder::Press;

const QPoint kWindow(90, 190); // where the main window stands
const QPoint kClick(138, 230);

QString inWords(const RecordedStep &step)
{
    const QPoint place = step.position.value_or(QPoint(-9999, -9999));
    return QStringLiteral("%1 %2 %3 (%4, %5)")
        .arg(step.icon, step.condition, step.windowKey)
        .arg(place.x())
        .arg(place.y());
}

} // namespace

/// What an author does, as a lesson has it.
class tst_Recorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aClickIsWhatCameOfIt();
    void theMostTellingOfSeveralEffectsCounts();
    void aDoubleClickIsOneStep();
    void aDragIsAClickToTheCondition();
    void aRightClickOpensAMenu();
    void aPressBesideAMenuIsForTheWindowBelow();
    void typingIsAStepAtTheFieldThatWasClicked();
    void typedAndLeftIsFollowedByNext();
    void keysAloneAreOfTheWindowInWhichTheyAct();
    void keysThatWriteNothingAreAStepIfSomethingCameOfThem();
    void keysThatGoElsewhereAreNotOfTheControlThatWasClicked();
    void anEntryOfTheMenuBarIsTheControlThatItStandsFor();
    void aWindowThatClosesByItselfIsWaitedFor();
    void aClickWithoutEffectIsNoStep();
    void theFilesAreALessonThatCanBePlayed();
    void aFileThatIsThereIsLeftAlone();

private:
    QStringList steps();
    /// In the window.
    static QPoint centreOf(const char *window, const char *control);
    [[nodiscard]] QString path(const QString &name) const { return m_room->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_room;
    std::unique_ptr<FakeEditor> m_editor;
    std::unique_ptr<Recorder> m_recorder;
};

void tst_Recorder::init()
{
    m_room = std::make_unique<QTemporaryDir>();
    m_editor = std::make_unique<FakeEditor>();
    QStringList errors;
    const DescriptionSet windows =
        DescriptionSet::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    QCOMPARE(errors, QStringList());
    m_recorder =
        std::make_unique<Recorder>(m_editor.get(), windows, LessonRecord(path(QStringLiteral("Harbor.js"))));
}

QPoint tst_Recorder::centreOf(const char *window, const char *control)
{
    QStringList errors;
    const DescriptionSet windows =
        DescriptionSet::read(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    return pointOf(windows, {QString::fromLatin1(window), QString::fromLatin1(control), -1}).value();
}

QStringList tst_Recorder::steps()
{
    m_recorder->finish();
    QStringList words;
    for (const RecordedStep &step : m_recorder->record().steps()) {
        words += inWords(step);
    }
    return words;
}

void tst_Recorder::aClickIsWhatCameOfIt()
{
    m_recorder->press(Press::kClick, kClick);
    m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
    // From the window, and less the way from the bubble to its tip.
    QCOMPARE(steps(), QStringList(QStringLiteral("click list,2 MainWindow (10, -92)")));
}

void tst_Recorder::theMostTellingOfSeveralEffectsCounts()
{
    m_recorder->press(Press::kClick, kClick);
    m_editor->report(QStringLiteral("action"), QStringLiteral("fileNew"), QStringLiteral("open"));
    m_editor->open(QStringLiteral("NewProject"));
    m_editor->report(QStringLiteral("list"), QStringLiteral("0"));
    m_recorder->press(Press::kClick, kClick);
    m_editor->report(QStringLiteral("action"), QStringLiteral("drawPencil"));
    QCOMPARE(steps(), (QStringList{QStringLiteral("click windowState,NewProject,open MainWindow (10, -92)"),
                                   QStringLiteral("click action,drawPencil, NewProject (-200, -302)")}));
}

void tst_Recorder::aDoubleClickIsOneStep()
{
    m_recorder->press(Press::kClick, kClick);
    m_editor->report(QStringLiteral("list"), QStringLiteral("1"));
    m_recorder->press(Press::kDoubleClick, kClick);
    m_editor->open(QStringLiteral("MapProperties"));
    QCOMPARE(steps(),
             QStringList(QStringLiteral("doubleClick windowState,MapProperties,open MainWindow (10, -92)")));
}

void tst_Recorder::aDragIsAClickToTheCondition()
{
    m_recorder->press(Press::kClick, kClick);
    m_editor->report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"));
    m_editor->report(QStringLiteral("mouseEvent"), QStringLiteral("Map"), QStringLiteral("drag"));
    QCOMPARE(steps(), QStringList(QStringLiteral("click mouseEvent,Map,click MainWindow (10, -92)")));
}

void tst_Recorder::aRightClickOpensAMenu()
{
    m_recorder->press(Press::kRightClick, kClick);
    m_editor->report(QStringLiteral("popup"), QStringLiteral("MapPopup"));
    m_editor->report(QStringLiteral("menuEvent"), QStringLiteral("Map"), QStringLiteral("click"));
    QCOMPARE(steps(), QStringList(QStringLiteral("rightClick popup,MapPopup MainWindow (10, -92)")));
}

void tst_Recorder::aPressBesideAMenuIsForTheWindowBelow()
{
    m_editor->m_stack.append(QStringLiteral("Popup"));
    m_recorder->press(Press::kClick, kClick);
    m_editor->m_stack.removeLast();
    m_editor->report(QStringLiteral("list"), QStringLiteral("3"));
    QCOMPARE(steps(), QStringList(QStringLiteral("click list,3 MainWindow (10, -92)")));
}

void tst_Recorder::typingIsAStepAtTheFieldThatWasClicked()
{
    m_editor->open(QStringLiteral("MapProperties"));
    m_recorder->press(Press::kClick, {340, 440});
    for (int i = 0; i < 3; ++i) {
        m_recorder->type();
        m_editor->report(QStringLiteral("textLength"), QStringLiteral("name"), QString::number(i));
    }
    m_recorder->type(); // Enter
    m_editor->close(QStringLiteral("MapProperties"));
    QCOMPARE(steps(),
             QStringList(QStringLiteral("keyboard windowState,MapProperties,close MapProperties (2, -92)")));
}

void tst_Recorder::typedAndLeftIsFollowedByNext()
{
    m_recorder->press(Press::kClick, kClick);
    m_recorder->type();
    QCOMPARE(steps(), QStringList(QStringLiteral("keyboard click, MainWindow (10, -92)")));
}

void tst_Recorder::keysAloneAreOfTheWindowInWhichTheyAct()
{
    m_editor->open(QStringLiteral("ImageSelector"));
    m_recorder->type();
    m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
    m_recorder->finish();
    m_recorder->type();
    QCOMPARE(steps(), (QStringList{QStringLiteral("keyboard list,2 ImageSelector (-9999, -9999)"),
                                   QStringLiteral("keyboard click, ImageSelector (-9999, -9999)")}));
}

void tst_Recorder::keysThatWriteNothingAreAStepIfSomethingCameOfThem()
{
    m_editor->open(QStringLiteral("ImageSelector"));
    m_recorder->type(Recorder::Keys::kOther); // an arrow
    m_editor->report(QStringLiteral("list"), QStringLiteral("2"));
    m_recorder->type(Recorder::Keys::kOther); // another one, at the end of the list
    QCOMPARE(steps(), QStringList{QStringLiteral("keyboard list,2 ImageSelector (-9999, -9999)")});
}

void tst_Recorder::keysThatGoElsewhereAreNotOfTheControlThatWasClicked()
{
    m_recorder->press(Press::kClick, kClick); // on a grey button
    m_recorder->type(Recorder::Keys::kOther);
    m_editor->m_cause = {QStringLiteral("MainWindow"), QStringLiteral("tiles"), 3};
    m_editor->report(QStringLiteral("list"), QStringLiteral("3"));
    m_editor->m_cause = {};
    m_recorder->press(Press::kClick, kClick); // on the menu's title
    m_recorder->type(Recorder::Keys::kOther);
    m_editor->m_cause = {QStringLiteral("MainWindow"), QStringLiteral("fileSave"), -1};
    m_editor->report(QStringLiteral("action"), QStringLiteral("fileSave"), QStringLiteral("close"));
    QCOMPARE(steps(),
             (QStringList{QStringLiteral("keyboard list,3 MainWindow (-9999, -9999)"),
                          QStringLiteral("keyboard action,fileSave,close MainWindow (-9999, -9999)")}));
}

void tst_Recorder::anEntryOfTheMenuBarIsTheControlThatItStandsFor()
{
    m_recorder->press(Press::kClick, kClick); // on the menu's title, which reports nothing
    m_recorder->press(Press::kClick, kClick + QPoint(0, 60));
    m_editor->m_cause = {QStringLiteral("MainWindow"), QStringLiteral("fileSave"), -1};
    m_editor->report(QStringLiteral("action"), QStringLiteral("fileSave"), QStringLiteral("close"));
    m_editor->m_cause = {};
    m_recorder->press(Press::kClick, kWindow + centreOf("MainWindow", "fileSave"));
    m_editor->report(QStringLiteral("action"), QStringLiteral("fileSave"), QStringLiteral("close"));
    const QStringList told = steps();
    QCOMPARE(told.size(), 2);
    QVERIFY2(told.at(0).startsWith(QStringLiteral("click action,fileSave,close MainWindow (")),
             qPrintable(told.at(0)));
    QCOMPARE(told.at(0), told.at(1));
}

void tst_Recorder::aWindowThatClosesByItselfIsWaitedFor()
{
    m_recorder->press(Press::kClick, kClick);
    m_editor->open(QStringLiteral("Copying"));
    m_editor->close(QStringLiteral("Copying"));
    const QStringList told = steps();
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.at(0), QStringLiteral("click windowState,Copying,open MainWindow (10, -92)"));
    QVERIFY2(told.at(1).startsWith(QStringLiteral("wait windowState,Copying,close Copying (")),
             qPrintable(told.at(1)));
}

void tst_Recorder::aClickWithoutEffectIsNoStep()
{
    m_recorder->press(Press::kClick, kClick);
    m_recorder->press(Press::kClick, kWindow);
    QCOMPARE(steps(), QStringList());
    QVERIFY(!QFile::exists(path(QStringLiteral("Harbor.js"))));
}

void tst_Recorder::theFilesAreALessonThatCanBePlayed()
{
    for (const char *row : {"1", "2"}) {
        m_recorder->press(Press::kClick, kClick);
        m_editor->report(QStringLiteral("list"), QString::fromLatin1(row));
    }
    m_recorder->finish();
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QStringList problems;
        const ScenarioFile file(path(QStringLiteral("Harbor.js")), QString::fromLatin1(locale));
        const Scenario scenario = Scenario::parse(file.read(&problems), &problems);
        QCOMPARE(problems, QStringList());
        QCOMPARE(scenario.size(), 2);
        QCOMPARE(scenario.step(1).id, 2);
        QCOMPARE(scenario.step(1).conditionText, QStringLiteral("list,2"));
        QCOMPARE(scenario.step(1).hint, QString());
        QCOMPARE(scenario.step(1).x, 10);
        QCOMPARE(scenario.step(1).windowKey, QStringLiteral("MainWindow"));
    }
    // In the form that saving a lesson writes.
    QFile file(path(QStringLiteral("Harbor.js")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.startsWith("\xEF\xBB\xBFvar scenario = [\n    {\n\"id\":1,\n\"name\":\"MainWindow\",\n"
                            "\"folder\":false,\n\"translationId\":1,\n\"x\":10,\n\"y\":-92,\n"));
    QVERIFY(text.endsWith("\"prohibited\":false    \n    }\n];"));
}

void tst_Recorder::aFileThatIsThereIsLeftAlone()
{
    const LessonRecord record(path(QStringLiteral("Harbor.js")));
    QCOMPARE(record.problem(), QString());
    QFile catalogue(path(QStringLiteral("Harbor.ja_JP.ts")));
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    QVERIFY2(record.problem().contains(QStringLiteral("Harbor.ja_JP.ts is there already")),
             qPrintable(record.problem()));
    QVERIFY(LessonRecord(path(QStringLiteral("nowhere/Harbor.js")))
                .problem()
                .contains(QStringLiteral("there is no folder")));
}

QTEST_APPLESS_MAIN(tst_Recorder)
#include "tst_Recorder.moc"
