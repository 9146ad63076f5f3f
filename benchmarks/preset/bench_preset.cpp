// The whole answer to a request for a lesson's data files, against the floor of reading the finished files,
// parsing them and writing them with QJsonDocument: at most kBound times the floor. And its growth with the
// number of steps and of bytes, which must be linear: twice as much takes at most kDoubleWithin times as
// long.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "Tutorial/localisation/ScenarioTexts.h"
#include "Tutorial/preset/PresetData.h"
#include "tool/DataSupport.h"

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

void appendNumber(QByteArray &bytes, quint32 number, int width)
{
    for (int i = 0; i < width; ++i) {
        bytes.append(char(number >> (8 * i) & 0xFF));
    }
}

QByteArray insertPatch(const QByteArray &text)
{
    QByteArray patch;
    appendNumber(patch, quint32(text.size()), 4);
    for (int i = 0; i < text.size(); i += 65536) {
        const QByteArray piece = text.mid(i, 65536);
        patch.append(char(1));
        appendNumber(patch, quint32(piece.size() - 1), 2);
        patch.append(piece);
    }
    return patch;
}

QByteArray identityPatch(int size)
{
    QByteArray patch;
    appendNumber(patch, quint32(size), 4);
    for (int i = 0; i < size; i += 65536) {
        patch.append(char(250));
        appendNumber(patch, quint32(i), 4);
        appendNumber(patch, quint32(std::min(65536, size - i) - 1), 2);
    }
    return patch;
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

/// A program directory whose chain of @p steps gives the project, beside the finished files.
class Chain
{
public:
    Chain(const Project &project, int steps)
        : m_files(project.keys())
        , m_last(QStringLiteral("step%1").arg(steps))
    {
        QDir().mkpath(finishedPath(QString()));
        for (int step = 1; step <= steps; ++step) {
            const QString data = m_dir.filePath(QStringLiteral("resource/patch/step%1/data").arg(step));
            QDir().mkpath(data);
            for (auto it = project.cbegin(); it != project.cend(); ++it) {
                const QByteArray patch =
                    step == 1 ? insertPatch(it.value()) : identityPatch(it.value().size());
                writeWhole(QStringLiteral("%1/%2-patch").arg(data, it.key()), patch);
            }
        }
        for (auto it = project.cbegin(); it != project.cend(); ++it) {
            writeWhole(finishedPath(it.key()), it.value());
            m_bytes += it.value().size();
        }
    }

    [[nodiscard]] qint64 bytes() const { return m_bytes; }

    /// Seconds for the whole answer, the best of some runs.
    [[nodiscard]] double answer(const SampleTable &table, const TranslateText &translate) const
    {
        return best([&] {
            if (presetDataReply(m_last, m_dir.path(), table, translate).size() < m_bytes / 2) {
                qFatal("the answer is not whole");
            }
        });
    }

    /// Seconds to read, parse and write the finished files, the best of some runs.
    [[nodiscard]] double floor() const
    {
        return best([this] {
            qint64 written = 0;
            for (const QString &name : m_files) {
                QByteArray bytes;
                if (!DataSupport::readFile(finishedPath(name), bytes)) {
                    qFatal("cannot read %s", qPrintable(name));
                }
                written += QJsonDocument::fromJson(bytes).toJson(QJsonDocument::Compact).size();
            }
            if (written != m_bytes) {
                qFatal("the files were not written whole");
            }
        });
    }

private:
    template<typename Work>
    static double best(const Work &work)
    {
        double seconds = std::numeric_limits<double>::max();
        for (int run = 0; run < 15; ++run) {
            const std::clock_t begin = std::clock();
            work();
            seconds = std::min(seconds, cpuSeconds(begin));
        }
        return seconds;
    }

    [[nodiscard]] QString finishedPath(const QString &name) const
    {
        return m_dir.filePath(QStringLiteral("finished/") + name);
    }

    QTemporaryDir m_dir;
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

    const Chain chain(makeProject(4), 19);
    const double answer = chain.answer(table, translate);
    const double floor = chain.floor();
    std::printf("%lld bytes, 19 steps: answer %.1f ms, floor %.1f ms\n",
                static_cast<long long>(chain.bytes()), answer * 1000, floor * 1000);
    bool good = loaded;
    good = within("answer to floor", answer / floor, kBound) && good;

    const double fewSteps = Chain(makeProject(4), 40).answer(table, translate);
    const double manySteps = Chain(makeProject(4), 80).answer(table, translate);
    good = within("twice the steps", manySteps / fewSteps, kDoubleWithin) && good;
    const double manyBytes = Chain(makeProject(8), 19).answer(table, translate);
    good = within("twice the bytes", manyBytes / answer, kDoubleWithin) && good;
    return good ? 0 : 1;
}
