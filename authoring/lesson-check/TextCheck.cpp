#include "lesson-check/TextCheck.h"

#include <QSet>
#include <QStringList>

namespace {

struct Use
{
    int line = 0;
    QString item;
    QString field;
};
using Uses = QMap<int, Use>; ///< the first use of each number

QString source(int number)
{
    return QStringLiteral("#%1").arg(number);
}

Findings compare(const QString &file, const QString &context, const Uses &uses, const Catalogue &catalogue)
{
    Findings findings;
    const Catalogue::Messages messages = catalogue.messages(context);
    QSet<QString> used;
    for (auto use = uses.cbegin(); use != uses.cend(); ++use) {
        used.insert(source(use.key()));
        if (!messages.contains(source(use.key()))) {
            findings.append(
                {Finding::Kind::kError, file, use->line, use->item, use->field,
                 QStringLiteral("the text %1 is missing in %2").arg(source(use.key()), catalogue.locale())});
        }
    }
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        if (!used.contains(message.key())) {
            findings.append({Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                             QStringLiteral("the text is never used")});
        }
    }
    return findings;
}

Uses usesOf(const Lesson &lesson)
{
    Uses uses;
    for (const ScenarioItem &step : lesson.steps) {
        if (!uses.contains(step.translationId)) {
            uses.insert(step.translationId,
                        {step.line, QStringLiteral("item %1").arg(step.id), QStringLiteral("translationId")});
        }
    }
    return uses;
}

} // namespace

Findings checkNumbers(const Lesson &lesson)
{
    const Uses uses = usesOf(lesson);
    const int last = uses.isEmpty() ? 0 : uses.lastKey();
    Findings findings;
    for (int number = 1; number < last; ++number) {
        if (!uses.contains(number)) {
            findings.append({Finding::Kind::kError,
                             lesson.file,
                             0,
                             {},
                             QStringLiteral("translationId"),
                             QStringLiteral("the number %1 is left out").arg(number)});
        }
    }
    return findings;
}

Findings checkTexts(const Lesson &lesson, const Catalogue &catalogue)
{
    Findings findings = compare(lesson.file, lesson.name, usesOf(lesson), catalogue);
    const Catalogue::Messages messages = catalogue.messages(lesson.name);
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        if (message->translation.contains(QLatin1String("];"))) {
            findings.append(
                {Finding::Kind::kError, catalogue.file(), message->line, lesson.name, message.key(),
                 QStringLiteral("the companion takes \"];\" for the end of the lesson and hands it "
                                "over without the semicolon; write \"] ;\"")});
        }
    }
    return findings;
}

Findings checkTitles(const QString &listFile, const QVector<LessonEntry> &entries, const Catalogue &catalogue)
{
    Uses uses;
    for (const LessonEntry &entry : entries) {
        uses.insert(entry.title, {entry.line, entry.filename, QStringLiteral("title")});
    }
    return compare(listFile, QStringLiteral("TutorialList"), uses, catalogue);
}

Findings checkLanguages(const QVector<Catalogue> &catalogues)
{
    QMap<QString, QSet<QString>> all;
    for (const Catalogue &catalogue : catalogues) {
        const QStringList contexts = catalogue.contexts();
        for (const QString &context : contexts) {
            const Catalogue::Messages messages = catalogue.messages(context);
            for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
                all[context].insert(message.key());
            }
        }
    }
    Findings findings;
    for (const Catalogue &catalogue : catalogues) {
        for (auto context = all.cbegin(); context != all.cend(); ++context) {
            const Catalogue::Messages messages = catalogue.messages(context.key());
            QStringList missing;
            for (const QString &text : context.value()) {
                if (!messages.contains(text)) {
                    missing.append(text);
                }
            }
            missing.sort();
            for (const QString &text : missing) {
                findings.append({Finding::Kind::kError, catalogue.file(), 0, context.key(), text,
                                 QStringLiteral("another language has this text, this one does not")});
            }
        }
    }
    return findings;
}
