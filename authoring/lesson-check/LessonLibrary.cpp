#include "lesson-check/LessonLibrary.h"

#include "lesson-check/Census.h"
#include "lesson-check/FlowCheck.h"
#include "lesson-check/LoadCheck.h"
#include "lesson-check/OpeningCheck.h"
#include "lesson-check/ScenarioReader.h"
#include "lesson-check/StepCheck.h"
#include "lesson-check/TextCheck.h"
#include "lesson-check/WindowCheck.h"
#include "lesson-check/WordingCheck.h"
#include "tool/DataSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

QString listFile()
{
    return QStringLiteral("resource/qml/Tutorial/TutorialList.js");
}
QString scenarioFile(const QString &name)
{
    return QStringLiteral("resource/qml/Tutorial/%1.js").arg(name);
}
QString bundleFile()
{
    return QStringLiteral("resource/scenarios.qrc");
}
QString descriptionFolder()
{
    return QStringLiteral("practice/descriptions");
}
QString censusFile()
{
    return QStringLiteral("authoring/lesson-check/census.json");
}
QString glossaryFile()
{
    return QStringLiteral("authoring/glossary.json");
}

/// One field that cannot be read would be counted as missing once more by each check of the whole.
bool isWhole(const Lesson &lesson)
{
    return std::all_of(lesson.steps.cbegin(), lesson.steps.cend(),
                       [](const ScenarioItem &step) { return step.unread.isEmpty(); });
}

} // namespace

LessonLibrary::LessonLibrary(QString root)
    : m_root(std::move(root))
{
}

bool LessonLibrary::exists() const
{
    return QFile::exists(QDir(m_root).filePath(listFile()));
}

Findings LessonLibrary::check(bool complete)
{
    m_findings.clear();
    m_catalogues.clear();
    m_lessons.clear();
    readList();
    readCatalogues();
    readLessons(complete);
    checkShipped();
    checkLessons(complete);
    checkWording();
    checkContexts(QRegularExpression(QStringLiteral("^TutorialStep\\d+$")));
    return m_findings;
}

QByteArray LessonLibrary::read(const QString &file)
{
    QByteArray bytes;
    if (!DataSupport::readFile(QDir(m_root).filePath(file), bytes)) {
        report(Finding::Kind::kError, file, 0, {}, QStringLiteral("the file cannot be read"));
    }
    return bytes;
}

void LessonLibrary::report(Finding::Kind kind, const QString &file, int line, const QString &item,
                           const QString &text)
{
    m_findings.append({kind, file, line, item, {}, text});
}

void LessonLibrary::readList()
{
    m_entries = LessonList(listFile(), read(listFile()), m_findings).entries();
}

void LessonLibrary::readCatalogues()
{
    const QStringList all = LessonWords::locales();
    for (const QString &locale : all) {
        const QString file = QStringLiteral("resource/translations/%1.ts").arg(locale);
        m_catalogues.append(Catalogue(file, locale, read(file), m_findings));
    }
}

void LessonLibrary::readLessons(bool complete)
{
    for (const LessonEntry &entry : qAsConst(m_entries)) {
        const QString file = scenarioFile(entry.filename);
        if (!QFile::exists(QDir(m_root).filePath(file))) {
            report(complete ? Finding::Kind::kError : Finding::Kind::kNote, listFile(), entry.line,
                   entry.filename, QStringLiteral("the lesson has no scenario file yet"));
            continue;
        }
        readLesson(entry.filename, file);
    }
}

void LessonLibrary::readLesson(const QString &name, const QString &file)
{
    ScenarioReader reader(file);
    const ScenarioItems steps = reader.read(read(file));
    m_findings += reader.findings();
    m_lessons.append({name, file, steps});
    // Where the form is wrong, the companion's complaints would only repeat it.
    if (reader.findings().isEmpty()) {
        m_findings += checkLoading(m_lessons.constLast(), QDir(m_root).filePath(file));
    }
}

QVector<Catalogue> LessonLibrary::cataloguesBeside(const QString &file)
{
    const QFileInfo scenario(file);
    QVector<Catalogue> catalogues;
    const QStringList all = LessonWords::locales();
    for (const QString &locale : all) {
        const QString own =
            scenario.path() + QStringLiteral("/%1.%2.ts").arg(scenario.completeBaseName(), locale);
        const QString common =
            QDir::cleanPath(scenario.path() + QStringLiteral("/../../translations/%1.ts").arg(locale));
        const QString used = QFile::exists(QDir(m_root).filePath(own)) ? own : common;
        if (!m_beside.contains(used)) {
            m_beside.insert(used, Catalogue(used, locale, read(used), m_findings));
        }
        catalogues.append(*m_beside.constFind(used));
    }
    return catalogues;
}

