#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The texts of one lesson in one language, from a catalogue on disk.
class Catalogue
{
public:
    /// Reads the texts that the file at @p path has in @p context, by what stands in the sources. Adds a line
    /// to
    /// @p problems when the file cannot be read, with the place and what is wrong.
    [[nodiscard]] static Catalogue read(const QString &path, const QString &context, QStringList *problems);

    [[nodiscard]] bool contains(const QString &source) const { return m_texts.contains(source); }
    [[nodiscard]] QString text(const QString &source) const { return m_texts.value(source); }

private:
    QHash<QString, QString> m_texts;
};
