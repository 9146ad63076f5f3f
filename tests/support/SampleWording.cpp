#include "SampleWording.h"

#include "SampleEvents.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

namespace {

using sample::CommandList;
using sample::Files;
using sample::number;
using sample::objectsIn;

constexpr int kMessage = 101;
constexpr int kChoices = 102;
constexpr int kSelfSwitch = 123;
constexpr int kLine = 401;
constexpr int kBranch = 402;
constexpr int kEndOfChoices = 404;
constexpr int kScrollingLine = 405;
constexpr int kLinesOfWindow = 4;

/// The value without what is a number of a text, or a list of such.
QJsonValue withoutNumber(const QJsonValue &value)
{
    static const QRegularExpression isNumber(QStringLiteral("^#\\d+$"));
    if (value.isArray()) {
        QJsonArray left;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            left.append(withoutNumber(element));
        }
        return left;
    }
    return isNumber.match(value.toString()).hasMatch() ? QJsonValue() : value;
}

QJsonObject withoutNumbers(QJsonObject object, const QStringList &keys)
{
    for (const QString &key : keys) {
        object.insert(key, withoutNumber(object.value(key)));
    }
    return object;
}

/// The commands without the texts that their translator gets to, and without the letters of self switches.
QJsonArray spoken(const QJsonArray &commands)
{
    static const QMap<int, int> textPlaces = {
        {kMessage, 4}, {kChoices, 0}, {kLine, 0}, {kBranch, 1}, {kScrollingLine, 0}};
    QJsonArray left;
    for (const QJsonValue &value : commands) {
        QJsonObject command = value.toObject();
        QJsonArray parameters = objectsIn(command, "parameters");
        const int code = number(command, "code");
        const int place = textPlaces.value(code, -1);
        if (place >= 0 && place < parameters.size()) {
            parameters.replace(place, withoutNumber(parameters.at(place)));
        } else if (code == kSelfSwitch) {
            parameters = QJsonArray();
        }
        command.insert(QStringLiteral("parameters"), parameters);
        left.append(command);
    }
    return left;
}

/// The pages of an event, or the common events.
QJsonArray withoutSpoken(const QJsonArray &pages)
{
    QJsonArray left;
    for (const QJsonValue &value : pages) {
        QJsonObject page = value.toObject();
        page.insert(QStringLiteral("list"), spoken(objectsIn(page, "list")));
        left.append(page);
    }
    return left;
}

QStringList translatedKeys(const QString &file)
{
    const QString name = QStringLiteral("name");
    const QString description = QStringLiteral("description");
    if (file == QLatin1String("CommonEvents.json")) {
        return {};
    }
    if (QRegularExpression(QStringLiteral("^(Items|Weapons|Armors)\\.")).match(file).hasMatch()) {
        return {name, description};
    }
    if (file == QLatin1String("Skills.json")) {
        return {name, description, QStringLiteral("message1"), QStringLiteral("note")};
    }
    if (file == QLatin1String("States.json")) {
        return {name,
                QStringLiteral("message1"),
                QStringLiteral("message2"),
                QStringLiteral("message3"),
                QStringLiteral("message4"),
                QStringLiteral("note")};
    }
    return {name};
}

/// The file without the texts that the table of translators gets to.
QJsonValue withoutTranslated(const QString &file, const QJsonDocument &document)
{
    if (document.isArray()) {
        const QJsonArray array =
            file == QLatin1String("CommonEvents.json") ? withoutSpoken(document.array()) : document.array();
        QJsonArray left;
        for (const QJsonValue &entry : array) {
            left.append(withoutNumbers(entry.toObject(), translatedKeys(file)));
        }
        return left;
    }
    QJsonObject object = document.object();
    if (file == QLatin1String("System.json")) {
        return withoutNumbers(object, {QStringLiteral("switches")});
    }
    QJsonArray events;
    const QJsonArray old = objectsIn(object, "events");
    for (const QJsonValue &value : old) {
        QJsonObject event = withoutNumbers(value.toObject(), {QStringLiteral("name")});
        event.insert(QStringLiteral("pages"), withoutSpoken(objectsIn(event, "pages")));
        events.append(event);
    }
    object.insert(QStringLiteral("events"), events);
    return object;
}

/// The strings in it but for the names of pictures and sounds and the letters of self switches.
QStringList strings(const QJsonValue &value, const QString &place)
{
    static const QSet<QString> technical = {QStringLiteral("image"), QStringLiteral("file"),
                                            QStringLiteral("backdrop"), QStringLiteral("background"),
                                            QStringLiteral("selfSwitch")};
    if (!value.toString().isEmpty()) {
        return {place + QStringLiteral(": ") + value.toString()};
    }
    QStringList found;
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        found += strings(array.at(i), QStringLiteral("%1/%2").arg(place).arg(i));
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!technical.contains(it.key())) {
            found += strings(it.value(), place + QLatin1Char('/') + it.key());
        }
    }
    return found;
}

