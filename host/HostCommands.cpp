#include "host/HostCommands.h"

#include "lesson/LessonWords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace {

using Kind = CompanionCommand::Kind;

constexpr QChar kFieldSeparator(1);
constexpr int kFlagNext = 1;
constexpr int kFlagYesNo = 2;
constexpr int kFlagArrow = 4;

QString number(int value)
{
    return QString::number(value);
}

QString join(const QStringList &fields)
{
    return fields.join(kFieldSeparator);
}

void readStart(const QString &command, CompanionCommand *read)
{
    read->kind = Kind::kStart;
    // The id is the last field: whatever stands between is the script.
    bool isNumber = false;
    const int id = command.section(kFieldSeparator, -1).toInt(&isNumber);
    read->text = command.section(kFieldSeparator, 1, -2);
    if (isNumber) {
        read->id = id;
    } else {
        read->problem =
            QStringLiteral("\"start\" names no step to begin with; the lesson begins at the first");
    }
}

void readList(const QString &json, CompanionCommand *read)
{
    read->kind = Kind::kTutorialList;
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isArray()) {
        read->problem = QStringLiteral("the list of lessons cannot be read");
    }
    const QJsonArray entries = document.array();
    for (const QJsonValue &entry : entries) {
        read->lessons.append(
            {entry[QLatin1String("filename")].toString(), entry[QLatin1String("title")].toString()});
    }
}

void readFiles(const QString &json, CompanionCommand *read)
{
    read->kind = Kind::kFeedbackPresetData;
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject()) {
        read->problem = QStringLiteral("the data files of the lesson cannot be read");
        return;
    }
    const QJsonObject object = document.object();
    for (auto file = object.begin(); file != object.end(); ++file) {
        read->files.insert(file.key(), file.value().toString());
    }
}

void readIndicator(const QString &command, CompanionCommand *read)
{
    const QStringList fields = command.split(kFieldSeparator);
    if (fields.value(1) == QLatin1String("updateXYWindowKey")) {
        read->kind = Kind::kIndicatorMoved;
        read->place = {fields.value(2).toInt(), fields.value(3).toInt()};
        read->text = fields.value(4);
    }
}

} // namespace

namespace HostCommands {

QString alive()
{
    return QStringLiteral("alive");
}

QString bye()
{
    return QStringLiteral("bye");
}

QString fromServer(const QString &locale)
{
    return join({QStringLiteral("fromServer"), locale});
}

QString tutorialList()
{
    return QStringLiteral("tutorialList");
}

QString tutorial(const QString &lessonName)
{
    return join({QStringLiteral("tutorial"), lessonName});
}

QString requestPresetData(const QString &step)
{
    return join({QStringLiteral("requestPresetData"), step});
}

QString start(const QRect &area)
{
    return join({QStringLiteral("start"), number(area.x()), number(area.y()), number(area.width()),
                 number(area.height())});
}

QString stop()
{
    return QStringLiteral("stop");
}

QString indicatorUpdate(const IndicatorUpdate &update)
{
    const QPoint place = update.place.value_or(QPoint(LessonWords::kNoPosition, LessonWords::kNoPosition));
    const int flags =
        (update.next ? kFlagNext : 0) | (update.yesNo ? kFlagYesNo : 0) | (update.arrow ? kFlagArrow : 0);
    return join({QStringLiteral("indicator"), QStringLiteral("update"), number(place.x()), number(place.y()),
                 update.windowKey, update.hint, number(flags), number(update.iconKind)});
}

QString indicatorUpdateXy(const QPoint &place)
{
    return join(
        {QStringLiteral("indicator"), QStringLiteral("updateXy"), number(place.x()), number(place.y())});
}

QString windowPush(const QString &windowKey)
{
    return join({QStringLiteral("windowStack"), QStringLiteral("push"), windowKey});
}

QString windowPop()
{
    return join({QStringLiteral("windowStack"), QStringLiteral("pop")});
}

QString windowPosition(const QString &windowKey, const QPoint &origin)
{
    return join({QStringLiteral("windowPosition"), windowKey, number(origin.x()), number(origin.y())});
}

QString controlPosition(const QString &controlName, const QPoint &position)
{
    return join({QStringLiteral("controlPosition"), controlName, number(position.x()), number(position.y())});
}

QString applicationWindowSize(const QSize &size)
{
    return join({QStringLiteral("applicationWindowSize"), number(size.width()), number(size.height())});
}

QString state(bool visible)
{
    return join({QStringLiteral("state"), visible ? QStringLiteral("show") : QStringLiteral("hide")});
}

QString showTooltip(const QString &text, const QPoint &centre)
{
    return join({QStringLiteral("showTooltip"), text, number(centre.x()), number(centre.y())});
}

QString contents(const QString &text)
{
    return join({QStringLiteral("contents"), text});
}

QString logAppend(const QString &line)
{
    return join({QStringLiteral("log"), QStringLiteral("append"), line});
}

QString hideTooltip()
{
    return QStringLiteral("hideTooltip");
}

} // namespace HostCommands

CompanionCommand CompanionCommand::read(const QString &command)
{
    static const QMap<QString, Kind> bare = {{QStringLiteral("alive"), Kind::kAlive},
                                             {QStringLiteral("next"), Kind::kNext},
                                             {QStringLiteral("yes"), Kind::kYes},
                                             {QStringLiteral("no"), Kind::kNo},
                                             {QStringLiteral("tutorialReady"), Kind::kTutorialReady}};
    CompanionCommand read;
    read.word = command.section(kFieldSeparator, 0, 0);
    read.kind = bare.value(read.word, Kind::kUnknown);
    if (read.word == QLatin1String("start")) {
        readStart(command, &read);
    } else if (read.word == QLatin1String("tutorialList")) {
        readList(command.section(kFieldSeparator, 1), &read);
    } else if (read.word == QLatin1String("feedbackPresetData")) {
        readFiles(command.section(kFieldSeparator, 1), &read);
    } else if (read.word == QLatin1String("indicator")) {
        readIndicator(command, &read);
    }
    if (read.kind == Kind::kUnknown) {
        read.problem = QStringLiteral("the companion sent the unknown command \"%1\"").arg(read.word);
    }
    return read;
}
