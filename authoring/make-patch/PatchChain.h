#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <cstddef>
#include <functional>
#include <string>

class QFileInfo;

/// Makes the chain of patches that the preset data of the lessons is stored in, from the data files
/// themselves.
///
/// The data files of step N stand whole in `stepN/data/NAME.json`; the chain has
/// `stepN/data/NAME.json-patch`, each patch relative to the file's text in the step before. Replaying forgets
/// a file that a step has no patch for, so a file that does not change gets a patch all the same, and one
/// that stops existing is an error unless it was announced.
class PatchChain
{
public:
    /// Reads from @p stepsDirectory, and writes to @p patchDirectory, which is replaced whole. @p mayVanish
    /// names the data files, as `NAME.json`, that a step may leave out after an earlier one had them.
    PatchChain(QString stepsDirectory, const QString &patchDirectory, QStringList mayVanish);

    /// Hears how many bytes of the data file at @p path are done, of how many.
    using Progress = std::function<void(const QString &path, std::size_t done, std::size_t size)>;

    /// Makes the chain. False, with the reason in @p error and the patch directory as it was, on bad input or
    /// when writing fails. A directory that holds something that is no patch is not replaced.
    bool make(QString &error, const Progress &progress = {});

    /// What does no harm and may not be meant, in words for the one who runs the tool.
    [[nodiscard]] const QStringList &warnings() const { return m_warnings; }

    [[nodiscard]] int stepCount() const { return m_steps.size(); }
    [[nodiscard]] int patchCount() const { return m_patchCount; }
    /// The bytes of all patches together.
    [[nodiscard]] qint64 patchBytes() const { return m_patchBytes; }

private:
    struct Step
    {
        int number;
        QString name;
    };

    bool findSteps(QString &error);
    bool addStep(const QFileInfo &entry, QString &error);
    bool checkStepNumbers(QString &error);
    bool checkPatchDirectory(QString &error) const;
    bool makeStep(const Step &step, const QString &directory, const Progress &progress, QString &error);
    bool readTexts(const QString &directory, const QStringList &names, QHash<QString, std::string> &texts,
                   QString &error) const;
    bool dataFiles(const QString &directory, QStringList &names, QString &error) const;
    bool checkVanished(const Step &step, const QStringList &names, QString &error);
    bool replacePatchDirectory(const QString &made, const QString &aside, QString &error) const;

    QString m_stepsDirectory;
    QString m_patchDirectory;
    QStringList m_mayVanish;
    QStringList m_vanished;
    QStringList m_warnings;
    QVector<Step> m_steps;               ///< In ascending order.
    QHash<QString, std::string> m_texts; ///< Of the step made last, by data file name.
    int m_patchCount = 0;
    qint64 m_patchBytes = 0;
};
