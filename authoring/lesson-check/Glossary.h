#pragma once

#include "lesson-check/Finding.h"

#include <QJsonObject>
#include <QMap>
#include <QStringList>

/// The terms of the editor and of the lessons in each language, and the words that are not to stand for them.
class Glossary
{
public:
    /// A word that is in a text, and the term that belongs there.
    struct Slip
    {
        QString word;
        QString term;
    };

    /// Reads the table from @p json. What is wrong with the file named @p file is appended to @p findings.
    Glossary(const QString &file, const QByteArray &json, Findings &findings);

    /// The slips in @p text, each once. A word that is part of a term there is none.
    [[nodiscard]] QVector<Slip> slipsIn(const QString &text, const QString &locale) const;

private:
    struct Avoided
    {
        QString word;
        QString term;
        QStringList within; ///< terms of the language that have the word in them
    };

    void read(const QJsonObject &entry, const QString &locale);
    void findWithin();

    QMap<QString, QStringList> m_terms; ///< by locale
    QMap<QString, QVector<Avoided>> m_avoided;
};
