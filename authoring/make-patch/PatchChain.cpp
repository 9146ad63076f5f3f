#include "make-patch/PatchChain.h"

#include "Tutorial/preset/PresetData.h"
#include "make-patch/DataFile.h"
#include "make-patch/PatchFiles.h"
#include "make-patch/PatchMaker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

const QDir::Filters kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// Where @p path really is, without links on the way to its last part, which need not exist.
QString realPlace(const QString &path)
{
    QFileInfo place(QFileInfo(path).absoluteFilePath());
    QString rest = QLatin1Char('/') + place.fileName();
    while (!place.absoluteDir().exists()) {
        place.setFile(place.absolutePath());
        rest.prepend(QLatin1Char('/') + place.fileName());
    }
    return QDir::cleanPath(place.absoluteDir().canonicalPath() + rest);
}

bool isListable(const QString &directory, QString &error)
{
    // What cannot be listed looks empty.
    if (QFileInfo(directory).isReadable()) {
        return true;
    }
    error = QStringLiteral("%1 cannot be read").arg(directory);
    return false;
}

/// As above, and whether a listing has all of it: Qt leaves a name out that is not UTF-8.
bool isListedWhole(const QString &directory, QString &error)
{
    if (!isListable(directory, error)) {
        return false;
    }
    std::error_code failure;
    std::filesystem::directory_iterator entry(QFile::encodeName(directory).toStdString(), failure);
    for (; !failure && entry != std::filesystem::directory_iterator(); entry.increment(failure)) {
        const QByteArray name = QByteArray::fromStdString(entry->path().filename().native());
        if (QFile::encodeName(QFile::decodeName(name)) != name) {
            error = QStringLiteral("%1 holds the name %2, which is not UTF-8: rename it")
                        .arg(directory, QString::fromLatin1(name.toPercentEncoding()));
            return false;
        }
    }
    if (failure) {
        error = QStringLiteral("%1 cannot be read").arg(directory);
    }
    return !failure;
}

/// Whether @p entry was probably meant as a step: a directory named nearly so, or with a step's "data".
bool looksLikeStep(const QFileInfo &entry)
{
    return entry.isDir() && (entry.fileName().startsWith(QStringLiteral("step"), Qt::CaseInsensitive) ||
                             QFileInfo(entry.filePath() + QStringLiteral("/data")).isDir());
}

} // namespace

PatchChain::PatchChain(QString stepsDirectory, const QString &patchDirectory, QStringList mayVanish)
    : m_stepsDirectory(std::move(stepsDirectory))
    , m_patchDirectory(QDir::cleanPath(patchDirectory))
    , m_mayVanish(std::move(mayVanish))
{
}

bool PatchChain::make(QString &error, const Progress &progress)
{
    if (!findSteps(error) || !checkPatchDirectory(error)) {
        return false;
    }
    const QString parent = QFileInfo(m_patchDirectory).absolutePath();
    QDir().mkpath(parent);
    // Beside the place it is for, so that to put it there is a rename.
    QTemporaryDir scratch(parent + QStringLiteral("/make-patch-XXXXXX"));
    if (!scratch.isValid()) {
        error = QStringLiteral("cannot make a directory in %1: %2").arg(parent, scratch.errorString());
        return false;
    }
    const QString made = scratch.filePath(QStringLiteral("new"));
    for (const Step &step : std::as_const(m_steps)) {
        if (!makeStep(step, made, progress, error)) {
            return false;
        }
    }
    for (const QString &name : std::as_const(m_mayVanish)) {
        if (!m_vanished.contains(name)) {
            error = QStringLiteral("%1 was allowed to vanish, and no step leaves it out").arg(name);
            return false;
        }
    }
    return replacePatchDirectory(made, scratch.filePath(QStringLiteral("old")), error);
}

