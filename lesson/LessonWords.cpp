#include "lesson/LessonWords.h"

#include <QHash>
#include <QRegularExpression>

namespace LessonWords {

namespace {

constexpr int kMostClicks = 20;

/// The number that a word or figures stand for; 1 for any other word.
int numberOf(const QString &word)
{
    static const QHash<QString, int> words = [] {
        const QStringList english{QStringLiteral("two"),   QStringLiteral("three"), QStringLiteral("four"),
                                  QStringLiteral("five"),  QStringLiteral("six"),   QStringLiteral("seven"),
                                  QStringLiteral("eight"), QStringLiteral("nine"),  QStringLiteral("ten")};
        const QString chinese = QStringLiteral("\u4E8C\u4E09\u56DB\u4E94\u516D\u4E03\u516B\u4E5D\u5341");
        QHash<QString, int> numbers{{QStringLiteral("twice"), 2}, {QStringLiteral("\u4E24"), 2}};
        for (int i = 0; i < english.size(); ++i) {
            numbers.insert(english.at(i), i + 2);
            numbers.insert(chinese.at(i), i + 2);
        }
        return numbers;
    }();
    return qBound(1, words.value(word.toLower(), word.toInt()), kMostClicks);
}

} // namespace

QStringList locales()
{
    return {QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN")};
}

int iconKind(const QString &name)
{
    int kind = 0;
    for (const char *const icon : kIcons) {
        if (name == QLatin1String(icon)) {
            break;
        }
        ++kind;
    }
    return kind;
}

QString presetStep(const QString &command)
{
    static const QRegularExpression form(QStringLiteral("^presetData,(step[1-9][0-9]{0,8})$"));
    return form.match(command).captured(1);
}

bool saysDrag(const QString &hint)
{
    // Not "dragon".
    static const QRegularExpression words(QStringLiteral("\\bdrag(ging)?\\b|\u30C9\u30E9\u30C3\u30B0|\u62D6"),
                                          QRegularExpression::CaseInsensitiveOption);
    return hint.contains(words);
}

QString numberToType(const QString &hint)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9]+"));
    return number.match(hint).captured();
}

int timesToClick(const QString &hint)
{
    // Each within one sentence; a click with the right button is another matter.
    static const QRegularExpression words(
        QStringLiteral("(?<![\\w-])click\\b[^.!?:;]*?\\b(twice|\\w+(?= times\\b))"
                       "|([0-9]+)\u56DE\u30AF\u30EA\u30C3\u30AF"
                       "|(?<!\u53F3\u952E)\u70B9\u51FB[^\u3002\uFF01\uFF1F\uFF0C]*?"
                       "([0-9]+|[\u4E24\u4E8C\u4E09\u56DB\u4E94\u516D\u4E03\u516B\u4E5D\u5341]) ?\u6B21"),
        QRegularExpression::CaseInsensitiveOption);
    // What stands in quotation marks is the name of something.
    static const QRegularExpression names(QStringLiteral("\u201C[^\u201D]*\u201D|\u300C[^\u300D]*\u300D"));
    const QRegularExpressionMatch match = words.match(QString(hint).remove(names));
    return match.hasMatch() ? numberOf(match.captured(match.lastCapturedIndex())) : 1;
}

} // namespace LessonWords
