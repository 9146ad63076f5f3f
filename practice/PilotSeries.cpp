#include "PilotSeries.h"

#include "PilotRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSet>

#include <cstdio>

int playSeries(const QVector<PilotPlay> &plays, const QStringList &options,
               const QMap<QString, QString> &folders, bool mayLack)
{
    QSet<int> lacking;
    int broken = 0;
    for (const PilotPlay &play : plays) {
        if (lacking.contains(play.lesson)) {
            continue;
        }
        const QString lesson = play.lesson > 0 ? QStringLiteral("--lesson=%1").arg(play.lesson)
                                               : QStringLiteral("--scenario=") + play.scenario;
        QStringList arguments{QStringLiteral("--pilot"), lesson, QStringLiteral("--locale=") + play.locale,
                              QStringLiteral("--way=") + play.way};
        for (auto folder = folders.constBegin(); folder != folders.constEnd(); ++folder) {
            arguments +=
                QStringLiteral("--%1=%2").arg(folder.key(), QDir(folder.value()).filePath(play.folderName()));
        }
        QProcess player;
        player.setProcessChannelMode(QProcess::ForwardedOutputChannel);
        player.setInputChannelMode(QProcess::ForwardedInputChannel);
        player.start(QCoreApplication::applicationFilePath(), arguments + options);
        player.waitForFinished(-1);
        const bool isNormal =
            player.exitStatus() == QProcess::NormalExit && player.error() == QProcess::UnknownError;
        if (isNormal && player.exitCode() == kLessonLacks && mayLack) {
            lacking.insert(play.lesson);
            std::printf("lesson %d: left out, as the companion has no file of it\n", play.lesson);
            std::fflush(stdout);
            continue;
        }
        std::fputs(player.readAllStandardError().constData(), stderr);
        if (!isNormal) {
            std::fprintf(stderr, "%s: broken: the practice editor ended: %s\n", qPrintable(play.title()),
                         qPrintable(player.errorString()));
        }
        broken += isNormal && player.exitCode() == 0 ? 0 : 1;
    }
    return broken == 0 ? 0 : 1;
}
