#include "CatalogueTexts.h"
#include "lesson/LessonWords.h"
#include "lesson/Scenario.h"
#include "strip/LessonCatalog.h"
#include "strip/LessonTime.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString kLessons = QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/qml/Tutorial/");

/// Of a language a beginner may read faster or slower than English.
constexpr int kMinutesApart = 2;

/// The lessons in the companion's list.
QStringList listed()
{
    const QString list = QString::fromUtf8(catalogueBytes(kLessons + QStringLiteral("TutorialList.js")));
    static const QRegularExpression file(QStringLiteral("\"filename\":\"(\\w+)\""));
    QStringList names;
    for (auto found = file.globalMatch(list); found.hasNext();) {
        names.append(found.next().captured(1));
    }
    return names;
}

bool isThere(const QString &lesson)
{
    return QFile::exists(kLessons + lesson + QStringLiteral(".js"));
}

/// The lesson with its texts in a language, as the companion hands it over.
Scenario lessonIn(const QString &lesson, const QString &locale)
{
    const QVector<CatalogueText> texts = textsOf(
        catalogueBytes(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/translations/%1.ts").arg(locale)));
    QString script = QString::fromUtf8(catalogueBytes(kLessons + lesson + QStringLiteral(".js")));
    for (const CatalogueText &text : texts) {
        if (text.context == lesson) {
            const QByteArray quoted =
                QJsonDocument(QJsonArray{text.translation}).toJson(QJsonDocument::Compact).chopped(1).mid(1);
            script.replace(QStringLiteral("qsTr(\"%1\")").arg(text.source), QString::fromUtf8(quoted));
        }
    }
    QStringList problems;
    const Scenario scenario = Scenario::parse(script, &problems);
    return problems.isEmpty() ? scenario : Scenario();
}

} // namespace

/// What the practice editor knows of the lessons, held against the lessons.
class tst_LessonCatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLessonSaysWhatItTeaches_data();
    void everyLessonSaysWhatItTeaches();
    void hasTheLessonsOfTheList();
    void justTheLessonsThatAreThereCountAsWritten();
    void theMinutesAreThoseOfTheLesson_data();
    void theMinutesAreThoseOfTheLesson();
    void anUnknownLessonMayBeAskedFor();
    void anUnknownLanguageReadsEnglish();
    void aStepTakesItsTime();
};

void tst_LessonCatalog::everyLessonSaysWhatItTeaches_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LessonCatalog::everyLessonSaysWhatItTeaches()
{
    QFETCH(QString, locale);
    const LessonCatalog catalog(locale);
    const QStringList lessons = listed();
    QVERIFY(!lessons.isEmpty());
    QStringList told;
    for (const QString &lesson : lessons) {
        const LessonCatalog::Entry entry = catalog.entry(lesson);
        QVERIFY2(!entry.teaches.isEmpty() && !told.contains(entry.teaches), qPrintable(lesson));
        QVERIFY2(entry.minutes > 0, qPrintable(lesson));
        told.append(entry.teaches);
    }
}

void tst_LessonCatalog::hasTheLessonsOfTheList()
{
    const LessonCatalog catalog(QStringLiteral("en_US"));
    const QStringList names = listed();
    QCOMPARE(catalog.count(), int(names.size()));
    // They are asked for by their numbers.
    for (int number = 1; number <= names.size(); ++number) {
        QCOMPARE(names.at(number - 1), QStringLiteral("TutorialStep%1").arg(number));
        QVERIFY2(!catalog.entry(names.at(number - 1)).teaches.isEmpty(), qPrintable(names.at(number - 1)));
    }
}

void tst_LessonCatalog::justTheLessonsThatAreThereCountAsWritten()
{
    const LessonCatalog catalog(QStringLiteral("en_US"));
    const QStringList lessons = listed();
    for (const QString &lesson : lessons) {
        QVERIFY2(catalog.entry(lesson).isWritten == isThere(lesson), qPrintable(lesson));
    }
}

void tst_LessonCatalog::theMinutesAreThoseOfTheLesson_data()
{
    everyLessonSaysWhatItTeaches_data();
}

void tst_LessonCatalog::theMinutesAreThoseOfTheLesson()
{
    QFETCH(QString, locale);
    const LessonCatalog catalog(locale);
    const int apart = locale == LessonWords::locales().constFirst() ? 0 : kMinutesApart;
    const QStringList lessons = listed();
    for (const QString &lesson : lessons) {
        if (isThere(lesson)) {
            const Scenario scenario = lessonIn(lesson, locale);
            QVERIFY2(scenario.size() > 0, qPrintable(lesson));
            const int minutes = LessonTime::minutesFrom(scenario, 0);
            QVERIFY2(qAbs(minutes - catalog.entry(lesson).minutes) <= apart,
                     qPrintable(QStringLiteral("%1 takes %2 minutes").arg(lesson).arg(minutes)));
        }
    }
}

void tst_LessonCatalog::anUnknownLessonMayBeAskedFor()
{
    const LessonCatalog::Entry entry =
        LessonCatalog(QStringLiteral("en_US")).entry(QStringLiteral("Another"));
    QVERIFY(entry.isWritten);
    QVERIFY(entry.teaches.isEmpty());
    QCOMPARE(entry.minutes, 0);
}

void tst_LessonCatalog::anUnknownLanguageReadsEnglish()
{
    const QString lesson = QStringLiteral("TutorialStep1");
    QCOMPARE(LessonCatalog(QStringLiteral("fr_FR")).entry(lesson).teaches,
             LessonCatalog(QStringLiteral("en_US")).entry(lesson).teaches);
}

void tst_LessonCatalog::aStepTakesItsTime()
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(QStringLiteral(R"([{"id":1,"condition":"wait,2000","hint":""},
                           {"id":2,"condition":"list,1","hint":"","icon":"click"},
                           {"id":3,"condition":"windowState,A,close","hint":"","icon":"keyboard"},
                           {"id":4,"condition":"list,1","hint":"123456789012345","icon":"click"},
                           {"id":5,"condition":"list,1","hint":"一二三四五六七","icon":"click"}])"),
                                              &problems);
    QCOMPARE(scenario.size(), 5);
    QCOMPARE(LessonTime::secondsOf(scenario.step(0)), 2);
    QVERIFY(LessonTime::secondsOf(scenario.step(2)) > LessonTime::secondsOf(scenario.step(1)));
    QCOMPARE(LessonTime::secondsOf(scenario.step(3)), LessonTime::secondsOf(scenario.step(1)) + 1);
    QCOMPARE(LessonTime::secondsOf(scenario.step(4)), LessonTime::secondsOf(scenario.step(1)) + 1);
    QCOMPARE(LessonTime::minutesFrom(scenario, 4), 1);
    QCOMPARE(LessonTime::minutesFrom(scenario, 5), 0);
}

QTEST_GUILESS_MAIN(tst_LessonCatalog)
#include "tst_LessonCatalog.moc"
