#include "CommandFiles.h"

#include <QFontMetrics>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

using commandFiles::controls;
using commandFiles::geometry;
using commandFiles::parameterOf;
using commandFiles::placeholders;
using commandFiles::str;
using commandFiles::text;
using commandFiles::texts;

/// Of the window that shows the forms, above its buttons.
constexpr QRect kRoom(0, 0, 560, 410);
constexpr int kFontPixels = 12;
constexpr int kMostInATab = 14;

/// Whether a control may create the parameter: the sample project has the command without it.
bool mayBeMissing(const QJsonObject &command, int parameter)
{
    const int code = command.value(str("code")).toInt();
    return (code == 101 && parameter == 4) || (code == 122 && parameter == 5);
}

/// What makes no difference has no control: a face is one picture, and has no number.
bool isShownNowhere(const QJsonObject &command, int parameter)
{
    return command.value(str("code")).toInt() == 101 && parameter == 1;
}

/// What a control needs beside its text.
int roomAround(const QString &type)
{
    static const QMap<QString, int> rooms{
        {str("radioButton"), 22}, {str("checkBox"), 22}, {str("button"), 16}};
    return rooms.value(type, 0);
}

QVector<QJsonObject> conditions(const QJsonObject &control)
{
    const QJsonValue when = control.value(str("shownWhen"));
    return when.isObject() ? QVector<QJsonObject>{when.toObject()} : commandFiles::objects(when);
}

/// Whether some field has to have two values for both to be shown.
bool areNeverShownTogether(const QJsonObject &left, const QJsonObject &right)
{
    const QVector<QJsonObject> ofLeft = conditions(left);
    const QVector<QJsonObject> ofRight = conditions(right);
    for (const QJsonObject &one : ofLeft) {
        for (const QJsonObject &other : ofRight) {
            const QJsonArray values = one.value(str("is")).toArray();
            const QJsonArray others = other.value(str("is")).toArray();
            const bool meet = std::any_of(values.begin(), values.end(), [&others](const QJsonValue &value) {
                return others.contains(value);
            });
            if (text(one, "field") == text(other, "field") && !meet) {
                return true;
            }
        }
    }
    return false;
}

/// The type of what a control writes into its field; Undefined where it shows any.
QJsonValue::Type written(const QJsonObject &control)
{
    static const QMap<QString, QJsonValue::Type> types{{str("spinBox"), QJsonValue::Double},
                                                       {str("lineEdit"), QJsonValue::String},
                                                       {str("textEdit"), QJsonValue::String},
                                                       {str("checkBox"), QJsonValue::Bool},
                                                       {str("picture"), QJsonValue::Undefined}};
    if (control.contains(str("value"))) {
        return control.value(str("value")).type();
    }
    const QString set = text(control, "choices");
    if (!set.isEmpty()) {
        const QJsonObject choices = commandFiles::read(commandFiles::folder("choices/") + set + str(".json"));
        return commandFiles::objects(choices.value(str("choices"))).value(0).value(str("value")).type();
    }
    return types.value(text(control, "type"), QJsonValue::Double);
}

/// The value of a path such as "command/0/volume" in the parameters of a new command.
QJsonValue valueAt(const QJsonArray &parameters, const QString &path)
{
    QStringList words = path.split(QLatin1Char('/')).mid(1);
    QJsonValue value = parameters.at(words.takeFirst().toInt());
    for (const QString &word : words) {
        value = value.isArray() ? value.toArray().at(word.toInt()) : value.toObject().value(word);
    }
    return value;
}

/// Texts of the three languages stand for one.
QJsonValue::Type typeOf(const QJsonValue &value)
{
    return value.toObject().contains(str("en_US")) ? QJsonValue::String : value.type();
}

} // namespace

