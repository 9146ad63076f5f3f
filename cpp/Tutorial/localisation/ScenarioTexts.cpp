#include "Tutorial/localisation/ScenarioTexts.h"

#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

} // namespace

ScenarioTexts::ScenarioTexts()
    : m_scanner(
          [this](const QString &context, const QString &text) { return applyTranslation(context, text); },
          [this](const QString &context, const QString &text) { return secondTranslation(context, text); })
{
}

bool ScenarioTexts::loadSecond()
{
    // Null delimiters and a null suffix stand for the defaults, so that the file "en_US.qm" is found.
    return m_second.load(QStringLiteral("en_US"), QStringLiteral(":/translations"), QString(), QString());
}

QString ScenarioTexts::applyTranslation(const QString &context, const QString &text) const
{
    logDebug(kSource, "TutorialManager::applyTranslation", 1885) << context << text;
    const QByteArray contextUtf8 = context.toUtf8();
    const QByteArray textUtf8 = text.toUtf8();
    QString result = QCoreApplication::translate(contextUtf8.constData(), textUtf8.constData(), nullptr, -1);
    logDebug(kSource, "TutorialManager::applyTranslation", 1928) << context << text << result;
    return result;
}

QString ScenarioTexts::applyTranslation(const QString &text) const
{
    return applyTranslation(m_context, text);
}

QString ScenarioTexts::parseTranslatable(const QString &text, const QString &context, QString *rest,
                                         QStringList *errors) const
{
    return m_scanner.parseTranslatable(text, context, rest, errors);
}

QString ScenarioTexts::translateScript(const QString &text, QStringList *errors) const
{
    return m_scanner.translateScript(text, m_context, errors);
}

QString ScenarioTexts::translateList(const QString &text, QStringList *errors) const
{
    return m_scanner.translateList(text, QStringLiteral("TutorialList"), errors);
}

QString ScenarioTexts::sampleText(const QString &context, const QString &text) const
{
    const QString result = applyTranslation(context, text);
    return result.startsWith(QLatin1Char('#')) ? secondTranslation(context, text) : result;
}

QString ScenarioTexts::secondTranslation(const QString &context, const QString &text) const
{
    return m_second.translate(context.toUtf8().constData(), text.toUtf8().constData(), nullptr, -1);
}
