#include "PilotOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace {

QString nameOf(const QCommandLineOption &option)
{
    return option.names().constFirst();
}

/// Others may be playing beside it.
QString ownFolder()
{
    return QDir::temp().filePath(
        QStringLiteral("PracticeEditor-pilot-%1").arg(QCoreApplication::applicationPid()));
}

} // namespace

void PilotOptions::addTo(QCommandLineParser *parser) const
{
    parser->addOptions({pilot, way, shots, broken, mistakes, clock, projects, outcomes});
}

QString PilotOptions::problemOf(const QCommandLineParser &parser) const
{
    const QString times = parser.value(clock);
    return times.toInt() >= 1 ? QString()
                              : QStringLiteral("--clock takes a whole number from 1, not \"%1\"").arg(times);
}

Pilot::Settings PilotOptions::settings(const QCommandLineParser &parser) const
{
    Pilot::Settings settings;
    settings.picturesOfAll = parser.isSet(shots);
    settings.picturesFolder = parser.isSet(shots)    ? parser.value(shots)
                              : parser.isSet(broken) ? parser.value(broken)
                                                     : ownFolder();
    settings.speed = parser.value(clock).toInt();
    settings.isBeginner = parser.isSet(mistakes);
    return settings;
}

QStringList PilotOptions::forEachPlay(const QCommandLineParser &parser) const
{
    QStringList options{QStringLiteral("--%1=%2").arg(nameOf(clock), parser.value(clock))};
    if (parser.isSet(mistakes)) {
        options += QStringLiteral("--") + nameOf(mistakes);
    }
    if (parser.isSet(outcomes)) {
        options += QStringLiteral("--%1=%2").arg(nameOf(outcomes), parser.value(outcomes));
    }
    return options;
}

QMap<QString, QString> PilotOptions::folders(const QCommandLineParser &parser) const
{
    QMap<QString, QString> folders;
    for (const QCommandLineOption &option : {shots, broken, projects}) {
        if (parser.isSet(option)) {
            folders.insert(nameOf(option), parser.value(option));
        }
    }
    return folders;
}