/// The files of the event commands: what can be found out about them without a window.
class tst_CommandForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsNamedAfterItsCode_data() { commands(); }
    void everyFileIsNamedAfterItsCode();
    void aTabHasRoomForItsCommands();
    void everyTextIsThereInEachLanguage_data() { commands(); }
    void everyTextIsThereInEachLanguage();
    void aRowSaysTheSameInEachLanguage_data() { commands(); }
    void aRowSaysTheSameInEachLanguage();
    void controlsStandInTheRoomOfTheForm_data() { commands(); }
    void controlsStandInTheRoomOfTheForm();
    void controlsDoNotCoverEachOther_data() { commands(); }
    void controlsDoNotCoverEachOther();
    void namesAndIndicesAreTheirOwn_data() { commands(); }
    void namesAndIndicesAreTheirOwn();
    void textsFitTheirPlaces_data() { commands(); }
    void textsFitTheirPlaces();
    void everyParameterHasAControl_data() { commands(); }
    void everyParameterHasAControl();
    void controlsWriteWhatTheParametersAre_data() { commands(); }
    void controlsWriteWhatTheParametersAre();
    void everyChoiceSetIsUsed();
    void choicesAreTheirOwn();
    void theTableOfCodesIsWhole();

private:
    static void commands();
    static QJsonObject command();
};

/// A row for each file.
void tst_CommandForms::commands()
{
    QTest::addColumn<QString>("file");
    const QMap<QString, QJsonObject> files = commandFiles::all("commands");
    QVERIFY(files.size() > 60);
    for (auto file = files.begin(); file != files.end(); ++file) {
        QTest::newRow(qPrintable(file.key())) << file.key();
    }
}

QJsonObject tst_CommandForms::command()
{
    QFETCH(QString, file);
    return commandFiles::read(commandFiles::folder("commands/") + file + str(".json"));
}

void tst_CommandForms::everyFileIsNamedAfterItsCode()
{
    QFETCH(QString, file);
    QCOMPARE(QString::number(command().value(str("code")).toInt()), file);
    QFile resources(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions.qrc"));
    QVERIFY(resources.open(QIODevice::ReadOnly));
    QVERIFY(resources.readAll().contains(str("alias=\"commands/%1.json\"").arg(file).toUtf8()));
}

void tst_CommandForms::aTabHasRoomForItsCommands()
{
    QMap<QString, int> tabs;
    const QMap<QString, QJsonObject> files = commandFiles::all("commands");
    for (const QJsonObject &command : files) {
        if (command.contains(str("tab"))) {
            tabs[text(command, "tab")] += 1;
        }
    }
    QCOMPARE(tabs.size(), 8);
    for (const int count : qAsConst(tabs)) {
        QVERIFY(count > 0 && count <= kMostInATab);
    }
}

void tst_CommandForms::everyTextIsThereInEachLanguage()
{
    const QJsonObject form = command();
    QVector<QMap<QString, QString>> all = commandFiles::rows(form);
    QVERIFY(!all.isEmpty());
    all.append(texts(form.value(str("name"))));
    const QVector<QJsonObject> parts = controls(form);
    for (const QJsonObject &control : parts) {
        for (const char *member : {"label", "rowText", "none"}) {
            const QJsonValue label = control.value(QLatin1String(member));
            // A row without words of its own is the same in all of them.
            if (label.isObject()) {
                all.append(texts(label));
            }
        }
    }
    for (const QMap<QString, QString> &one : qAsConst(all)) {
        for (const QString &words : one) {
            QVERIFY2(!words.isEmpty(), qPrintable(one.first()));
            QCOMPARE(words, words.trimmed());
        }
        // Japanese and Chinese have a colon of their own.
        QVERIFY2(!one.value(str("ja_JP")).contains(str(": ")), qPrintable(one.value(str("ja_JP"))));
        QVERIFY2(!one.value(str("zh_CN")).contains(str(": ")), qPrintable(one.value(str("zh_CN"))));
    }
}

void tst_CommandForms::aRowSaysTheSameInEachLanguage()
{
    const QJsonObject form = command();
    const int count = form.value(str("parameters")).toArray().size();
    const QVector<QMap<QString, QString>> rows = commandFiles::rows(form);
    for (const QMap<QString, QString> &row : rows) {
        QStringList english = placeholders(row.value(str("en_US")));
        english.sort();
        for (const QString &words : row) {
            QStringList own = placeholders(words);
            own.sort();
            QCOMPARE(own, english);
        }
        for (const QString &placeholder : qAsConst(english)) {
            const QString member = placeholder.section(QRegularExpression(str("[>:/]")), 0, 0);
            bool isNumber = false;
            const int number = member.toInt(&isNumber);
            const bool isThere =
                isNumber ? number < count || mayBeMissing(form, number) : form.contains(member);
            // What stands between lists has parameters, though none that a person types.
            QVERIFY2(isThere || !form.contains(str("parameters")), qPrintable(placeholder));
        }
    }
}

void tst_CommandForms::controlsStandInTheRoomOfTheForm()
{
    const QVector<QJsonObject> parts = controls(command());
    for (const QJsonObject &control : parts) {
        QVERIFY2(kRoom.contains(geometry(control)), qPrintable(text(control, "name")));
    }
}

void tst_CommandForms::controlsDoNotCoverEachOther()
{
    const QVector<QJsonObject> parts = controls(command());
    for (int i = 0; i < parts.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            const QJsonObject &upper = parts.at(i);
            const QJsonObject &lower = parts.at(j);
            QVERIFY2(!geometry(upper).intersects(geometry(lower)) || areNeverShownTogether(upper, lower),
                     qPrintable(text(upper, "name") + str(" and ") + text(lower, "name")));
        }
    }
}

