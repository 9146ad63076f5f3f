#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

const QString kDescriptions = QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions");
const QString kPreset = QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset");

QJsonObject readObject(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QStringList textsOf(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray array = value.isString() ? QJsonArray{value} : value.toArray();
    for (const QJsonValue &text : array) {
        texts.append(text.toString());
    }
    return texts;
}

/// The path with every entry of a list as a star, without "data/": "Items/*/price".
QString patternOf(const QString &path)
{
    static const QRegularExpression number(str("\\{[^}]*\\}"));
    QString pattern = path;
    pattern.replace(number, str("*"));
    return pattern.startsWith(str("data/")) ? pattern.mid(5) : pattern;
}

/// What the windows show of the data files, as patterns, by what their descriptions say.
class ShownFields
{
public:
    ShownFields()
    {
        const QDir folder(kDescriptions);
        const QStringList files = folder.entryList({str("*.json")}, QDir::Files);
        for (const QString &file : files) {
            const QJsonObject window = readObject(folder.filePath(file));
            take(window.value(str("key")).toString(), window);
            const QJsonArray popups = window.value(str("popups")).toArray();
            for (const QJsonValue &popup : popups) {
                take(window.value(str("key")).toString(), popup.toObject());
            }
        }
        const QDir forms(folder.filePath(str("commands")));
        const QStringList formFiles = forms.entryList({str("*.json")}, QDir::Files);
        for (const QString &file : formFiles) {
            const QJsonObject form = readObject(forms.filePath(file));
            m_forms.insert(form.value(str("code")).toInt(), form);
            take(str("EventCommand"), form);
        }
        // A place is handed on from window to window, so this takes as many rounds as windows lie on each
        // other.
        for (int round = 0; round < 6; ++round) {
            followRoots();
        }
        for (const auto &[window, control] : qAsConst(m_controls)) {
            addControl(window, control);
        }
    }

    [[nodiscard]] bool isShown(const QString &member) const
    {
        const QStringList words = member.split(QLatin1Char('/'));
        return std::any_of(m_shown.cbegin(), m_shown.cend(), [&words](const QString &shown) {
            return isLike(shown.split(QLatin1Char('/')), words);
        });
    }

    [[nodiscard]] const QHash<int, QJsonObject> &forms() const { return m_forms; }
    [[nodiscard]] int size() const { return int(m_shown.size()); }

private:
    static bool isLike(const QStringList &shown, const QStringList &words)
    {
        if (shown.size() != words.size()) {
            return false;
        }
        for (int i = 0; i < words.size(); ++i) {
            const bool isOnly = shown.at(i) == str("@name") || shown.at(i) == str("@value");
            const bool isNumber = words.at(i) == str("*") && shown.at(i).toInt() + 1 > 0 &&
                                  !shown.at(i).isEmpty() && shown.at(i).at(0).isDigit();
            if (shown.at(i) != words.at(i) && !isOnly && !isNumber) {
                return false;
            }
        }
        return true;
    }

    void take(const QString &window, const QJsonObject &holder)
    {
        const QJsonArray controls = holder.value(str("controls")).toArray();
        for (const QJsonValue &control : controls) {
            m_controls.append({window, control.toObject()});
        }
    }

    /// What a path means in a window: several places, where it begins with a root.
    [[nodiscard]] QStringList patternsOf(const QString &window, const QString &path) const
    {
        const QString root = path.section(QLatin1Char('/'), 0, 0);
        if (root == str("data")) {
            return {patternOf(path)};
        }
        QStringList patterns;
        const QSet<QString> bases = m_roots.value(window + QLatin1Char(' ') + root);
        for (const QString &base : bases) {
            patterns.append(base + patternOf(path).mid(root.size()));
        }
        return patterns;
    }

    void followRoots()
    {
        for (const auto &[window, control] : qAsConst(m_controls)) {
            for (const char *field : {"click", "doubleClick", "contextMenu", "delete", "copy", "paste"}) {
                for (QJsonObject action = control.value(str(field)).toObject(); !action.isEmpty();
                     action = action.value(str("otherwise")).toObject()) {
                    followAction(window, action);
                }
            }
        }
    }

    void followAction(const QString &window, const QJsonObject &action)
    {
        static const QMap<QString, QPair<QString, QString>> roots{
            {str("list.edit"), {str("entry"), str("/*")}},
            {str("list.add"), {str("entry"), str("/*")}},
            {str("choose.into"), {str("choice"), QString()}},
            {str("route.begin"), {str("route"), QString()}},
        };
        const QStringList commands = textsOf(action.value(str("run"))) + textsOf(action.value(str("begin")));
        for (const QString &command : commands) {
            const auto root = roots.constFind(command.section(QLatin1Char(' '), 0, 0));
            if (root == roots.constEnd()) {
                continue;
            }
            const QStringList places = patternsOf(window, command.section(QLatin1Char(' '), 1, 1));
            for (const QString &place : places) {
                for (const QString &where : {window, action.value(str("open")).toString()}) {
                    m_roots[where + QLatin1Char(' ') + root->first].insert(place + root->second);
                }
            }
        }
    }

    void addControl(const QString &window, const QJsonObject &control)
    {
        for (const char *field : {"field", "list"}) {
            add(window, control.value(str(field)).toString());
        }
        const QString source = control.value(str("source")).toString();
        if (source.isEmpty()) {
            return;
        }
        // An empty list is an empty list; an entry that is a text is its own row, others show what their row
        // says.
        add(window, source);
        add(window, source + str("/*"));
        const QJsonValue rowText = control.value(str("rowText"));
        const QString text =
            rowText.isObject() ? rowText.toObject().value(str("en_US")).toString() : rowText.toString();
        static const QRegularExpression member(str("\\{([^{}>:]*)"));
        QRegularExpressionMatchIterator members = member.globalMatch(text.isEmpty() ? str("{name}") : text);
        while (members.hasNext()) {
            add(window, source + str("/*/") + members.next().captured(1));
        }
    }

    void add(const QString &window, const QString &path)
    {
        const QStringList patterns = patternsOf(window, path);
        for (const QString &pattern : patterns) {
            m_shown.insert(pattern);
        }
    }

    QVector<QPair<QString, QJsonObject>> m_controls;
    QHash<int, QJsonObject> m_forms;
    /// The places that a root stands for, by window and root.
    QHash<QString, QSet<QString>> m_roots;
    QSet<QString> m_shown;
};

/// All members of the sample project, as patterns, and all parameters of its event commands, by code.
class SampleMembers
{
public:
    SampleMembers()
    {
        const QDir preset(kPreset);
        const QStringList steps = preset.entryList({str("step*")}, QDir::Dirs);
        for (const QString &step : steps) {
            const QDir data(preset.filePath(step + str("/data")));
            const QStringList names = data.entryList({str("*.json")}, QDir::Files);
            for (const QString &name : names) {
                QFile file(data.filePath(name));
                if (file.open(QIODevice::ReadOnly)) {
                    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
                    static const QRegularExpression map(str("^Map\\d+$"));
                    QString root = QFileInfo(name).completeBaseName();
                    walk(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()),
                         root.replace(map, str("Map*")));
                }
            }
        }
    }

    QSet<QString> members;
    QMap<int, int> parameters;

private:
    void walk(const QJsonValue &value, const QString &place)
    {
        const QJsonObject object = value.toObject();
        const QJsonArray array = value.toArray();
        if (object.contains(str("indent"))) {
            int &most = parameters[object.value(str("code")).toInt()];
            most = qMax(most, int(object.value(str("parameters")).toArray().size()));
            return;
        }
        if (object.isEmpty() && array.isEmpty() && !value.isNull()) {
            members.insert(place);
        }
        for (auto member = object.begin(); member != object.end(); ++member) {
            walk(member.value(), place + QLatin1Char('/') + member.key());
        }
        for (const QJsonValue &entry : array) {
            walk(entry, place + str("/*"));
        }
    }
};

