#include "lesson-check/Glossary.h"

#include "lesson/LessonWords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// A text, or a list of them.
QStringList words(const QJsonValue &value)
{
    QStringList all;
    const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray({value.toString()});
    for (const QJsonValue &word : list) {
        if (!word.toString().isEmpty()) {
            all.append(word.toString());
        }
    }
    return all;
}

bool isLatin(const QString &word)
{
    return std::all_of(word.cbegin(), word.cend(), [](QChar letter) { return letter.unicode() < 0x2E80; });
}

/// Where the word stands in the text; letters of the Latin script count as whole words only.
QVector<int> placesOf(const QString &word, const QString &text)
{
    QString pattern = QRegularExpression::escape(word);
    if (isLatin(word)) {
        pattern = QStringLiteral("\\b%1\\b").arg(pattern);
    }
    const QRegularExpression form(pattern, QRegularExpression::CaseInsensitiveOption);
    QVector<int> places;
    for (auto match = form.globalMatch(text); match.hasNext();) {
        places.append(int(match.next().capturedStart()));
    }
    return places;
}

/// Whether the word at @p place of the text is a part of the term.
bool isPartOf(const QString &term, const QString &word, const QString &text, int place)
{
    for (int at = int(term.indexOf(word)); at >= 0; at = int(term.indexOf(word, at + 1))) {
        if (place >= at && text.indexOf(term, place - at, Qt::CaseInsensitive) == place - at) {
            return true;
        }
    }
    return false;
}

} // namespace

Glossary::Glossary(const QString &file, const QByteArray &json, Findings &findings)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const QJsonArray entries = document.object().value(QStringLiteral("terms")).toArray();
    const auto report = [&](const QString &item, const QString &text) {
        findings.append({Finding::Kind::kError, file, 0, item, {}, text});
    };
    if (error.error != QJsonParseError::NoError || entries.isEmpty()) {
        report({},
               QStringLiteral("the table is not a JSON object with \"terms\": %1").arg(error.errorString()));
    }
    const QStringList locales = LessonWords::locales();
    for (int i = 0; i < entries.size(); ++i) {
        const QJsonObject entry = entries.at(i).toObject();
        for (const QString &locale : locales) {
            if (words(entry.value(QStringLiteral("term")).toObject().value(locale)).isEmpty()) {
                report(QStringLiteral("term %1").arg(i + 1),
                       QStringLiteral("it has no word in %1").arg(locale));
            }
            read(entry, locale);
        }
    }
    findWithin();
}

void Glossary::read(const QJsonObject &entry, const QString &locale)
{
    const QStringList terms = words(entry.value(QStringLiteral("term")).toObject().value(locale));
    const QStringList avoided = words(entry.value(QStringLiteral("avoid")).toObject().value(locale));
    m_terms[locale] += terms;
    for (const QString &word : avoided) {
        m_avoided[locale].append({word, terms.value(0), {}});
    }
}

void Glossary::findWithin()
{
    for (auto all = m_avoided.begin(); all != m_avoided.end(); ++all) {
        const QStringList terms = m_terms.value(all.key());
        for (Avoided &avoided : all.value()) {
            for (const QString &term : terms) {
                if (term.contains(avoided.word)) {
                    avoided.within.append(term);
                }
            }
        }
    }
}

QVector<Glossary::Slip> Glossary::slipsIn(const QString &text, const QString &locale) const
{
    QVector<Slip> slips;
    const QVector<Avoided> all = m_avoided.value(locale);
    for (const Avoided &avoided : all) {
        const QVector<int> places = placesOf(avoided.word, text);
        const auto isSlip = [&](int place) {
            return std::none_of(avoided.within.cbegin(), avoided.within.cend(), [&](const QString &term) {
                return isPartOf(term, avoided.word, text, place);
            });
        };
        if (std::any_of(places.cbegin(), places.cend(), isSlip)) {
            slips.append({avoided.word, avoided.term});
        }
    }
    return slips;
}