void tst_CommandForms::namesAndIndicesAreTheirOwn()
{
    const QVector<QJsonObject> parts = controls(command());
    QSet<QString> names{str("ok"), str("cancel")};
    QVector<int> indices;
    for (const QJsonObject &control : parts) {
        QVERIFY2(!names.contains(text(control, "name")), qPrintable(text(control, "name")));
        names.insert(text(control, "name"));
        if (text(control, "type") == str("radioButton")) {
            indices.append(control.value(str("index")).toInt(-1));
        }
    }
    std::sort(indices.begin(), indices.end());
    for (int i = 0; i < indices.size(); ++i) {
        QCOMPARE(indices.at(i), i);
    }
}

void tst_CommandForms::textsFitTheirPlaces()
{
    QFont font;
    font.setPixelSize(kFontPixels);
    const QFontMetrics metrics(font);
    const QVector<QJsonObject> parts = controls(command());
    for (const QJsonObject &control : parts) {
        const QMap<QString, QString> labels = texts(control.value(str("label")));
        const int room = geometry(control).width() - roomAround(text(control, "type"));
        for (const QString &label : labels) {
            const int width = metrics.horizontalAdvance(label);
            QVERIFY2(width <= room,
                     qPrintable(str("%1 is %2 wide, its place %3").arg(label).arg(width).arg(room)));
        }
    }
}

void tst_CommandForms::everyParameterHasAControl()
{
    const QJsonObject form = command();
    const QVector<QJsonObject> parts = controls(form);
    QSet<int> shown;
    for (const QJsonObject &control : parts) {
        shown.insert(parameterOf(text(control, "field")));
        if (text(control, "source") == str("command/entries")) {
            shown.unite({0, 1, 2, 3});
        }
    }
    const int count = form.value(str("parameters")).toArray().size();
    for (int number = 0; number < count; ++number) {
        QVERIFY2(shown.contains(number) != isShownNowhere(form, number),
                 qPrintable(str("nothing shows parameter %1").arg(number)));
    }
    // What cannot be typed in a form without controls has no lines either.
    QVERIFY(!parts.isEmpty() || (!form.contains(str("lines")) && !form.contains(str("entries"))));
}

