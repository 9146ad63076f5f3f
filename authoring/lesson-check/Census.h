#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"

#include <QJsonObject>

/// The figures that each lesson of the library has to have: how many steps, in which windows, with which
/// conditions and icons; and what they come to together.
class Census
{
public:
    /// Reads the table from @p json: an object of one row per lesson. What is wrong with the file named @p
    /// file is appended to @p findings.
    Census(QString file, const QByteArray &json, Findings &findings);

    /// Counts @p lesson and compares it with its row.
    [[nodiscard]] Findings check(const Lesson &lesson) const;

    /// Adds the lessons of a library up and compares them with the row "all". The first figure that is off is
    /// the only finding: the others mostly follow from it.
    [[nodiscard]] Findings checkAll(const QVector<Lesson> &lessons) const;

    /// The row that @p lesson has by its own count.
    [[nodiscard]] static QJsonObject count(const Lesson &lesson);

private:
    /// A figure that is not as it has to be.
    struct Difference
    {
        QString figure;
        QJsonValue has;
        QJsonValue wanted;
    };
    [[nodiscard]] static QVector<Difference> compare(const QJsonObject &has, const QJsonObject &wanted);

    QString m_file;
    QJsonObject m_rows;
};
