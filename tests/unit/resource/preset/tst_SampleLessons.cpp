#include "SampleEvents.h"
#include "SampleTest.h"

/// Each step of the sample project holds what its lesson starts from, and differs from the next one by what
/// the lesson can make.
class tst_SampleLessons : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEachMapFromItsStepOn();
    void holdsWhatTheLessonStartsFrom_data();
    void holdsWhatTheLessonStartsFrom();
    void addsWhatTheLessonCanMake();
    void findsWhatTheLessonCannotMake_data();
    void findsWhatTheLessonCannotMake();
};

using sample::changed;
using sample::Files;
using sample::kFirstStep;
using sample::kLastStep;
using sample::readStep;
using sample::stepName;

namespace {

/// The first step that a map stands in, by the text of its name.
const QMap<QString, int> kMaps = {
    {QStringLiteral("#12"), 2},  // Amberfield
    {QStringLiteral("#14"), 2},  // Forest path
    {QStringLiteral("#41"), 2},  // Mila's house
    {QStringLiteral("#71"), 2},  // Shop
    {QStringLiteral("#72"), 2},  // Inn
    {QStringLiteral("#170"), 2}, // Hilltop
    {QStringLiteral("#80"), 2},  // Mine entrance
    {QStringLiteral("#90"), 2},  // Old mine
};

// The lessons by what their windows can change; any lesson draws.
const QSet<int> kMapLessons = {1, 8, 10, 14};
const QSet<int> kEventLessons = {2, 3, 4, 5, 7, 8, 9, 11, 16, 18};
const QSet<int> kDatabaseLessons = {6, 7, 12, 13, 14, 15, 16, 17, 19};
const QSet<int> kSwitchLessons = {9, 18};

bool isMapFile(const QString &file)
{
    return !sample::mapFiles({{file, QJsonDocument()}}).isEmpty();
}

/// A map but for what is drawn and what stands on it.
QJsonObject properties(QJsonObject map)
{
    map.remove(QStringLiteral("events"));
    map.remove(QStringLiteral("data"));
    return map;
}

/// The files that differ by what the lesson has no window for, with what it is.
QStringList beyondLesson(int lesson, const Files &before, const Files &after)
{
    QStringList findings;
    for (auto file = after.begin(); file != after.end(); ++file) {
        const QJsonDocument old = before.value(file.key());
        if (old == file.value()) {
            continue;
        }
        const QString events = QStringLiteral("events");
        const bool isMap = isMapFile(file.key());
        const bool isOther = isMap ? properties(old.object()) != properties(file.value().object())
                                   : file.key() == QLatin1String("MapInfos.json");
        const bool isSystem = file.key() == QLatin1String("System.json");
        if (isOther && !kMapLessons.contains(lesson)) {
            findings.append(file.key() + QStringLiteral(": map"));
        }
        if (isMap && old.object().value(events) != file.value().object().value(events) &&
            !kEventLessons.contains(lesson)) {
            findings.append(file.key() + QStringLiteral(": event"));
        }
        if (!isMap && !isOther && !kDatabaseLessons.contains(lesson) &&
            !(isSystem && kSwitchLessons.contains(lesson))) {
            findings.append(file.key() + QStringLiteral(": database"));
        }
    }
    return findings;
}

int mapNamed(const Files &files, const QString &name)
{
    const QJsonArray infos = sample::entries(files, QStringLiteral("MapInfos.json"));
    for (int id = 1; id < infos.size(); ++id) {
        if (infos.at(id).toObject().value(QStringLiteral("name")).toString() == name) {
            return id;
        }
    }
    return 0;
}

/// The pages of the events of this name, or -1 for a map that is not there.
int pagesOf(const Files &files, const QString &map, const QString &name)
{
    const int id = mapNamed(files, map);
    int pages = 0;
    const QJsonArray events = sample::objectsIn(sample::map(files, id), "events");
    for (const QJsonValue &event : events) {
        const bool isIt = event.toObject().value(QStringLiteral("name")).toString() == name;
        pages += isIt ? sample::objectsIn(event, "pages").size() : 0;
    }
    return id > 0 ? pages : -1;
}

} // namespace

void tst_SampleLessons::keepsEachMapFromItsStepOn()
{
    QMap<QString, int> ids;
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const Files files = readStep(step);
        int count = 0;
        for (auto map = kMaps.begin(); map != kMaps.end(); ++map) {
            const int id = mapNamed(files, map.key());
            const QString place = stepName(step) + QLatin1Char(' ') + map.key();
            QVERIFY2((id > 0) == (step >= map.value()), qPrintable(place));
            if (id > 0) {
                ++count;
                QVERIFY2(files.contains(sample::mapFile(id)), qPrintable(place));
                QVERIFY2(ids.value(map.key(), id) == id, qPrintable(place));
                ids.insert(map.key(), id);
            }
        }
        QCOMPARE(sample::entries(files, QStringLiteral("MapInfos.json")).size() - 1, count);
        QCOMPARE(sample::mapFiles(files).size(), count);
    }
}

