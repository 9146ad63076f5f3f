#include "window/Mnemonics.h"

#include "lesson/LessonWords.h"

#include <QRegularExpression>

namespace {

constexpr QLatin1Char kMark('&');

/// Where in the English text the letter stands: at the beginning of a word if one is free, else anywhere. -1
/// when all are taken.
int placeOfLetter(const QString &english, const QString &taken)
{
    int other = -1;
    for (int place = 0; place < english.size(); ++place) {
        const QChar letter = english.at(place).toUpper();
        if (letter.unicode() > 127 || !letter.isLetter() || taken.contains(letter)) {
            continue;
        }
        if (place == 0 || !english.at(place - 1).isLetter()) {
            return place;
        }
        other = other < 0 ? place : other;
    }
    return other;
}

/// The text with @p letter in brackets, ahead of the dots that it may end with.
QString withLetterBehind(const QString &text, QChar letter)
{
    const QString brackets = QStringLiteral("(&%1)").arg(letter);
    const QChar dots(0x2026);
    return text.endsWith(dots) ? text.chopped(1) + brackets + dots : text + brackets;
}

QString escaped(QString text)
{
    return text.replace(kMark, QStringLiteral("&&"));
}

} // namespace

QStringList Mnemonics::give(const QVector<LocalText> &labels, const QString &locale)
{
    const QString first = LessonWords::locales().constFirst();
    QString taken;
    QStringList texts;
    for (const LocalText &label : labels) {
        const QString english = label.value(first);
        const QString text = label.value(locale);
        const int place = placeOfLetter(english, taken);
        if (place < 0) {
            texts.append(escaped(text));
            continue;
        }
        const QChar letter = english.at(place).toUpper();
        taken.append(letter);
        texts.append(locale == first
                         ? escaped(english.left(place)) + QChar(kMark) + escaped(english.mid(place))
                         : withLetterBehind(escaped(text), letter));
    }
    return texts;
}

QChar Mnemonics::letterOf(const QString &label)
{
    for (int place = 0; place + 1 < label.size(); ++place) {
        if (label.at(place) != kMark) {
            continue;
        }
        if (label.at(place + 1) != kMark) {
            return label.at(place + 1);
        }
        ++place;
    }
    return {};
}

QString Mnemonics::plain(const QString &label)
{
    static const QRegularExpression brackets(QStringLiteral("\\s*\\(&[^&]\\)"));
    QString text = label;
    text.remove(brackets);
    QString plain;
    for (int place = 0; place < text.size(); ++place) {
        if (text.at(place) == kMark && place + 1 < text.size()) {
            ++place;
        }
        plain.append(text.at(place));
    }
    while (plain.endsWith(QChar(0x2026))) {
        plain.chop(1);
    }
    return plain;
}
