#pragma once

#include "lesson-check/Finding.h"

#include <QMap>

/// The texts of one language, from its .ts file. Messages that are marked unfinished, vanished or obsolete
/// count as missing, as they do for the release tool.
class Catalogue
{
public:
    /// One text and the line on which its message begins.
    struct Message
    {
        int line = 0;
        QString translation;
    };
    using Messages = QMap<QString, Message>; ///< by source text

    /// Reads @p xml; what is wrong with the file named @p file is appended to @p findings.
    Catalogue(QString file, const QString &locale, const QByteArray &xml, Findings &findings);

    [[nodiscard]] const QString &file() const { return m_file; }
    [[nodiscard]] const QString &locale() const { return m_locale; }

    /// Names of all contexts, sorted.
    [[nodiscard]] QStringList contexts() const { return m_contexts.keys(); }

    /// The finished messages of a context; empty when there is no such context.
    [[nodiscard]] Messages messages(const QString &context) const { return m_contexts.value(context); }

private:
    QString m_file;
    QString m_locale;
    QMap<QString, Messages> m_contexts;
};