Findings LessonLibrary::checkScenarios(const QString &folder)
{
    m_findings.clear();
    m_lessons.clear();
    m_beside.clear();
    QStringList files;
    QDirIterator scenarios(QDir(m_root).filePath(folder), {QStringLiteral("*.js")}, QDir::Files,
                           QDirIterator::Subdirectories);
    while (scenarios.hasNext()) {
        files.append(QDir(m_root).relativeFilePath(scenarios.next()));
    }
    files.sort();
    if (files.isEmpty()) {
        report(Finding::Kind::kError, folder, 0, {}, QStringLiteral("there is no scenario file"));
    }
    for (const QString &file : qAsConst(files)) {
        readLesson(QFileInfo(file).completeBaseName(), file);
    }
    const DescriptionSet windows = readDescriptions();
    BubbleCheck bubble;
    for (const Lesson &lesson : qAsConst(m_lessons)) {
        checkLesson(lesson, cataloguesBeside(lesson.file), windows, &bubble);
    }
    m_catalogues.clear();
    std::copy(m_beside.cbegin(), m_beside.cend(), std::back_inserter(m_catalogues));
    checkContexts(QRegularExpression(QStringLiteral(".")));
    return m_findings;
}

void LessonLibrary::checkShipped()
{
    const QByteArray bundle = read(bundleFile());
    const QDir folder(QDir(m_root).filePath(QStringLiteral("resource/qml/Tutorial")));
    const QStringList names = folder.entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString base = name.chopped(3);
        const auto lists = [&](const LessonEntry &entry) {
            return entry.filename == base;
        };
        if (scenarioFile(base) != listFile() && std::none_of(m_entries.cbegin(), m_entries.cend(), lists)) {
            report(Finding::Kind::kError, scenarioFile(base), 0, {},
                   QStringLiteral("the lesson is not in the list"));
        }
        if (!bundle.contains("<file>qml/Tutorial/" + name.toUtf8() + "</file>")) {
            report(Finding::Kind::kError, bundleFile(), 0, {},
                   QStringLiteral("the file qml/Tutorial/%1 is not in the bundle").arg(name));
        }
    }
}

DescriptionSet LessonLibrary::readDescriptions()
{
    QStringList errors;
    DescriptionSet descriptions =
        DescriptionSet::read(QDir(m_root).filePath(descriptionFolder()), nullptr, &errors);
    const QString separator = QStringLiteral(": ");
    for (const QString &error : qAsConst(errors)) {
        const QString file = QDir(m_root).relativeFilePath(error.section(separator, 0, 0));
        report(Finding::Kind::kError, file, 0, {}, error.section(separator, 1));
    }
    return descriptions;
}

void LessonLibrary::checkLessons(bool complete)
{
    const DescriptionSet windows = readDescriptions();
    const Census census(censusFile(), read(censusFile()), m_findings);
    BubbleCheck bubble;
    for (const Lesson &lesson : qAsConst(m_lessons)) {
        checkLesson(lesson, m_catalogues, windows, &bubble);
        if (isWhole(lesson)) {
            if (lesson.name != m_entries.constFirst().filename) {
                m_findings += checkOpening(lesson);
            }
            m_findings += census.check(lesson);
        }
    }
    if (complete) {
        m_findings += census.checkAll(m_lessons);
    }
    for (const Catalogue &catalogue : qAsConst(m_catalogues)) {
        m_findings += checkTitles(listFile(), m_entries, catalogue);
    }
    m_findings += checkLanguages(m_catalogues);
}

void LessonLibrary::checkWording()
{
    const Glossary glossary(glossaryFile(), read(glossaryFile()), m_findings);
    const EditorTexts texts(m_root);
    m_findings += checkTerms(glossary, m_catalogues, texts);
    for (const Catalogue &catalogue : qAsConst(m_catalogues)) {
        const QSet<QString> shown = texts.shown(catalogue.locale(), m_catalogues);
        for (const Lesson &lesson : qAsConst(m_lessons)) {
            m_findings += checkQuotedNames(lesson.name, catalogue, shown);
        }
    }
}

void LessonLibrary::checkLesson(const Lesson &lesson, const QVector<Catalogue> &catalogues,
                                const DescriptionSet &windows, BubbleCheck *bubble)
{
    m_findings += checkSteps(lesson, windows);
    for (const Catalogue &catalogue : catalogues) {
        m_findings += bubble->check(catalogue, lesson.name);
    }
    if (!isWhole(lesson)) {
        return;
    }
    m_findings += checkFlow(lesson);
    m_findings += checkWindows(lesson, windows);
    m_findings += checkNumbers(lesson);
    for (const Catalogue &catalogue : catalogues) {
        m_findings += checkTexts(lesson, catalogue);
    }
}

void LessonLibrary::checkContexts(const QRegularExpression &lessonName)
{
    for (const Catalogue &catalogue : qAsConst(m_catalogues)) {
        const QStringList contexts = catalogue.contexts();
        for (const QString &context : contexts) {
            const auto isIt = [&](const Lesson &lesson) {
                return lesson.name == context;
            };
            if (lessonName.match(context).hasMatch() &&
                std::none_of(m_lessons.cbegin(), m_lessons.cend(), isIt)) {
                report(Finding::Kind::kError, catalogue.file(), 0, context,
                       QStringLiteral("no lesson has this name, so its texts are never used"));
            }
        }
    }
}
