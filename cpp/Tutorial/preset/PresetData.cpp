#include "Tutorial/preset/PresetData.h"

#include "Tutorial/localisation/SampleTranslators.h"
#include "Tutorial/preset/JsonString.h"
#include "tool/DataSupport.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"
#include "tool/StringPatch.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr const char *kFunction = "TutorialManager::onReceived";

/// The text of each data file at one step, by the name of its patch file.
using FileTexts = QHash<QString, std::string>;

/// Thrown when the texts that are put in make the data files longer than an answer may be.
struct TextsTooLong
{
};

QString choosePatchRoot(const QString &applicationDirectory)
{
    QString root = QStringLiteral("%1/resource/patch").arg(applicationDirectory);
    if (DataSupport::fileExists(root)) {
        return root;
    }
    return QStringLiteral("%1/tutorial-win/resource/patch").arg(applicationDirectory);
}

/// Whether @p patch wants a text of more than @p room bytes. One of a size that no patch can have is left to
/// be found when it is applied, which takes no memory.
bool asksForTooMuch(const std::string &base, const QByteArray &patch, std::size_t room)
{
    const std::size_t size = StringPatch::targetSize(patch);
    return size > room && StringPatch::isPossibleSize(base.size(), size);
}

/// The texts after the step in @p dataDirectory, made from the @p previous step's; none when it failed. A
/// file that has no patch in this step is gone.
std::optional<FileTexts> replayStep(const QString &dataDirectory, const FileTexts &previous)
{
    FileTexts texts;
    // Of its absolute path, so that the paths of its entries are absolute too.
    const QDir directory(QDir(dataDirectory).absolutePath());
    const QFileInfoList entries = directory.entryInfoList(QDir::Files | QDir::Hidden, QDir::NoSort);
    texts.reserve(entries.size());
    std::size_t bytes = 0;
    for (const QFileInfo &entry : entries) {
        const QString fileName = entry.fileName();
        QByteArray patch;
        if (!DataSupport::readFile(entry, patch)) {
            logWarning(kSource, kFunction, 1024) << "Failed to read" << entry.filePath();
            return std::nullopt;
        }
        static const std::string kNoBase;
        const auto before = previous.constFind(fileName);
        const std::string &base = before == previous.constEnd() ? kNoBase : before.value();
        std::string &text = texts[fileName];
        const bool tooMuch = asksForTooMuch(base, patch, kMostPresetBytes - bytes);
        try {
            // A bad tag is reported whatever the size.
            if (tooMuch ? !StringPatch::checkTags(patch)
                        : !StringPatch::ApplyStringPatch(base, patch, text)) {
                logWarning(kSource, kFunction, 1033) << "Failed to ApplyStringPatch";
                return std::nullopt;
            }
        } catch (const std::exception &error) {
            logWarning(kSource, kFunction, 1036)
                << "Failed to ApplyStringPatch" << entry.filePath() << error.what();
            return std::nullopt;
        }
        if (tooMuch) {
            logWarning(kSource, kFunction, 1040) << "Too much data for an answer" << dataDirectory;
            return std::nullopt;
        }
        bytes += text.size();
    }
    return texts;
}

std::optional<FileTexts> replayChain(const QString &patchRoot, const QString &stepName)
{
    const QStringList steps = listPresetSteps(patchRoot);
    // A name that is no step directory gives the index -1, so nothing is replayed.
    const int last = steps.indexOf(stepName);
    FileTexts texts;
    for (int i = 0; i <= last; ++i) {
        auto next = replayStep(QStringLiteral("%1/%2/data").arg(patchRoot, steps.at(i)), texts);
        if (!next) {
            return std::nullopt;
        }
        texts = *std::move(next);
    }
    return texts;
}

/// The rows of the sample table, found by the name of a data file.
class RowFinder
{
public:
    /// The finder of @p table, made anew only for another table than the last one: compiling its expressions
    /// costs more than using them.
    static const RowFinder &of(const SampleTable &table)
    {
        static SampleTable lastTable;
        static RowFinder finder(lastTable);
        if (table != lastTable) {
            finder = RowFinder(table);
            lastTable = table;
        }
        return finder;
    }

    explicit RowFinder(const SampleTable &table)
    {
        for (auto it = table.cbegin(); it != table.cend(); ++it) {
            m_patterns.emplace_back(QRegularExpression(QStringLiteral("^%1$").arg(it.key())), it.value());
        }
    }