bool PatchChain::findSteps(QString &error)
{
    const QDir root(m_stepsDirectory);
    if (!root.exists()) {
        error = QStringLiteral("%1 is not a directory").arg(m_stepsDirectory);
        return false;
    }
    if (!isListable(m_stepsDirectory, error)) {
        return false;
    }
    const QFileInfoList entries = root.entryInfoList(kEverything);
    const bool areGood =
        std::all_of(entries.cbegin(), entries.cend(),
                    [this, &error](const QFileInfo &entry) { return addStep(entry, error); });
    if (areGood && m_steps.isEmpty()) {
        error = QStringLiteral("%1 has no directory \"stepN\"").arg(m_stepsDirectory);
        return false;
    }
    return areGood && checkStepNumbers(error);
}

/// Takes @p entry for a step if it is one. False, with the reason, when it is none and looks like one.
bool PatchChain::addStep(const QFileInfo &entry, QString &error)
{
    static const QRegularExpression stepName(QStringLiteral("^step(0*)([0-9]+)\\z"));
    const QRegularExpressionMatch match = stepName.match(entry.fileName());
    if (!match.hasMatch()) {
        if (!looksLikeStep(entry)) {
            return true; // a note on the steps, for one
        }
        error = QStringLiteral("%1 looks like a step, and the name of a step is \"step\" and a number, as in "
                               "\"step2\": rename it, or move it elsewhere")
                    .arg(entry.filePath());
        return false;
    }
    bool isNumber = false;
    const int number = match.captured(2).toInt(&isNumber);
    if (!isNumber || !entry.isDir()) {
        error = QStringLiteral("%1 is not a directory \"stepN\" with a number that fits 31 bits")
                    .arg(entry.filePath());
        return false;
    }
    m_steps.append({number, entry.fileName()});
    if (match.capturedLength(1) > 0) {
        m_warnings << QStringLiteral("%1 answers a request for \"%2\" and none for \"step%3\": rename it if "
                                     "lessons ask for that")
                          .arg(entry.filePath(), entry.fileName())
                          .arg(number);
    }
    return true;
}

/// Puts the steps in order. False, with the reason, when two have one number.
bool PatchChain::checkStepNumbers(QString &error)
{
    std::sort(m_steps.begin(), m_steps.end(),
              [](const Step &left, const Step &right) { return left.number < right.number; });
    const auto same =
        std::adjacent_find(m_steps.cbegin(), m_steps.cend(),
                           [](const Step &left, const Step &right) { return left.number == right.number; });
    if (same != m_steps.cend()) {
        error = QStringLiteral("%1 and %2 in %3 have the same number: rename one")
                    .arg(same->name, std::next(same)->name, m_stepsDirectory);
        return false;
    }
    return true;
}

bool PatchChain::checkPatchDirectory(QString &error) const
{
    const QFileInfo info(m_patchDirectory);
    if (info.exists() && !info.isDir()) {
        error = QStringLiteral("%1 is in the way: it is not a directory").arg(m_patchDirectory);
        return false;
    }
    const QString steps = QDir(m_stepsDirectory).canonicalPath();
    const QString patches = realPlace(m_patchDirectory);
    if (patches.startsWith(steps + QLatin1Char('/')) || steps.startsWith(patches + QLatin1Char('/'))) {
        error = QStringLiteral("%1 and %2 lie inside one another").arg(m_patchDirectory, m_stepsDirectory);
        return false;
    }
    if (info.exists() && !isListedWhole(m_patchDirectory, error)) {
        return false;
    }
    QDirIterator iterator(m_patchDirectory, kEverything, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        if (iterator.fileInfo().isDir() && !iterator.fileInfo().isSymLink()) {
            if (!isListedWhole(path, error)) {
                return false;
            }
        } else if (!path.endsWith(QStringLiteral("-patch"))) {
            error = QStringLiteral("%1 is not replaced, because %2 in it is no patch: move it away, or name "
                                   "another directory")
                        .arg(m_patchDirectory, path);
            return false;
        }
    }
    return true;
}

