#pragma once

#include <QString>
#include <QStringList>

/// A scenario file on disk, with its texts in one language from the catalogue beside it.
///
/// The catalogue of "Harbor.js" is "Harbor.en_US.ts" in the same folder, else "en_US.ts" in a folder
/// "translations" two floors up, where the project has its own. The context in it is called "Harbor".
class ScenarioFile
{
public:
    ScenarioFile(const QString &path, const QString &locale);

    /// How the lesson is called: the file's name without its ending.
    [[nodiscard]] QString name() const;

    /// The scenario with the texts put in, as the companion hands one over. Empty when it cannot be played.
    /// Adds a line to @p problems for everything that is wrong, with the file and, where there is one, the
    /// line.
    [[nodiscard]] QString read(QStringList *problems) const;

    /// The files that read() reads, and those that it would read if they were there.
    [[nodiscard]] QStringList files() const;

private:
    [[nodiscard]] QStringList catalogues() const;

    QString m_path;
    QString m_locale;
};
