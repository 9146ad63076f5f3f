#pragma once

#include <QHash>
#include <QString>

/// What the practice editor knows of the lessons by itself, before one is asked for: the companion tells
/// their names and titles only. It stands in lessons.json.
class LessonCatalog
{
public:
    struct Entry
    {
        /// What one learns in it, in a line.
        QString teaches;
        /// How long it takes, in whole minutes.
        int minutes = 0;
        /// The companion has it. False for a lesson that is in the list and yet to be written.
        bool isWritten = true;
    };

    /// Texts in the language @p locale; English where that is not one of the three. @p path: the file, in
    /// place of the one that is built in.
    explicit LessonCatalog(const QString &locale, const QString &path = builtIn());

    static QString builtIn() { return QStringLiteral(":/practice/strip/lessons.json"); }

    /// How many lessons there are, written or not.
    [[nodiscard]] int count() const { return int(m_entries.size()); }

    /// Of a lesson that is not in here, nothing but that it may be asked for.
    [[nodiscard]] Entry entry(const QString &lessonName) const { return m_entries.value(lessonName); }

private:
    QHash<QString, Entry> m_entries;
};