bool PatchChain::makeStep(const Step &step, const QString &directory, const Progress &progress,
                          QString &error)
{
    const QString from = QStringLiteral("%1/%2/data").arg(m_stepsDirectory, step.name);
    const QString to = QStringLiteral("%1/%2/data").arg(directory, step.name);
    QStringList names;
    QHash<QString, std::string> texts;
    if (!dataFiles(from, names, error) || !checkVanished(step, names, error) ||
        !readTexts(from, names, texts, error)) {
        return false;
    }
    if (!QDir().mkpath(to)) {
        error = QStringLiteral("cannot make the directory %1").arg(to);
        return false;
    }
    for (const QString &name : std::as_const(names)) {
        const QString path = QStringLiteral("%1/%2").arg(from, name);
        const auto report = [&progress, &path](std::size_t done, std::size_t size) {
            if (progress) {
                progress(path, done, size);
            }
        };
        QByteArray patch;
        if (!PatchMaker::makePatch(m_texts.value(name), texts.value(name), patch, error, report)) {
            error = QStringLiteral("%1: %2").arg(path, error);
            return false;
        }
        if (!PatchFiles::write(QStringLiteral("%1/%2-patch").arg(to, name), patch, error)) {
            return false;
        }
        ++m_patchCount;
        m_patchBytes += patch.size();
    }
    m_texts = std::move(texts);
    return true;
}

/// Reads the data files of a step. False, with the reason, when the program has no good answer with them.
bool PatchChain::readTexts(const QString &directory, const QStringList &names,
                           QHash<QString, std::string> &texts, QString &error) const
{
    std::size_t bytes = 0;
    for (const QString &name : names) {
        const QString path = QStringLiteral("%1/%2").arg(directory, name);
        std::string &text = texts[name];
        if (!PatchFiles::read(path, text, error)) {
            return false;
        }
        bytes += text.size();
        if (bytes > kMostPresetBytes) {
            error =
                QStringLiteral("%1 has more than %2 bytes in its files up to %3, and the program answers no "
                               "request for more: make the files smaller")
                    .arg(directory)
                    .arg(kMostPresetBytes)
                    .arg(name);
            return false;
        }
        QString place;
        QString reason;
        if (!DataFile::isJson(text, place, reason)) {
            error =
                QStringLiteral("%1, %2: this is no JSON: %3. Mend the file there").arg(path, place, reason);
            return false;
        }
    }
    return true;
}

bool PatchChain::dataFiles(const QString &directory, QStringList &names, QString &error) const
{
    if (!QFileInfo(directory).isDir()) {
        error = QStringLiteral("%1 is missing: a step has its data files there").arg(directory);
        return false;
    }
    if (!isListedWhole(directory, error)) {
        return false;
    }
    const QFileInfoList entries = QDir(directory).entryInfoList(kEverything, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (!entry.isFile() || !entry.fileName().endsWith(QStringLiteral(".json"))) {
            error = QStringLiteral("%1 is no data file: only NAME.json belongs there").arg(entry.filePath());
            return false;
        }
        names << entry.fileName();
    }
    return true;
}

bool PatchChain::checkVanished(const Step &step, const QStringList &names, QString &error)
{
    QStringList missing;
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        if (names.contains(it.key())) {
            continue;
        }
        if (m_mayVanish.contains(it.key())) {
            m_vanished << it.key();
        } else {
            missing << it.key();
        }
    }
    if (missing.isEmpty()) {
        return true;
    }
    missing.sort();
    error = QStringLiteral(
                "%1/%2/data lacks what the step before it has: %3. Copy it there, or allow it to vanish "
                "with --allow-vanish")
                .arg(m_stepsDirectory, step.name, missing.join(QStringLiteral(", ")));
    return false;
}

bool PatchChain::replacePatchDirectory(const QString &made, const QString &aside, QString &error) const
{
    QDir directory;
    const bool isReplacing = QFileInfo::exists(m_patchDirectory);
    if (isReplacing && !directory.rename(m_patchDirectory, aside)) {
        error = QStringLiteral("cannot move the old %1 out of the way").arg(m_patchDirectory);
        return false;
    }
    if (directory.rename(made, m_patchDirectory)) {
        return true;
    }
    error = QStringLiteral("cannot put the patches in their place at %1").arg(m_patchDirectory);
    if (isReplacing) {
        directory.rename(aside, m_patchDirectory);
    }
    return false;
}
