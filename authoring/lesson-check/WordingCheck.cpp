#include "lesson-check/WordingCheck.h"

#include <QRegularExpression>

namespace {

/// The pair of marks in which a language quotes.
QRegularExpression quoted(const QString &locale)
{
    return QRegularExpression(locale == QLatin1String("ja_JP") ? QStringLiteral("「([^」]*)」")
                                                               : QStringLiteral("“([^”]*)”"));
}

QString problemOf(const Glossary::Slip &slip)
{
    return QStringLiteral("“%1” is not the glossary's word; it has “%2”").arg(slip.word, slip.term);
}

} // namespace

Findings checkTerms(const Glossary &glossary, const QVector<Catalogue> &catalogues, const EditorTexts &texts)
{
    Findings findings;
    for (const Catalogue &catalogue : catalogues) {
        const QStringList contexts = catalogue.contexts();
        for (const QString &context : contexts) {
            const Catalogue::Messages messages = catalogue.messages(context);
            for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
                const QVector<Glossary::Slip> slips =
                    glossary.slipsIn(message->translation, catalogue.locale());
                for (const Glossary::Slip &slip : slips) {
                    findings.append({Finding::Kind::kError, catalogue.file(), message->line, context,
                                     message.key(), problemOf(slip)});
                }
            }
        }
    }
    for (const EditorTexts::Text &text : texts.all()) {
        const QVector<Glossary::Slip> slips = glossary.slipsIn(text.text, text.locale);
        for (const Glossary::Slip &slip : slips) {
            findings.append({Finding::Kind::kError, text.file, 0, {}, text.text, problemOf(slip)});
        }
    }
    return findings;
}

Findings checkQuotedNames(const QString &context, const Catalogue &catalogue, const QSet<QString> &shown)
{
    Findings findings;
    const QRegularExpression form = quoted(catalogue.locale());
    const Catalogue::Messages messages = catalogue.messages(context);
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        for (auto match = form.globalMatch(message->translation); match.hasNext();) {
            const QString name = match.next().captured(1);
            if (!shown.contains(name)) {
                findings.append(
                    {Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                     QStringLiteral("no window shows “%1” in %2; name a control by the very words of its "
                                    "window, and quote nothing else")
                         .arg(name, catalogue.locale())});
            }
        }
    }
    return findings;
}
