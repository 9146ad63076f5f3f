#include "ScriptedPlay.h"
#include "project/ProjectFolder.h"
#include "project/StartData.h"
#include "window/TileDrawing.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// What each lesson leaves, as the script beside its source expects it. That a play leaves it shows when the
/// lesson is played.
class tst_LessonOutcomes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyLessonHasOne_data();
    void everyLessonHasOne();
    void saysFirstWhatIsSeen_data();
    void saysFirstWhatIsSeen();
    void isNotThereBeforeTheLesson_data();
    void isNotThereBeforeTheLesson();
};

namespace {

const QString kScripts = QStringLiteral(TUTORIAL_SOURCE_DIR "/authoring/lessons");
const QString kLesson = QStringLiteral("TutorialStep");

QString pathOf(const QString &lesson)
{
    return kScripts + QLatin1Char('/') + lesson + QStringLiteral(".play");
}

/// A row for each file in @p folder with this ending, by its name.
void addRows(const QString &folder, const QString &ending)
{
    QTest::addColumn<QString>("lesson");
    const QFileInfoList files =
        QDir(folder).entryInfoList({kLesson + QLatin1Char('*') + ending}, QDir::Files);
    for (const QFileInfo &file : files) {
        QTest::newRow(qPrintable(file.completeBaseName())) << file.completeBaseName();
    }
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The comment lines from the one that begins with "# Outcome: " on, without the signs.
QByteArray outcomeIn(const QByteArray &text)
{
    QByteArray outcome;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (outcome.isEmpty() ? line.startsWith("# Outcome: ") : line.startsWith("# ")) {
            outcome += line.mid(1);
        } else if (!outcome.isEmpty()) {
            break;
        }
    }
    return outcome.simplified();
}

} // namespace

void tst_LessonOutcomes::initTestCase()
{
    // Of a library, which nothing else here refers to.
    Q_INIT_RESOURCE(descriptions);
}

void tst_LessonOutcomes::everyLessonHasOne_data()
{
    addRows(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial"), QStringLiteral(".js"));
}

void tst_LessonOutcomes::everyLessonHasOne()
{
    QFETCH(QString, lesson);
    QVERIFY2(QFile::exists(pathOf(lesson)), qPrintable(pathOf(lesson)));
}

void tst_LessonOutcomes::saysFirstWhatIsSeen_data()
{
    addRows(kScripts, QStringLiteral(".lesson"));
}

void tst_LessonOutcomes::saysFirstWhatIsSeen()
{
    QFETCH(QString, lesson);
    const QByteArray script = contents(pathOf(lesson));
    QVERIFY2(script.startsWith("# Outcome: "), script.left(80).constData());
    QCOMPARE(outcomeIn(contents(kScripts + QLatin1Char('/') + lesson + QStringLiteral(".lesson"))),
             outcomeIn(script));
}

void tst_LessonOutcomes::isNotThereBeforeTheLesson_data()
{
    addRows(kScripts, QStringLiteral(".play"));
}

void tst_LessonOutcomes::isNotThereBeforeTheLesson()
{
    QFETCH(QString, lesson);
    const QString number = lesson.mid(kLesson.size());
    const QTemporaryDir room;
    QString folder = QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset/step") + number;
    if (number == QLatin1String("1")) {
        // It begins with what "New" makes.
        QStringList errors;
        const StartData start = StartData::read(QStringLiteral(":/descriptions/data"), tileDrawings(),
                                                QStringLiteral("en_US"), &errors);
        QCOMPARE(errors, QStringList());
        QString error;
        const auto made = ProjectFolder::create(room.path(), QStringLiteral("New"), start.files(), &error);
        QVERIFY2(made, qPrintable(error));
        folder = *made;
    }
    const ScriptedPlay played = ScriptedPlay::run(folder, pathOf(lesson));
    // Neither a script that cannot be read nor one that is true of anything is an outcome.
    QCOMPARE(int(played.end), int(ScriptedPlay::End::kOtherwise));
    QVERIFY2(played.failure.contains(QStringLiteral(": FAILED: ")), qPrintable(played.failure));
}

QTEST_GUILESS_MAIN(tst_LessonOutcomes)
#include "tst_LessonOutcomes.moc"
