#include "lesson-check/EditorTexts.h"

#include "lesson/LessonWords.h"
#include "tool/DataSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

/// Calls @p take with each text of the value that stands under the name of a language.
template<typename Take>
void eachText(const QJsonValue &value, const Take &take)
{
    const QJsonArray list = value.toArray();
    for (const QJsonValue &member : list) {
        eachText(member, take);
    }
    const QJsonObject object = value.toObject();
    const QStringList locales = LessonWords::locales();
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member.value().isString() && locales.contains(member.key())) {
            take(member.key(), member.value().toString());
        } else {
            eachText(member.value(), take);
        }
    }
}

/// As it is painted: without the mark of its key.
QString painted(QString label)
{
    static const QRegularExpression keyBehind(QStringLiteral("\\(&.\\)"));
    return label.remove(keyBehind).remove(QLatin1Char('&'));
}

} // namespace

EditorTexts::EditorTexts(const QString &root)
{
    readTables(root, QStringLiteral("practice/descriptions"));
    readTables(root, QStringLiteral("practice/strip"));
    readCatalogues(root);
}

void EditorTexts::readTables(const QString &root, const QString &folder)
{
    QStringList paths;
    QDirIterator files(QDir(root).filePath(folder), {QStringLiteral("*.json")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    for (const QString &path : qAsConst(paths)) {
        QByteArray bytes;
        DataSupport::readFile(path, bytes);
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        const QString file = QDir(root).relativeFilePath(path);
        eachText(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()),
                 [&](const QString &locale, const QString &text) {
                     m_texts.append({file, locale, text});
                 });
    }
}

void EditorTexts::readCatalogues(const QString &root)
{
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        const QString file = QStringLiteral("practice/translations/%1.ts").arg(locale);
        QByteArray bytes;
        if (!QFile::exists(QDir(root).filePath(file)) ||
            !DataSupport::readFile(QDir(root).filePath(file), bytes)) {
            continue; // English has none
        }
        const bool isSource = locale == locales.constLast(); // one of them tells the English texts, too
        Findings ofOthers; // the tests of the practice editor tell what is wrong with it
        const Catalogue catalogue(file, locale, bytes, ofOthers);
        const QStringList contexts = catalogue.contexts();
        for (const QString &context : contexts) {
            const Catalogue::Messages messages = catalogue.messages(context);
            for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
                m_texts.append({file, locale, message->translation});
                if (isSource) {
                    m_texts.append({file, locales.constFirst(), message.key()});
                }
            }
        }
    }
}

QSet<QString> EditorTexts::shown(const QString &locale, const QVector<Catalogue> &catalogues) const
{
    QSet<QString> all{QStringLiteral("+")}; // the row of a list of commands at which one is added
    for (const Text &text : m_texts) {
        if (text.locale == locale) {
            all.insert(painted(text.text));
        }
    }
    for (const Catalogue &catalogue : catalogues) {
        if (catalogue.locale() != locale) {
            continue;
        }
        const QStringList contexts = catalogue.contexts();
        for (const QString &context : contexts) {
            if (context.startsWith(QLatin1String("TutorialStep"))) {
                continue; // hints are what is looked at
            }
            const Catalogue::Messages messages = catalogue.messages(context);
            for (const auto &message : messages) {
                all.insert(message.translation);
            }
        }
    }
    return all;
}
