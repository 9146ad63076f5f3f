#pragma once

#include "Scratch.h"
#include "make-patch/PatchChain.h"
#include "tool/StringPatch.h"

#include <QHash>
#include <QObject>

#include <memory>

#include <fcntl.h>
#include <unistd.h>

/// Steps and patches in a directory of its own for each test.
class PatchChainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scratch = std::make_unique<Scratch>(); }

protected:
    using Texts = QHash<QString, QByteArray>;

    /// Empty when the chain was made, otherwise the reason.
    [[nodiscard]] QString make(const QStringList &mayVanish = {}) const
    {
        return makeIn(m_scratch->path("patches"), mayVanish);
    }
    [[nodiscard]] QString makeIn(const QString &patchDirectory, const QStringList &mayVanish = {}) const
    {
        PatchChain chain(m_scratch->path("steps"), patchDirectory, mayVanish);
        QString error;
        if (chain.make(error) != error.isEmpty()) {
            qFatal("a result and a reason that do not fit: %s", qPrintable(error));
        }
        return error;
    }
    /// Replays the chain over @p steps as the companion does, and gives the texts of the last.
    [[nodiscard]] Texts replay(const QList<int> &steps) const
    {
        Texts texts;
        for (const int step : steps) {
            const QByteArray data = "patches/step" + QByteArray::number(step) + "/data";
            Texts next;
            const QStringList names = m_scratch->entries(data.constData());
            for (const QString &name : names) {
                const QString file = name.chopped(int(qstrlen("-patch")));
                const QByteArray patch = m_scratch->get((data + '/' + name.toUtf8()).constData());
                std::string result;
                if (!StringPatch::ApplyStringPatch(texts.value(file).toStdString(), patch, result)) {
                    qFatal("a bad patch: %s", qPrintable(name));
                }
                next.insert(file, QByteArray::fromStdString(result));
            }
            texts = next;
        }
        return texts;
    }

    /// Makes a file whose name need not be text, which Qt's classes cannot.
    static void putBytes(const QByteArray &path)
    {
        const int file = open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        if (file < 0 || write(file, "b", 1) != 1 || close(file) != 0) {
            qFatal("cannot write a file whose name is no text");
        }
    }

    std::unique_ptr<Scratch> m_scratch;
};