/// What stands in no field, and why that is as it should be.
bool needsNoField(const QString &member)
{
    static const QStringList members{
        // The number of a row.
        str("id"),
        // The map view draws cells and events where they are.
        str("Map*/data/*"),
        str("Map*/events/*/x"),
        str("Map*/events/*/y"),
        // The tree of maps is their order, and always open.
        str("MapInfos/*/parentId"),
        str("MapInfos/*/order"),
        str("MapInfos/*/expanded"),
    };
    return members.contains(member) || member.endsWith(str("*/id"));
}

/// A face is one picture, whatever its number.
bool needsNoControl(int code, int parameter)
{
    return code == 101 && parameter == 1;
}

/// Codes of entries that belong to the command before them: no form of their own.
bool belongsToAnother(int code, const QHash<int, QJsonObject> &forms)
{
    constexpr int kEnd = 0;
    constexpr int kWhen = 402;
    constexpr int kEndOfChoices = 404;
    constexpr int kFurtherGoods = 605;
    const auto isTheirs = [code](const QJsonObject &form) {
        const QJsonObject branches = form.value(str("branches")).toObject();
        return form.value(str("lines")).toInt() == code || branches.value(str("else")).toInt() == code ||
               branches.value(str("end")).toInt() == code ||
               branches.value(str("outcomes")).toArray().contains(code);
    };
    return code == kEnd || code == kWhen || code == kEndOfChoices || code == kFurtherGoods ||
           std::any_of(forms.cbegin(), forms.cend(), isTheirs);
}

} // namespace