    [[nodiscard]] QList<QStringList> rowsFor(const QString &dataFile) const
    {
        const auto found =
            std::find_if(m_patterns.cbegin(), m_patterns.cend(),
                         [&dataFile](const auto &entry) { return entry.first.match(dataFile).hasMatch(); });
        return found == m_patterns.cend() ? QList<QStringList>() : found->second;
    }

private:
    std::vector<std::pair<QRegularExpression, QList<QStringList>>> m_patterns;
};

/// @p translate, until it has made texts longer by more than @p room characters together: then it throws
/// TextsTooLong. @p room has to live as long as the result and its copies, which share it.
TranslateText limited(const TranslateText &translate, qint64 &room)
{
    return [&translate, &room](const QString &context, const QString &text) {
        QString translation = translate(context, text);
        room -= std::max<qint64>(translation.size() - text.size(), 0);
        if (room < 0) {
            throw TextsTooLong();
        }
        return translation;
    };
}

/// All of @p texts, translated, as JSON; null, with a warning, when a file is not named as a patch.
QString jsonOf(const FileTexts &texts, const SampleTable &table, const TranslateText &translate)
{
    static const QRegularExpression patchPattern(QStringLiteral("^(.*)-patch$"));
    const RowFinder &rowFinder = RowFinder::of(table);
    qint64 room = kMostPresetBytes;
    const TranslateText translateLimited = limited(translate, room);
    QString json = QStringLiteral("{");
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const QRegularExpressionMatch match = patchPattern.match(it.key());
        if (!match.hasMatch()) {
            logWarning(kSource, kFunction, 1050) << "Bad patch name" << it.key();
            return {};
        }
        const QString dataFile = match.captured(1);
        JsonWrapper wrapper(QString::fromStdString(it.value()));
        runSampleRows(rowFinder.rowsFor(dataFile), translateLimited, wrapper);
        if (it != texts.cbegin()) {
            json += QLatin1Char(',');
        }
        appendJsonString(json, QStringLiteral("data/%1").arg(dataFile));
        json += QLatin1Char(':');
        appendJsonString(json, wrapper.toJson(false));
    }
    json += QLatin1Char('}');
    return texts.isEmpty() ? QString() : json;
}

} // namespace

QStringList listPresetSteps(const QString &patchRoot)
{
    static const QRegularExpression pattern(QStringLiteral("^step(\\d+)$"));
    std::vector<std::pair<int, QString>> numbered;
    const QFileInfoList entries = QDir(patchRoot).entryInfoList(QDir::Dirs | QDir::Hidden, QDir::NoSort);
    for (const QFileInfo &entry : entries) {
        const QRegularExpressionMatch match = pattern.match(entry.fileName());
        if (match.hasMatch()) {
            numbered.emplace_back(match.captured(1).toInt(), entry.fileName());
        }
    }
    std::sort(numbered.begin(), numbered.end(),
              [](const auto &left, const auto &right) { return left.first < right.first; });
    QStringList steps;
    for (const auto &step : numbered) {
        steps.append(step.second);
    }
    return steps;
}

QString presetData(const QString &stepName, const QString &applicationDirectory, const SampleTable &table,
                   const TranslateText &translate)
{
    static const QRegularExpression stepPattern(QStringLiteral("^step(\\d+)$"));

    if (!stepPattern.match(stepName).hasMatch()) {
        logWarning(kSource, kFunction, 989) << "Failed to get stepNumber" << stepName;
        return {};
    }
    const QString patchRoot = choosePatchRoot(applicationDirectory);
    const QString stepPath = patchRoot + QLatin1Char('/') + stepName;
    if (!DataSupport::fileExists(stepPath)) {
        logWarning(kSource, kFunction, 1001) << "presetData not found" << stepPath << stepName;
        return {};
    }
    // A text becomes JSON and text again, in several copies.
    try {
        const std::optional<FileTexts> texts = replayChain(patchRoot, stepName);
        return texts ? jsonOf(*texts, table, translate) : QString();
    } catch (const TextsTooLong &) {
        logWarning(kSource, kFunction, 1057) << "Too much data for an answer with the texts of" << stepName;
        return {};
    } catch (const std::bad_alloc &) {
        logWarning(kSource, kFunction, 1072) << "Not enough memory for the data files of" << stepName;
        return {};
    }
}