/// The types of the parameters, a letter each: s, n, b, o for an object and l for a list.
QString form(const QJsonArray &parameters)
{
    static const QMap<QJsonValue::Type, QChar> letters = {{QJsonValue::String, QLatin1Char('s')},
                                                          {QJsonValue::Double, QLatin1Char('n')},
                                                          {QJsonValue::Bool, QLatin1Char('b')},
                                                          {QJsonValue::Object, QLatin1Char('o')},
                                                          {QJsonValue::Array, QLatin1Char('l')}};
    QString form;
    for (const QJsonValue &parameter : parameters) {
        form += letters.value(parameter.type(), QLatin1Char('?'));
    }
    return form;
}

QStringList forms(int code)
{
    static const QMap<int, QStringList> forms = {
        {0, {QString()}},
        {kMessage, {QStringLiteral("snnn"), QStringLiteral("snnns")}},
        {kChoices, {QStringLiteral("lnnnn")}},
        {105, {QStringLiteral("nb")}},
        {117, {QStringLiteral("n")}},
        {121, {QStringLiteral("nnn")}},
        {122, {QStringLiteral("nnnnn")}},
        {kSelfSwitch, {QStringLiteral("sn")}},
        {126, {QStringLiteral("nnnn")}},
        {129, {QStringLiteral("nnb")}},
        {201, {QStringLiteral("nnnnnn")}},
        {205, {QStringLiteral("no")}},
        {230, {QStringLiteral("n")}},
        {241, {QStringLiteral("o")}},
        {301, {QStringLiteral("nnbb")}},
        {302, {QStringLiteral("nnnnb")}},
        {314, {QStringLiteral("nn")}},
        {331, {QStringLiteral("nnnnb")}},
        {333, {QStringLiteral("nnn")}},
        {kLine, {QStringLiteral("s")}},
        {kBranch, {QStringLiteral("ns")}},
        {kEndOfChoices, {QString()}},
        {kScrollingLine, {QStringLiteral("s")}},
        {605, {QStringLiteral("nnnn")}},
    };
    return forms.value(code);
}

/// The branches that follow the choices at place @p at of the list, by the texts that they begin with, in
/// order; the end of the choices counts as one.
QJsonArray branches(const QJsonArray &list, int at)
{
    QJsonArray branches;
    const int indent = number(list.at(at), "indent");
    for (int i = at + 1; i < list.size(); ++i) {
        const int code = number(list.at(i), "code");
        if (number(list.at(i), "indent") != indent) {
            continue;
        }
        const QJsonArray parameters = objectsIn(list.at(i), "parameters");
        if (code == kBranch && parameters.at(0).toInt(-1) == branches.size()) {
            branches.append(parameters.at(1));
        } else {
            branches.append(code == kEndOfChoices);
            break;
        }
    }
    return branches;
}

} // namespace

namespace sample {

QStringList strayTexts(const Files &files)
{
    QStringList stray;
    for (auto file = files.begin(); file != files.end(); ++file) {
        stray += strings(withoutTranslated(file.key(), file.value()), file.key());
    }
    return stray;
}

QStringList misshapenCommands(const Files &files)
{
    QStringList findings;
    const QVector<CommandList> lists = commandLists(files);
    for (const CommandList &list : lists) {
        for (const QJsonValue &command : list.list) {
            const int code = number(command, "code");
            const QString actual = form(objectsIn(command, "parameters"));
            if (!forms(code).contains(actual)) {
                findings.append(
                    QStringLiteral("%1: command %2 with %3").arg(list.place).arg(code).arg(actual));
            }
        }
        const QJsonValue last = list.list.isEmpty() ? QJsonValue() : list.list.last();
        if (!last.isObject() || number(last, "code") != 0 || number(last, "indent") != 0) {
            findings.append(list.place + QStringLiteral(": no end"));
        }
    }
    return findings;
}

QStringList mismatchedBranches(const Files &files)
{
    QStringList findings;
    const QVector<CommandList> lists = commandLists(files);
    for (const CommandList &list : lists) {
        for (int i = 0; i < list.list.size(); ++i) {
            QJsonArray choices = objectsIn(list.list.at(i), "parameters").at(0).toArray();
            choices.append(true);
            if (number(list.list.at(i), "code") == kChoices && branches(list.list, i) != choices) {
                findings.append(list.place);
            }
        }
    }
    return findings;
}

QStringList overlongMessages(const Files &files, const QMap<QString, QString> &texts, int letters)
{
    QStringList findings;
    const QVector<CommandList> lists = commandLists(files);
    for (const CommandList &list : lists) {
        int lines = 0;
        for (const QJsonValue &command : list.list) {
            const int code = number(command, "code");
            lines = code == kLine ? lines + 1 : 0;
            const QString text = texts.value(objectsIn(command, "parameters").at(0).toString());
            if ((code == kLine || code == kScrollingLine) && text.size() > letters) {
                findings.append(list.place + QStringLiteral(": ") + text);
            }
            if (lines > kLinesOfWindow) {
                findings.append(list.place + QStringLiteral(": %1 lines").arg(lines));
            }
        }
    }
    return findings;
}

} // namespace sample
