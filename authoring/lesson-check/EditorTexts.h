#pragma once

#include "lesson-check/Catalogue.h"

#include <QSet>
#include <QString>
#include <QVector>

/// Whatever the practice editor shows, in all languages: its windows, choices, event commands, menus, tiles
/// and messages.
class EditorTexts
{
public:
    struct Text
    {
        QString file; ///< relative to the project's root
        QString locale;
        QString text;
    };

    /// Reads the descriptions and catalogues below @p root. A file that cannot be read has no texts.
    explicit EditorTexts(const QString &root);

    [[nodiscard]] const QVector<Text> &all() const { return m_texts; }

    /// What a person can read somewhere on the screen, whole labels as they stand there: @p catalogues have
    /// the companion's buttons and the names in the sample project.
    [[nodiscard]] QSet<QString> shown(const QString &locale, const QVector<Catalogue> &catalogues) const;

private:
    void readTables(const QString &root, const QString &folder);
    void readCatalogues(const QString &root);

    QVector<Text> m_texts;
};
