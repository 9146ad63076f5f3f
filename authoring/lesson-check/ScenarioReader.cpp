#include "lesson-check/ScenarioReader.h"

#include "lesson-check/SourceLines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <array>
#include <functional>

namespace {

/// Puts a value into its member; false when the value is not of the member's kind.
using Setter = std::function<bool(ScenarioItem &, const QString &)>;

struct Field
{
    QString name;
    QString kind;
    Setter set;
};

Setter integer(int ScenarioItem::*member)
{
    return [member](ScenarioItem &step, const QString &value) {
        static const QRegularExpression form(QStringLiteral("^-?(0|[1-9][0-9]*)$"));
        bool fits = false;
        const int number = value.toInt(&fits);
        if (!fits || !form.match(value).hasMatch()) {
            return false;
        }
        step.*member = number;
        return true;
    };
}

Setter boolean(bool ScenarioItem::*member)
{
    return [member](ScenarioItem &step, const QString &value) {
        step.*member = value == QLatin1String("true");
        return step.*member || value == QLatin1String("false");
    };
}

Setter text(QString ScenarioItem::*member)
{
    return [member](ScenarioItem &step, const QString &value) {
        const QJsonArray array = QJsonDocument::fromJson("[" + value.toUtf8() + "]").array();
        step.*member = array.at(0).toString();
        return array.size() == 1 && array.at(0).isString() && value == value.trimmed();
    };
}

bool setHint(ScenarioItem &step, const QString &value)
{
    static const QRegularExpression form(QStringLiteral("^qsTr\\(\"#([1-9][0-9]*)\"\\)$"));
    const QRegularExpressionMatch match = form.match(value);
    if (match.hasMatch()) {
        step.hint = match.captured(1).toInt();
    }
    return match.hasMatch();
}

const std::array<Field, 15> &fields()
{
    const QString number = QStringLiteral("a whole number");
    const QString words = QStringLiteral("a text in double quotes");
    const QString truth = QStringLiteral("true or false");
    static const std::array<Field, 15> all = {{
        {QStringLiteral("id"), number, integer(&ScenarioItem::id)},
        {QStringLiteral("name"), words, text(&ScenarioItem::name)},
        {QStringLiteral("folder"), truth, boolean(&ScenarioItem::folder)},
        {QStringLiteral("translationId"), number, integer(&ScenarioItem::translationId)},
        {QStringLiteral("x"), number, integer(&ScenarioItem::x)},
        {QStringLiteral("y"), number, integer(&ScenarioItem::y)},
        {QStringLiteral("windowKey"), words, text(&ScenarioItem::windowKey)},
        {QStringLiteral("condition"), words, text(&ScenarioItem::condition)},
        {QStringLiteral("hint"), QStringLiteral("qsTr(\"#N\")"), setHint},
        {QStringLiteral("icon"), words, text(&ScenarioItem::icon)},
        {QStringLiteral("jump"), number, integer(&ScenarioItem::jump)},
        {QStringLiteral("jumpNo"), number, integer(&ScenarioItem::jumpNo)},
        {QStringLiteral("command"), words, text(&ScenarioItem::command)},
        {QStringLiteral("showArrow"), truth, boolean(&ScenarioItem::showArrow)},
        {QStringLiteral("prohibited"), truth, boolean(&ScenarioItem::prohibited)},
    }};
    return all;
}

int fieldIndex(const QString &name)
{
    const auto &all = fields();
    for (int i = 0; i < static_cast<int>(all.size()); ++i) {
        if (all.at(static_cast<std::size_t>(i)).name == name) {
            return i;
        }
    }
    return -1;
}

const Field &field(int index)
{
    return fields().at(static_cast<std::size_t>(index));
}

QString head()
{
    return QStringLiteral("var scenario = [");
}
QString tail()
{
    return QStringLiteral("];");
}
QString pad()
{
    return QStringLiteral("    ");
}
QString open()
{
    return pad() + QLatin1Char('{');
}
QString close()
{
    return pad() + QLatin1Char('}');
}

struct Trap
{
    const char *sequence;
    const char *meaning; ///< what the companion takes it for
    const char *instead;
};

constexpr std::array<Trap, 3> kTraps = {{
    {"];", "the end of the lesson", "] ;"},
    {"/*", "the beginning of a comment", "/ *"},
    {"*/", "the end of a comment", "* /"},
}};

/// What the companion reads wrongly in a field although its form is right, and how to mend it. Empty when it
/// reads the field well, and for a field that is no text.
QString trapIn(const QString &value)
{
    // Resolved, because a save writes the characters that an escape stands for.
    const QString text = QJsonDocument::fromJson("[" + value.toUtf8() + "]").array().at(0).toString();
    for (const Trap &trap : kTraps) {
        if (text.contains(QLatin1String(trap.sequence))) {
            return QStringLiteral("the companion takes \"%1\" for %2, also inside a text; write \"%3\"")
                .arg(QLatin1String(trap.sequence), QLatin1String(trap.meaning), QLatin1String(trap.instead));
        }
    }
    return {};
}

bool closesItem(const QString &line)
{
    return line == close() || line == close() + QLatin1Char(',');
}

} // namespace

/// Which fields of an item have been met so far, by their indices.
struct ScenarioReader::Places
{
    QSet<int> seen;
    QSet<int> replaced; ///< a line that is no field stands where these were due
    int latest = -1;    ///< the furthest one
};

ScenarioReader::ScenarioReader(QString file)
    : m_file(std::move(file))
{
}

