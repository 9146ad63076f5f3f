#pragma once

#include "SampleFiles.h"

#include <QObject>
#include <QStringList>
#include <QTest>

/// A test of the sample project: it holds in each step, and what a change to the last one breaks is found.
class SampleTest : public QObject
{
    Q_OBJECT

protected:
    /// What @p check finds first, with the step's name; nothing when it finds nothing in any step.
    template<typename Check>
    [[nodiscard]] static QString firstFinding(Check check)
    {
        for (int step = sample::kFirstStep; step <= sample::kLastStep; ++step) {
            const QStringList findings = check(sample::readStep(step));
            if (!findings.isEmpty()) {
                return sample::stepName(step) + QLatin1Char(' ') + findings.first();
            }
        }
        return QString();
    }

    /// Rows of changes, each with what is found when it is made, if the test tells.
    static void addChangeColumns()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("finding");
    }
    static void addChange(const char *name, const char *file, const char *path, const QJsonValue &value,
                          const char *finding = "")
    {
        QTest::newRow(name) << QString::fromLatin1(file) << QString::fromLatin1(path) << value
                            << QString::fromLatin1(finding);
    }
    /// The last step with the present row's change.
    [[nodiscard]] sample::Files lastWithChange() const
    {
        QFETCH(QString, file);
        QFETCH(QString, path);
        QFETCH(QJsonValue, value);
        return sample::changed(m_last, file, path, value);
    }

    sample::Files m_last;

private Q_SLOTS:
    void init()
    {
        m_last = sample::readStep(sample::kLastStep);
        QVERIFY(!m_last.isEmpty());
    }
};
