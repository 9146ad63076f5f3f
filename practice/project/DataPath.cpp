#include "project/DataPath.h"

#include <QRegularExpression>

namespace {

/// Digits of a number in a file's name.
constexpr int kFileDigits = 3;

/// How braces call the list at the end of @p path: "items" for "data/Items".
QString spokenName(const QString &path)
{
    QString last = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    if (!last.isEmpty()) {
        last[0] = last.at(0).toLower();
    }
    return last;
}

} // namespace

bool DataPath::isPath(const QString &text, const QStringList &roots)
{
    return text.startsWith(QLatin1String("data/")) || roots.contains(text.section(QLatin1Char('/'), 0, 0));
}

bool DataPath::isFile(const QString &name)
{
    return name.startsWith(QLatin1String("data/"));
}

DataPath::DataPath(const QString &text, const QStringList &lists, const QStringList &roots)
{
    QStringList words = text.split(QLatin1Char('/'));
    QString wayThere = words.takeFirst();
    if (roots.contains(wayThere)) {
        m_root = wayThere;
    }
    for (const QString &word : qAsConst(words)) {
        addWord(word, lists, wayThere);
        wayThere += QLatin1Char('/') + word;
    }
    if (m_words.isEmpty() && m_root.isEmpty()) {
        m_problem = QStringLiteral("must begin with \"data/\" and the name of a data file");
    }
}

void DataPath::addWord(const QString &text, const QStringList &lists, const QString &wayThere)
{
    static const QRegularExpression form(QStringLiteral("^([^{}]*)(?:\\{([^{}]+)\\})?$"));
    const QRegularExpressionMatch match = form.match(text);
    const QString list = match.captured(2);
    if (!match.hasMatch() || text.isEmpty()) {
        m_problem =
            QStringLiteral("\"%1\" is no word of a path; write a name, or a list in braces").arg(text);
    } else if (list.isEmpty() || lists.contains(list)) {
        m_words.append({match.captured(1), list});
    } else if ((!m_words.isEmpty() || !m_root.isEmpty()) && list == spokenName(wayThere)) {
        m_words.append({match.captured(1), wayThere});
    } else {
        m_problem = QStringLiteral("\"{%1}\" is neither the list before it, \"%2\", nor one of: %3")
                        .arg(list, spokenName(wayThere), lists.join(QStringLiteral(", ")));
    }
}

std::optional<DataPlace> DataPath::place(const Numbers &numbers, const DataPlace &base) const
{
    DataPlace place = m_root.isEmpty() ? DataPlace() : base;
    for (const Word &word : m_words) {
        QString text = word.text;
        if (!word.list.isEmpty()) {
            const int number = numbers(word.list);
            if (number < 0) {
                return std::nullopt;
            }
            text += place.file.isEmpty() ? QStringLiteral("%1").arg(number, kFileDigits, 10, QLatin1Char('0'))
                                         : QString::number(number);
        }
        if (place.file.isEmpty()) {
            place.file = QStringLiteral("data/%1.json").arg(text);
        } else {
            place.pointer += QLatin1Char('/') + text;
        }
    }
    return place;
}
