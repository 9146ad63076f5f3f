#pragma once

#include "lesson-check/LessonLibrary.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

inline QString listFile()
{
    return QStringLiteral("resource/qml/Tutorial/TutorialList.js");
}
inline QString scenarioFile()
{
    return QStringLiteral("resource/qml/Tutorial/TutorialStep1.js");
}
inline QString censusFile()
{
    return QStringLiteral("authoring/lesson-check/census.json");
}
inline QString glossaryFile()
{
    return QStringLiteral("authoring/glossary.json");
}
inline QString catalogueFile(const char *locale)
{
    return QStringLiteral("resource/translations/%1.ts").arg(QLatin1String(locale));
}

inline void copyTree(const QString &from, const QString &to)
{
    QDir(to).mkpath(QStringLiteral("."));
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString target = QDir(to).filePath(entry.fileName());
        if (entry.isDir()) {
            copyTree(entry.filePath(), target);
        } else {
            QVERIFY(QFile::copy(entry.filePath(), target));
        }
    }
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QStringList lines(const Findings &findings)
{
    QStringList all;
    for (const Finding &finding : findings) {
        all.append(finding.toString());
    }
    return all;
}

/// A copy of a sound little library for each test. Most of them spoil it in one place, and say which finding
/// has to name that place.
class LibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default=false")); }
    void init() { copyLibrary(); }

protected:
    /// Begins with a sound library again.
    void copyLibrary()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        copyTree(QStringLiteral(FIXTURE_DIR), m_folder->path());
    }

    [[nodiscard]] QString path(const QString &file) const { return QDir(m_folder->path()).filePath(file); }

    /// Puts @p to in the place of the first @p from.
    void replace(const QString &file, const QByteArray &from, const QByteArray &to) const
    {
        QByteArray bytes = readFile(path(file));
        const int at = bytes.indexOf(from);
        QVERIFY2(at >= 0, from.constData());
        bytes.replace(at, from.size(), to);
        QVERIFY(writeFile(path(file), bytes));
    }

    /// What is wrong with the library, a line each.
    [[nodiscard]] QStringList errors() const
    {
        Findings findings = LessonLibrary(m_folder->path()).check(false);
        const auto isNote = [](const Finding &finding) {
            return finding.kind == Finding::Kind::kNote;
        };
        findings.erase(std::remove_if(findings.begin(), findings.end(), isNote), findings.end());
        return lines(findings);
    }

    static void addFindingColumns()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("finding");
    }
    static void addFindingRow(const char *name, const QString &file, const QByteArray &from,
                              const QByteArray &to, const char *finding)
    {
        QTest::newRow(name) << file << from << to << QString::fromUtf8(finding);
    }
    /// Checks the current row: one finding is the row's, or begins with it when that ends in a colon.
    void checkFindingRow() const
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, finding);
        replace(file, from, to);
        const QStringList found = errors();
        const auto isIt = [&](const QString &line) {
            return finding.endsWith(QLatin1Char(':')) ? line.startsWith(finding) : line == finding;
        };
        QVERIFY2(std::any_of(found.cbegin(), found.cend(), isIt),
                 qPrintable(QStringLiteral("not among: ") + found.join(QLatin1Char('\n'))));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};