ScenarioItems ScenarioReader::read(const QByteArray &bytes)
{
    m_at = 0;
    m_findings.clear();
    m_lines = SourceLines(m_file, bytes, SourceLines::LineEnd::kAny, m_findings).lines();

    ScenarioItems steps;
    if (m_lines.constFirst() == head()) {
        ++m_at;
    } else {
        report(0, nullptr, {}, QStringLiteral("the first line has to be \"%1\"").arg(head()));
    }
    while (m_at < m_lines.size() && m_lines.at(m_at) != tail()) {
        if (m_lines.at(m_at) == open()) {
            readItem(steps);
        } else {
            report(
                m_at, nullptr, {},
                QStringLiteral("an item begins with a line of four blanks and \"{\", and nothing else stands "
                               "between items"));
            while (m_at < m_lines.size() && m_lines.at(m_at) != open() && m_lines.at(m_at) != tail()) {
                ++m_at;
            }
        }
    }
    if (m_at != m_lines.size() - 1) {
        report(qMin(m_at, m_lines.size() - 1), nullptr, {},
               QStringLiteral("\"%1\" has to be the last line, and to stand once").arg(tail()));
    }
    return steps;
}

void ScenarioReader::readItem(ScenarioItems &steps)
{
    const int first = m_at + 1;
    int end = first;
    while (end < m_lines.size() && !closesItem(m_lines.at(end)) && m_lines.at(end) != open() &&
           m_lines.at(end) != tail()) {
        ++end;
    }

    ScenarioItem step;
    step.line = first;
    readFields(first, end - first, step);
    m_at = end;
    if (end < m_lines.size() && closesItem(m_lines.at(end))) {
        const bool hasComma = m_lines.at(end).endsWith(QLatin1Char(','));
        const bool isLast = end + 1 >= m_lines.size() || m_lines.at(end + 1) == tail();
        if (hasComma && isLast) {
            report(end, &step, {}, QStringLiteral("no comma stands behind the last item"));
        }
        if (!hasComma && !isLast) {
            report(end, &step, {}, QStringLiteral("a comma has to stand between two items"));
        }
        ++m_at;
    } else {
        report(qMin(end, m_lines.size() - 1), &step, {},
               QStringLiteral("the item has to be closed by a line of four blanks and \"}\""));
    }
    steps.append(step);
}

void ScenarioReader::readFields(int first, int count, ScenarioItem &step)
{
    Places places;
    for (int i = 0; i < count; ++i) {
        readField(first + i, i == count - 1 ? pad() : QStringLiteral(","), places, step);
    }
    for (int i = 0; i < static_cast<int>(fields().size()); ++i) {
        if (places.seen.contains(i)) {
            continue;
        }
        step.unread.append(field(i).name);
        if (!places.replaced.contains(i)) {
            report(first - 1, &step, field(i).name, QStringLiteral("the field is missing"));
        }
    }
}

void ScenarioReader::readField(int at, const QString &ending, Places &places, ScenarioItem &step)
{
    // Wider than the form, so that a blank too many does not count as a lost field as well.
    static const QRegularExpression wide(QStringLiteral("^\\s*\"([^\"]*)\"\\s*:\\s*(.*?)\\s*$"));
    QString line = m_lines.at(at);
    const bool ends = line.endsWith(ending);
    if (ends) {
        line.chop(ending.size());
    }
    const QRegularExpressionMatch match = wide.match(line);
    if (!match.hasMatch()) {
        reportForeignLine(at, {}, QStringLiteral("a field has the form \"key\":value"), places, step);
        return;
    }
    const QString name = match.captured(1);
    const QString value = match.captured(2);
    const int index = fieldIndex(name);
    if (index < 0) {
        reportForeignLine(at, name, QStringLiteral("no field has this name"), places, step);
        return;
    }

    const bool fits = field(index).set(step, value);
    const QString trap = trapIn(value);
    if ((!fits || !trap.isEmpty()) && step.isRead(qPrintable(name))) {
        step.unread.append(name);
    }
    const QString form = QStringLiteral("\"%1\":%2").arg(name, value);
    if (!ends) {
        report(at, &step, {},
               ending == pad() ? QStringLiteral("the last field ends with four blanks and no comma")
                               : QStringLiteral("every field but the last ends with a comma"));
    } else if (line != form) {
        report(at, &step, name, QStringLiteral("without blanks around its parts the field is %1").arg(form));
    } else if (places.seen.contains(index)) {
        report(at, &step, name, QStringLiteral("the field stands twice"));
    } else if (index < places.latest) {
        report(at, &step, name,
               QStringLiteral("the field has to stand before \"%1\"").arg(field(places.latest).name));
    } else if (!fits) {
        report(at, &step, name, QStringLiteral("%1 is not %2").arg(value, field(index).kind));
    } else if (!trap.isEmpty()) {
        report(at, &step, name, trap);
    }
    places.seen.insert(index);
    places.latest = qMax(places.latest, index);
}

void ScenarioReader::reportForeignLine(int at, const QString &name, const QString &text, Places &places,
                                       const ScenarioItem &step)
{
    const int next = places.latest + 1;
    if (next == static_cast<int>(fields().size())) {
        report(at, &step, name, text);
        return;
    }
    places.replaced.insert(next);
    report(at, &step, name, QStringLiteral("%1; \"%2\" has to stand here").arg(text, field(next).name));
}

void ScenarioReader::report(int line, const ScenarioItem *step, const QString &name, const QString &text)
{
    const QString item =
        step != nullptr && step->id >= 0 ? QStringLiteral("item %1").arg(step->id) : QString();
    m_findings.append({Finding::Kind::kError, m_file, line + 1, item, name, text});
}