/// Every member of the sample project's data files is shown in some window.
class tst_SampleShown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMemberHasAField();
    void whatHasNoFieldIsFound();
    void everyCommandHasAForm();

private:
    const ShownFields m_shown;
    const SampleMembers m_sample;
};

void tst_SampleShown::everyMemberHasAField()
{
    QVERIFY(m_shown.size() > 100);
    QVERIFY(m_sample.members.size() > 100);
    QStringList missing;
    for (const QString &member : m_sample.members) {
        if (!m_shown.isShown(member) && !needsNoField(member)) {
            missing.append(member);
        }
    }
    missing.sort();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void tst_SampleShown::whatHasNoFieldIsFound()
{
    QVERIFY(m_shown.isShown(str("Items/*/price")));
    QVERIFY(!m_shown.isShown(str("Items/*/weight")));
    QVERIFY(m_shown.isShown(str("Items/*/effects/*/hp")));
    QVERIFY(!m_shown.isShown(str("Items/*/effects/*/hp/most")));
    QVERIFY(!needsNoField(str("Items/*/price")));
}

void tst_SampleShown::everyCommandHasAForm()
{
    QStringList missing;
    for (auto command = m_sample.parameters.begin(); command != m_sample.parameters.end(); ++command) {
        if (belongsToAnother(command.key(), m_shown.forms())) {
            continue;
        }
        const QByteArray form = QJsonDocument(m_shown.forms().value(command.key())).toJson();
        for (int parameter = 0; parameter < command.value(); ++parameter) {
            const QByteArray field = "command/" + QByteArray::number(parameter);
            // The goods of a shop stand in one list, wherever their parameters are.
            const bool isShown = form.contains(field + '"') || form.contains(field + '/') ||
                                 form.contains(field + '+') || form.contains("\"command/entries\"");
            if (isShown == needsNoControl(command.key(), parameter)) {
                missing.append(str("%1 %2").arg(QString::number(command.key()), QString::number(parameter)));
            }
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    QVERIFY(m_sample.parameters.size() > 10);
}

QTEST_APPLESS_MAIN(tst_SampleShown)
#include "tst_SampleShown.moc"
