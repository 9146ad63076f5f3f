// The whole answer to a request for a lesson's data files, at most kBound times its floor: to read the files
// of the chain, and to parse and write the final texts with QJsonDocument. Once for the sample project that
// the program ships, which is small and has a chain of many files, once for a large project. The ratio to the
// final texts alone is printed without a bound. And the growth with the number of steps and of bytes, which
// must be linear: twice as much takes at most kDoubleWithin times as long.

#include "PatchBytes.h"
#include "Tutorial/localisation/ScenarioTexts.h"
#include "Tutorial/preset/PresetData.h"
#include "tool/DataSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <memory>

namespace {

constexpr double kBound = 1.5;
constexpr double kDoubleWithin = 2.6;

using Project = QHash<QString, QByteArray>;

QJsonObject command(int code, const QJsonArray &parameters)
{
    return {{QStringLiteral("code"), code},
            {QStringLiteral("indent"), 0},
            {QStringLiteral("parameters"), parameters}};
}

QString identifier(int number)
{
    return QStringLiteral("#%1").arg(number % 500 + 1);
}

/// A map of @p side by @p side tiles with @p eventCount events, who say a few lines each.
QByteArray mapFile(int side, int eventCount)
{
    QJsonArray tiles;
    for (int i = 0; i < side * side * 6; ++i) {
        tiles.append(i % 7 == 0 ? 2816 + i % 48 : 0);
    }
    QJsonArray events{QJsonValue()};
    for (int i = 0; i < eventCount; ++i) {
        QJsonArray list;
        for (int line = 0; line < 4; ++line) {
            list.append(command(101, {QStringLiteral("Face"), 0, 0, 2, identifier(i)}));
            list.append(command(401, {identifier(i + line)}));
            list.append(command(230, {60}));
            list.append(command(250, {QJsonObject{{QStringLiteral("name"), QStringLiteral("Bell1")},
                                                  {QStringLiteral("volume"), 90},
                                                  {QStringLiteral("pitch"), 100}}}));
        }
        list.append(command(0, {}));
        const QJsonObject conditions{
            {QStringLiteral("actorId"), 1},    {QStringLiteral("actorValid"), false},
            {QStringLiteral("switch1Id"), 1},  {QStringLiteral("switch1Valid"), false},
            {QStringLiteral("variableId"), 1}, {QStringLiteral("variableValue"), 0}};
        const QJsonObject page{{QStringLiteral("conditions"), conditions},
                               {QStringLiteral("list"), list},
                               {QStringLiteral("moveType"), 0},
                               {QStringLiteral("priorityType"), 1}};
        events.append(QJsonObject{{QStringLiteral("id"), i + 1},
                                  {QStringLiteral("name"), identifier(i)},
                                  {QStringLiteral("pages"), QJsonArray{page}},
                                  {QStringLiteral("x"), i % side},
                                  {QStringLiteral("y"), i / side}});
    }
    const QJsonObject map{{QStringLiteral("data"), tiles},
                          {QStringLiteral("events"), events},
                          {QStringLiteral("height"), side},
                          {QStringLiteral("width"), side}};
    return QJsonDocument(map).toJson(QJsonDocument::Compact);
}

QByteArray thingsFile(int count)
{
    QJsonArray things{QJsonValue()};
    for (int i = 0; i < count; ++i) {
        QJsonArray params;
        for (int p = 0; p < 8; ++p) {
            params.append(i * p % 100);
        }
        things.append(QJsonObject{{QStringLiteral("id"), i + 1},
                                  {QStringLiteral("name"), identifier(i)},
                                  {QStringLiteral("description"), identifier(i + 1)},
                                  {QStringLiteral("iconIndex"), 97},
                                  {QStringLiteral("note"), QString()},
                                  {QStringLiteral("params"), params},
                                  {QStringLiteral("price"), 100}});
    }
    return QJsonDocument(things).toJson(QJsonDocument::Compact);
}

/// A game project that grows with @p scale.
Project makeProject(int scale)
{
    Project project;
    for (const char *file : {"Actors.json", "Armors.json", "Enemies.json", "Items.json", "Weapons.json"}) {
        project.insert(QString::fromLatin1(file), thingsFile(50 * scale));
    }
    for (int i = 0; i < 2 * scale; ++i) {
        project.insert(QStringLiteral("Map%1.json").arg(i + 1, 3, 10, QLatin1Char('0')), mapFile(60, 25));
    }
    return project;
}

void writeWhole(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

/// Processor time since @p begin: on a busy machine the time on the wall would say more about its neighbours.
double cpuSeconds(std::clock_t begin)
{
    return double(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// A program directory with a chain of patches, and the files that its last step gives.
class Chain
{
public:
    /// The one in the build directory @p program, which ends in the files in @p finished.
    Chain(const QString &program, const QString &finished, const QString &last)
        : m_program(program)
        , m_finished(finished)
        , m_files(QDir(finished).entryList(QDir::Files, QDir::Name))
        , m_last(last)
    {
        for (const QString &name : m_files) {
            m_bytes += QFile(finishedPath(name)).size();
        }
        if (m_bytes == 0) {
            qFatal("no files in %s", qPrintable(finished));
        }
    }

    /// A new one of @p steps steps that gives @p project.
    Chain(const Project &project, int steps)
        : m_dir(std::make_unique<QTemporaryDir>())
        , m_program(m_dir->path())
        , m_finished(m_dir->filePath(QStringLiteral("finished")))
        , m_files(project.keys())
        , m_last(QStringLiteral("step%1").arg(steps))
    {
        QDir().mkpath(m_finished);
        for (int step = 1; step <= steps; ++step) {
            const QString data = m_dir->filePath(QStringLiteral("resource/patch/step%1/data").arg(step));
            QDir().mkpath(data);
            for (auto it = project.cbegin(); it != project.cend(); ++it) {
                const QByteArray patch =
                    step == 1 ? PatchBytes::insertion(it.value()) : PatchBytes::copy(it.value().size());
                writeWhole(QStringLiteral("%1/%2-patch").arg(data, it.key()), patch);
            }
        }
        for (auto it = project.cbegin(); it != project.cend(); ++it) {
            writeWhole(finishedPath(it.key()), it.value());
            m_bytes += it.value().size();
        }
    }

    [[nodiscard]] qint64 bytes() const { return m_bytes; }

    /// What one answer takes, and what the parts of its floor take, in seconds.
    struct Times
    {
        double answer = std::numeric_limits<double>::max();
        double reading = std::numeric_limits<double>::max();
        double writing = std::numeric_limits<double>::max();
    };

    /// The best of some rounds. In each all three take their turn, so that a machine that slows down slows
    /// all.
    [[nodiscard]] Times measure(const SampleTable &table, const TranslateText &translate) const
    {
        const QString whole = presetData(m_last, m_program, table, translate);
        for (const QString &name : m_files) {
            if (!whole.contains(QStringLiteral("\"data/%1\":").arg(name))) {
                qFatal("the answer lacks %s", qPrintable(name));
            }
        }
        const QList<QByteArray> texts = readFinished();
        Times times;
        for (int round = 0; round < 25; ++round) {
            takeTurn(times.answer, [&] {
                if (presetData(m_last, m_program, table, translate).size() != whole.size()) {
                    qFatal("the answer is not whole");
                }
            });
            takeTurn(times.reading, [this] { readChain(); });
            takeTurn(times.writing, [this, &texts] { write(texts); });
        }
        return times;
    }

private:
    template<typename Work>
    static void takeTurn(double &best, const Work &work)
    {
        const std::clock_t begin = std::clock();
        work();
        best = std::min(best, cpuSeconds(begin));
    }

    /// Opens and reads every patch of the chain.
    void readChain() const
    {
        QDirIterator patches(m_program + QStringLiteral("/resource/patch"), QDir::Files,
                             QDirIterator::Subdirectories);
        qint64 bytes = 0;
        while (patches.hasNext()) {
            QFile patch(patches.next());
            if (!patch.open(QIODevice::ReadOnly)) {
                qFatal("cannot read %s", qPrintable(patch.fileName()));
            }
            bytes += patch.readAll().size();
        }
        if (bytes == 0) {
            qFatal("no patches in %s", qPrintable(m_program));
        }
    }

    [[nodiscard]] QList<QByteArray> readFinished() const
    {
        QList<QByteArray> texts;
        for (const QString &name : m_files) {
            QByteArray bytes;
            if (!DataSupport::readFile(finishedPath(name), bytes)) {
                qFatal("cannot read %s", qPrintable(name));
            }
            texts.append(bytes);
        }
        return texts;
    }

    void write(const QList<QByteArray> &texts) const
    {
        qint64 written = 0;
        for (const QByteArray &text : texts) {
            written += QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact).size();
        }
        // The sample project's files have line ends and blanks, which are not written.
        if (written > m_bytes || written < m_bytes / 2) {
            qFatal("the files were not written whole");
        }
    }

    [[nodiscard]] QString finishedPath(const QString &name) const
    {
        return m_finished + QLatin1Char('/') + name;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_program;
    QString m_finished;
    QStringList m_files;
    QString m_last;
    qint64 m_bytes = 0;
};

/// Log lines are written as ever, and dropped at the door.
void dropLine(QtMsgType type, const QMessageLogContext & /*context*/, const QString &line)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
}

bool within(const char *what, double value, double bound)
{
    std::printf("%-46s %.2f, at most %.1f\n", what, value, bound);
    return value <= bound;
}

bool holdToFloor(const char *what, const Chain &chain, const Chain::Times &times)
{
    std::printf("%s, %lld bytes: answer %.2f ms, reading the chain %.2f ms, the final texts %.2f ms\n", what,
                static_cast<long long>(chain.bytes()), times.answer * 1000, times.reading * 1000,
                times.writing * 1000);
    const bool good =
        within("answer to reading and final texts", times.answer / (times.reading + times.writing), kBound);
    std::printf("%-46s %.2f, no bound\n", "answer to final texts alone", times.answer / times.writing);
    return good;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(dropLine);
    ScenarioTexts texts;
    const bool loaded = texts.loadSecond();
    const SampleTable table = buildSampleTable();
    const TranslateText translate = [&texts](const QString &context, const QString &text) {
        return texts.sampleText(context, text);
    };

    const Chain sample(QStringLiteral(PROGRAM_DIR), QStringLiteral(SAMPLE_DATA_DIR),
                       QStringLiteral("step19"));
    bool good = holdToFloor("sample project, step19", sample, sample.measure(table, translate)) && loaded;

    const Chain chain(makeProject(4), 19);
    const Chain::Times large = chain.measure(table, translate);
    good = holdToFloor("large project, 19 steps", chain, large) && good;

    const double fewSteps = Chain(makeProject(4), 40).measure(table, translate).answer;
    const double manySteps = Chain(makeProject(4), 80).measure(table, translate).answer;
    good = within("twice the steps", manySteps / fewSteps, kDoubleWithin) && good;
    const double manyBytes = Chain(makeProject(8), 19).measure(table, translate).answer;
    good = within("twice the bytes", manyBytes / large.answer, kDoubleWithin) && good;
    return good ? 0 : 1;
}