void tst_SampleLessons::holdsWhatTheLessonStartsFrom_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<QString>("map");
    QTest::addColumn<QString>("event");
    QTest::addColumn<int>("pagesBefore");
    QTest::addColumn<int>("pagesAfter");
    const auto row = [](const char *name, int lesson, const char *map, const char *event, int before,
                        int after) {
        QTest::newRow(name) << lesson << QString::fromLatin1(map) << QString::fromLatin1(event) << before
                            << after;
    };
    row("2: Pip", 2, "#12", "#32", 0, 1);
    row("3: house door", 3, "#12", "#37", 0, 1);
    row("3: way out of the house", 3, "#41", "#38", 0, 1);
    row("3: two chests", 3, "#41", "#39", 0, 4);
    row("4: Pip's second page", 4, "#12", "#32", 1, 2);
    row("5: Elder", 5, "#12", "#45", 0, 2);
    row("5: Toma joins", 5, "#12", "#54", 0, 2);
    row("7: shop door stands ready", 7, "#12", "#61", 1, 1);
    row("7: inn door stands ready", 7, "#12", "#62", 1, 1);
    row("7: way out of the shop stands ready", 7, "#71", "#38", 1, 1);
    row("7: way out of the inn stands ready", 7, "#72", "#38", 1, 1);
    row("7: Bruno", 7, "#71", "#63", 0, 1);
    row("7: Greta", 7, "#72", "#65", 0, 1);
    row("8: to the forest", 8, "#12", "#75", 0, 2);
    row("8: to the village", 8, "#14", "#76", 0, 2);
    row("8: to the mine stands ready", 8, "#14", "#77", 2, 2);
    row("8: back to the forest stands ready", 8, "#80", "#78", 2, 2);
    row("8: Spring", 8, "#14", "#93", 0, 1);
    row("9: gate stands ready", 9, "#80", "#88", 4, 4);
    row("9: way out of the mine stands ready", 9, "#90", "#38", 2, 2);
    row("9: lever's second page", 9, "#80", "#81", 1, 2);
    row("11: Guard", 11, "#12", "#95", 0, 1);
    row("11: Second guard", 11, "#80", "#98", 0, 1);
    row("16: Elder sends to the hilltop", 16, "#12", "#45", 2, 3);
    row("16: Sena joins", 16, "#72", "#100", 0, 2);
    row("16: Stone warden", 16, "#90", "#143", 0, 2);
    row("18: figures stand ready", 18, "#170", "#54", 1, 2);
    row("18: scene", 18, "#170", "#166", 0, 2);
    row("18: to the hilltop", 18, "#12", "#164", 0, 2);
    row("18: back to the village", 18, "#170", "#165", 0, 2);
}

void tst_SampleLessons::holdsWhatTheLessonStartsFrom()
{
    QFETCH(int, lesson);
    QFETCH(QString, map);
    QFETCH(QString, event);
    QFETCH(int, pagesBefore);
    QFETCH(int, pagesAfter);
    QCOMPARE(pagesOf(readStep(lesson), map, event), pagesBefore);
    QCOMPARE(pagesOf(readStep(lesson + 1), map, event), pagesAfter);
}

void tst_SampleLessons::addsWhatTheLessonCanMake()
{
    Files before = readStep(kFirstStep);
    for (int lesson = kFirstStep; lesson < kLastStep; ++lesson) {
        const Files after = readStep(lesson + 1);
        const QStringList findings = beyondLesson(lesson, before, after);
        QVERIFY2(
            findings.isEmpty(),
            qPrintable(QStringLiteral("lesson %1: %2").arg(lesson).arg(findings.join(QLatin1Char(' ')))));
        before = after;
    }
}

void tst_SampleLessons::findsWhatTheLessonCannotMake_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("finding");
    QTest::newRow("item") << 5 << "Items.json"
                          << "1/name"
                          << "Items.json: database";
    QTest::newRow("common event") << 18 << "CommonEvents.json"
                                  << "1/name"
                                  << "CommonEvents.json: database";
    QTest::newRow("switch") << 8 << "System.json"
                            << "switches/1"
                            << "System.json: database";
    QTest::newRow("named switch") << 9 << "System.json"
                                  << "switches/1"
                                  << "";
    QTest::newRow("event") << 12 << "Map001.json"
                           << "events/1/x"
                           << "Map001.json: event";
    QTest::newRow("music") << 16 << "Map001.json"
                           << "music/file"
                           << "Map001.json: map";
    QTest::newRow("new map") << 17 << "Map009.json"
                             << "note"
                             << "Map009.json: map";
    QTest::newRow("map's name") << 11 << "MapInfos.json"
                                << "1/name"
                                << "MapInfos.json: map";
    QTest::newRow("mood") << 10 << "Map001.json"
                          << "music/file"
                          << "";
    QTest::newRow("drawing") << 6 << "Map001.json"
                             << "data/0"
                             << "";
}

void tst_SampleLessons::findsWhatTheLessonCannotMake()
{
    QFETCH(int, lesson);
    QFETCH(QString, file);
    QFETCH(QString, path);
    QFETCH(QString, finding);
    const Files after = changed(m_last, file, path, QStringLiteral("another"));
    QCOMPARE(beyondLesson(lesson, m_last, after).join(QLatin1Char(' ')), finding);
}

QTEST_GUILESS_MAIN(tst_SampleLessons)
#include "tst_SampleLessons.moc"
