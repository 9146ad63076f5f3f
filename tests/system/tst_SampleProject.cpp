#include "FakeHost.h"
#include "SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

/// The sample project of the lessons, from its source files to what the host editor gets.
class tst_SampleProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAStepForEachLessonFromTheSecond();
    void stepsOnlyGrow();
    void numbersEntriesByTheirPlaces();
    void writesTextsAsNumbersOnly();
    void usesEachTextOfTheCatalogues_data();
    void usesEachTextOfTheCatalogues();
    void reachesTheHostWholeAndInItsLanguage_data();
    void reachesTheHostWholeAndInItsLanguage();
};

namespace {

using sample::catalogue;
using sample::Files;
using sample::kFirstStep;
using sample::kLastStep;
using sample::readStep;
using sample::root;
using sample::stepName;

bool isNumber(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^#\\d+$"));
    return number.match(text).hasMatch();
}

/// The value with @p change made to each string in it.
template<typename Change>
QJsonValue changed(const QJsonValue &value, const Change &change)
{
    if (value.isString()) {
        return change(value.toString());
    }
    if (value.isArray()) {
        QJsonArray array;
        const QJsonArray old = value.toArray();
        for (const QJsonValue &element : old) {
            array.append(changed(element, change));
        }
        return array;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = changed(it.value(), change);
        }
        return object;
    }
    return value;
}

QSet<QString> numbersIn(const QJsonValue &value)
{
    QSet<QString> numbers;
    changed(value, [&numbers](const QString &text) {
        if (isNumber(text)) {
            numbers.insert(text);
        }
        return text;
    });
    return numbers;
}

/// The strings that a person who makes a game reads: names, descriptions, messages and notes, and what event
/// commands say.
QStringList readableTexts(const QJsonValue &value)
{
    static const QRegularExpression textKey(QStringLiteral("^(name|description|note|message\\d)$"));
    QStringList texts;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            texts += readableTexts(element);
        }
        return texts;
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (textKey.match(it.key()).hasMatch()) {
            texts.append(it.value().toString());
        } else {
            texts += readableTexts(it.value());
        }
    }
    const QJsonArray parameters = object.value(QStringLiteral("parameters")).toArray();
    switch (object.value(QStringLiteral("code")).toInt()) {
    case 101:
        texts.append(parameters.at(4).toString());
        break;
    case 102:
        texts += parameters.at(0).toVariant().toStringList();
        break;
    case 401:
    case 405:
        texts.append(parameters.at(0).toString(QStringLiteral("no text")));
        break;
    case 402:
        texts.append(parameters.at(1).toString(QStringLiteral("no text")));
        break;
    default:
        break;
    }
    return texts;
}

void addLocales()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QString::fromLatin1(locale);
    }
}

/// The place that a message names, for the one who has to mend it.
QString where(int step, const QString &file)
{
    return stepName(step) + QLatin1Char(' ') + file;
}

/// The members of @p set in order, for a message.
QString listed(const QSet<QString> &set)
{
    QStringList members(set.begin(), set.end());
    members.sort();
    return members.join(QLatin1Char(' '));
}

/// Where in it @p actual is first different from @p expected, and how.
QString difference(const QJsonValue &actual, const QJsonValue &expected, const QString &path)
{
    const QJsonArray array = expected.toArray();
    for (int i = 0; i < array.size(); ++i) {
        if (actual.toArray().at(i) != array.at(i)) {
            return difference(actual.toArray().at(i), array.at(i), QStringLiteral("%1[%2]").arg(path).arg(i));
        }
    }
    const QJsonObject object = expected.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (actual.toObject().value(it.key()) != it.value()) {
            return difference(actual.toObject().value(it.key()), it.value(),
                              path + QLatin1Char('.') + it.key());
        }
    }
    const auto text = [](const QJsonValue &value) {
        return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    };
    return QStringLiteral("%1 is %2 and not %3").arg(path, text(actual), text(expected));
}

/// What the program answers to the request for a step.
QString replyOf(FakeHost &host, int step)
{
    const int before = host.payloads().size();
    host.send({QStringLiteral("requestPresetData"), stepName(step)});
    return host.waitForPayloads(before + 1) ? host.payloads().constLast() : QString();
}

} // namespace

void tst_SampleProject::hasAStepForEachLessonFromTheSecond()
{
    const QStringList found =
        QDir(sample::folder()).entryList({QStringLiteral("step*")}, QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(found.size(), kLastStep - kFirstStep + 1);
    const QStringList needed = {
        QStringLiteral("Actors.json"),   QStringLiteral("Animations.json"),   QStringLiteral("Armors.json"),
        QStringLiteral("Classes.json"),  QStringLiteral("CommonEvents.json"), QStringLiteral("Enemies.json"),
        QStringLiteral("Items.json"),    QStringLiteral("Map001.json"),       QStringLiteral("MapInfos.json"),
        QStringLiteral("Skills.json"),   QStringLiteral("States.json"),       QStringLiteral("System.json"),
        QStringLiteral("Tilesets.json"), QStringLiteral("Troops.json"),       QStringLiteral("Weapons.json")};
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const Files files = readStep(step);
        for (const QString &name : needed) {
            QVERIFY2(files.contains(name), qPrintable(stepName(step) + QLatin1Char(' ') + name));
        }
        for (auto file = files.begin(); file != files.end(); ++file) {
            QVERIFY2(!file.value().isNull(), qPrintable(stepName(step) + QLatin1Char(' ') + file.key()));
        }
    }
}

