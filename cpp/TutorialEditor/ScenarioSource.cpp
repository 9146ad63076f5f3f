#include "TutorialEditor/ScenarioSource.h"

#include "tool/SourceArray.h"

#include <QLatin1String>
#include <QStringView>

namespace {

bool isComment(QStringView line)
{
    int first = 0;
    while (first < line.size() &&
           (line.at(first) == QLatin1Char(' ') || line.at(first) == QLatin1Char('\t'))) {
        ++first;
    }
    return line.mid(first).startsWith(QLatin1String("//"));
}

} // namespace

QString withoutBlockComments(const QString &text)
{
    const QLatin1String open("/*");
    const QLatin1String close("*/");
    QString kept;
    kept.reserve(text.size());
    int rest = 0; // what is kept so far holds no comment, alone; it may with what follows
    for (;;) {
        const bool joined =
            kept.endsWith(QLatin1Char('/')) && QStringView(text).mid(rest).startsWith(QLatin1Char('*'));
        const int start = joined ? rest - 1 : text.indexOf(open, rest);
        const int end = start < 0 && !joined ? -1 : text.indexOf(close, start + open.size());
        if (end < 0) {
            kept.append(text.constData() + rest, text.size() - rest);
            return kept;
        }
        if (joined) {
            kept.chop(1);
        } else {
            kept.append(text.constData() + rest, start - rest);
        }
        rest = end + close.size();
    }
}

QString withoutLineComments(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    int line = 0;
    for (;;) {
        const int end = text.indexOf(QLatin1Char('\n'), line);
        if (end < 0) {
            kept.append(text.constData() + line, text.size() - line);
            return kept;
        }
        if (!isComment(QStringView(text).mid(line, end - line))) {
            kept.append(text.constData() + line, end + 1 - line);
        }
        line = end + 1;
    }
}

QString scenarioArray(const QString &text)
{
    return sourceArray(text, QLatin1String("scenario"));
}