void tst_CommandForms::controlsWriteWhatTheParametersAre()
{
    const QJsonObject form = command();
    const QJsonArray parameters = form.value(str("parameters")).toArray();
    const QVector<QJsonObject> parts = controls(form);
    for (const QJsonObject &control : parts) {
        const QString field = text(control, "field");
        const int number = parameterOf(field);
        if (number < 0 || mayBeMissing(form, number) || written(control) == QJsonValue::Undefined) {
            continue;
        }
        QVERIFY2(number < parameters.size(), qPrintable(field));
        const QJsonValue value = valueAt(parameters, field);
        // The list of choices grows with what is typed.
        const bool isChoice = field.startsWith(str("command/0/")) && parameters.at(0).isArray();
        const QJsonValue::Type type = isChoice ? typeOf(parameters.at(0).toArray().at(0)) : typeOf(value);
        QVERIFY2(type == written(control), qPrintable(text(control, "name") + str(" of ") + field));
    }
}

void tst_CommandForms::everyChoiceSetIsUsed()
{
    QSet<QString> used;
    const QMap<QString, QJsonObject> files = commandFiles::all("commands");
    for (const QJsonObject &command : files) {
        const QVector<QMap<QString, QString>> rows = commandFiles::rows(command);
        for (const QMap<QString, QString> &row : rows) {
            const QStringList found = placeholders(row.value(str("en_US")));
            for (const QString &placeholder : found) {
                used.insert(placeholder.section(QLatin1Char(':'), 1));
            }
        }
        const QVector<QJsonObject> parts = controls(command);
        for (const QJsonObject &control : parts) {
            used.insert(text(control, "choices"));
        }
    }
    // The enemies of a troop have their own names; the sets have the words for those of any other.
    used.insert(str("commandEnemies"));
    used.insert(str("commandEnemyPlaces"));
    const QStringList sets = commandFiles::all("choices").keys();
    int own = 0;
    for (const QString &set : sets) {
        if (set.startsWith(str("command"))) {
            QVERIFY2(used.contains(set), qPrintable(set));
            own += 1;
        }
    }
    QVERIFY(own > 20);
}

void tst_CommandForms::choicesAreTheirOwn()
{
    const QMap<QString, QJsonObject> sets = commandFiles::all("choices");
    for (auto set = sets.begin(); set != sets.end(); ++set) {
        if (!set.key().startsWith(str("command"))) {
            continue;
        }
        QJsonArray values;
        const QVector<QJsonObject> choices = commandFiles::objects(set.value().value(str("choices")));
        QVERIFY2(!choices.isEmpty(), qPrintable(set.key()));
        for (const QJsonObject &choice : choices) {
            QVERIFY2(!values.contains(choice.value(str("value"))), qPrintable(set.key()));
            values.append(choice.value(str("value")));
            const QMap<QString, QString> words = texts(choice.value(str("text")));
            for (const QString &word : words) {
                QVERIFY2(!word.isEmpty(), qPrintable(set.key()));
            }
        }
    }
}

/// The table in the README of the descriptions, which whoever plays the commands goes by.
void tst_CommandForms::theTableOfCodesIsWhole()
{
    QFile readme(commandFiles::folder("README.md"));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(readme.readAll()).split(QLatin1Char('\n'));
    QSet<int> told;
    static const QRegularExpression row(str("^\\| ([0-9, to]+) \\|"));
    static const QRegularExpression codes(str("(\\d+)(?: to (\\d+))?"));
    for (const QString &line : lines) {
        auto match = codes.globalMatch(row.match(line).captured(1));
        while (match.hasNext()) {
            const QRegularExpressionMatch found = match.next();
            const int first = found.captured(1).toInt();
            const int last = found.captured(2).isEmpty() ? first : found.captured(2).toInt();
            for (int code = first; code <= last; ++code) {
                told.insert(code);
            }
        }
    }
    const QMap<QString, QJsonObject> files = commandFiles::all("commands");
    for (const QJsonObject &command : files) {
        for (const char *member : {"code", "lines", "entries"}) {
            const int code = command.value(QLatin1String(member)).toInt();
            QVERIFY2(told.contains(code), qPrintable(QString::number(code)));
        }
    }
}

QTEST_MAIN(tst_CommandForms)
#include "tst_CommandForms.moc"