void tst_SampleProject::stepsOnlyGrow()
{
    for (int step = kFirstStep + 1; step <= kLastStep; ++step) {
        const Files before = readStep(step - 1);
        const Files files = readStep(step);
        bool grows = files.size() > before.size();
        for (auto file = before.begin(); file != before.end(); ++file) {
            const QJsonDocument now = files.value(file.key());
            QVERIFY2(now.array().size() >= file.value().array().size(), qPrintable(where(step, file.key())));
            grows = grows || now != file.value();
        }
        QVERIFY2(grows, qPrintable(stepName(step)));
    }
}

void tst_SampleProject::numbersEntriesByTheirPlaces()
{
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const Files files = readStep(step);
        for (auto file = files.begin(); file != files.end(); ++file) {
            const QJsonArray entries = file.value().isArray()
                                           ? file.value().array()
                                           : file.value().object().value(QStringLiteral("events")).toArray();
            if (file.key() == QLatin1String("System.json")) {
                continue;
            }
            const QString place = where(step, file.key());
            QVERIFY2(!entries.isEmpty() && entries.at(0).isNull(), qPrintable(place));
            for (int id = 1; id < entries.size(); ++id) {
                QVERIFY2(entries.at(id).toObject().value(QStringLiteral("id")).toInt() == id,
                         qPrintable(QStringLiteral("%1 entry %2").arg(place).arg(id)));
            }
        }
        const QJsonArray maps = files.value(QStringLiteral("MapInfos.json")).array();
        for (int id = 1; id < maps.size(); ++id) {
            const QString name = sample::mapFile(id);
            const QJsonObject map = sample::map(files, id);
            const int cells =
                map.value(QStringLiteral("width")).toInt() * map.value(QStringLiteral("height")).toInt();
            QVERIFY2(cells > 0 && map.value(QStringLiteral("data")).toArray().size() == 3 * cells,
                     qPrintable(where(step, name)));
        }
    }
}

void tst_SampleProject::writesTextsAsNumbersOnly()
{
    int count = 0;
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const Files files = readStep(step);
        for (auto file = files.begin(); file != files.end(); ++file) {
            const QStringList texts = readableTexts(root(file.value()));
            for (const QString &text : texts) {
                QVERIFY2(text.isEmpty() || isNumber(text),
                         qPrintable(where(step, file.key()) + QLatin1Char(' ') + text));
                count += int(!text.isEmpty());
            }
        }
    }
    QVERIFY(count > 0);
}

void tst_SampleProject::usesEachTextOfTheCatalogues_data()
{
    addLocales();
}

void tst_SampleProject::usesEachTextOfTheCatalogues()
{
    QFETCH(QString, locale);
    QSet<QString> used;
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const Files files = readStep(step);
        for (const QJsonDocument &file : files) {
            used += numbersIn(root(file));
        }
    }
    QSet<QString> consecutive;
    for (int number = 1; number <= used.size(); ++number) {
        consecutive.insert(QStringLiteral("#%1").arg(number));
    }
    QVERIFY2(used == consecutive, qPrintable(QStringLiteral("left out: ") + listed(consecutive - used)));
    const QMap<QString, QString> texts = catalogue(locale);
    const QStringList keys = texts.keys();
    const QSet<QString> numbers(keys.begin(), keys.end());
    QVERIFY2(
        numbers == used,
        qPrintable(
            QStringLiteral("unused: %1; missing: %2").arg(listed(numbers - used), listed(used - numbers))));
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        QVERIFY2(!text.value().isEmpty() && !text.value().contains(QLatin1Char('#')), qPrintable(text.key()));
    }
}

void tst_SampleProject::reachesTheHostWholeAndInItsLanguage_data()
{
    addLocales();
}

void tst_SampleProject::reachesTheHostWholeAndInItsLanguage()
{
    QFETCH(QString, locale);
    const QMap<QString, QString> texts = catalogue(locale);
    FakeHost host;
    QProcessEnvironment environment = host.process().processEnvironment();
    environment.insert(QStringLiteral("QT_MESSAGE_PATTERN"), QStringLiteral("%{type}: %{message}"));
    host.process().setProcessEnvironment(environment);
    QVERIFY(host.start(locale));
    QVERIFY(host.sync());
    const int loggedAtStart = host.log().size();
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const QString prefix = QStringLiteral("feedbackPresetData\x01");
        const QString reply = replyOf(host, step);
        QVERIFY2(reply.startsWith(prefix), qPrintable(stepName(step)));
        const QJsonObject sent = QJsonDocument::fromJson(reply.mid(prefix.size()).toUtf8()).object();
        const Files files = readStep(step);
        QVERIFY2(sent.size() == files.size(), qPrintable(stepName(step)));
        for (auto file = files.begin(); file != files.end(); ++file) {
            const QJsonValue expected = changed(root(file.value()), [&texts](const QString &text) {
                return isNumber(text) ? texts.value(text) : text;
            });
            const QString name = QStringLiteral("data/") + file.key();
            const QJsonValue actual = root(QJsonDocument::fromJson(sent.value(name).toString().toUtf8()));
            QVERIFY2(sent.contains(name), qPrintable(where(step, file.key())));
            QVERIFY2(actual == expected, qPrintable(difference(actual, expected, where(step, file.key()))));
        }
    }
    QVERIFY(host.sync());
    const QStringList lines = host.log().mid(loggedAtStart).split(QLatin1Char('\n'));
    QVERIFY(!lines.filter(QRegularExpression(QStringLiteral("^debug: "))).isEmpty());
    QCOMPARE(lines.filter(QRegularExpression(QStringLiteral("^(warning|critical): "))), QStringList());
}

QTEST_GUILESS_MAIN(tst_SampleProject)
#include "tst_SampleProject.moc"
