#pragma once

#include "LogCapture.h"
#include "Tutorial/preset/PresetData.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

inline QString translation(const QString &context, const QString &text)
{
    return context + QLatin1Char(':') + text;
}

/// A program directory of its own, with patches in it.
class ProgramDirectory
{
public:
    explicit ProgramDirectory(const QString &patchRoot = QStringLiteral("resource/patch"))
        : m_root(m_dir.filePath(patchRoot))
    {
    }

    [[nodiscard]] QString path() const { return m_dir.path(); }
    [[nodiscard]] QString root() const { return m_root; }
    [[nodiscard]] QString dataPath(const QString &step) const
    {
        return m_root + QLatin1Char('/') + step + QStringLiteral("/data");
    }

    void addStep(const QString &step) const { QVERIFY(QDir().mkpath(dataPath(step))); }
    void addFile(const QString &step, const QString &name, const QByteArray &bytes) const
    {
        addStep(step);
        QFile file(dataPath(step) + QLatin1Char('/') + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    [[nodiscard]] QString reply(const QString &step) const
    {
        return presetData(step, path(), buildSampleTable(), translation);
    }
    /// The members of the reply, empty when there is none.
    [[nodiscard]] QJsonObject replyObject(const QString &step) const
    {
        return QJsonDocument::fromJson(reply(step).toUtf8()).object();
    }

private:
    QTemporaryDir m_dir;
    QString m_root;
};

inline QString source()
{
    return QStringLiteral("TutorialManager::onReceived ");
}

/// The warnings without their source labels.
inline QStringList warningTexts(const LogCapture &log)
{
    QStringList texts;
    const QStringList warnings = log.warnings();
    for (const QString &warning : warnings) {
        texts.append(warning.section(QLatin1Char(' '), 1));
    }
    return texts;
}

inline QString step(int number)
{
    return QStringLiteral("step%1").arg(number);
}
