#pragma once

#include "Tutorial/localisation/SourceTextScanner.h"

#include <QString>
#include <QStringList>
#include <QTranslator>

/// Looks up the texts of the current scenario: first with the installed translators, then, for a text
/// identifier such as "#1" that they do not hold, with a translator of its own that is never installed.
class ScenarioTexts
{
public:
    ScenarioTexts();
    Q_DISABLE_COPY(ScenarioTexts)

    /// Loads the second translator with the "en_US" catalogue and says whether it was found. Before that the
    /// second lookup finds nothing. The caller logs the result.
    bool loadSecond();

    /// The scenario's base name, which is the translation context of its texts.
    void setContext(const QString &context) { m_context = context; }
    [[nodiscard]] QString context() const { return m_context; }

    /// Translates @p text in @p context with the installed translators; gives @p text back when none holds
    /// it.
    [[nodiscard]] QString applyTranslation(const QString &context, const QString &text) const;
    /// As above, in the scenario's context.
    [[nodiscard]] QString applyTranslation(const QString &text) const;

    /// See SourceTextScanner::parseTranslatable.
    QString parseTranslatable(const QString &text, const QString &context, QString *rest,
                              QStringList *errors) const;
    /// @p text with its translation calls resolved in the scenario's context. Failures are appended to @p
    /// errors.
    QString translateScript(const QString &text, QStringList *errors) const;
    /// The list of scenarios @p text as JSON, with its translation calls resolved in the context
    /// "TutorialList".
    QString translateList(const QString &text, QStringList *errors) const;

    /// Translates a text of the sample project. An identifier that the installed translators do not hold
    /// gives what the second translator has, which is empty when it holds it neither.
    [[nodiscard]] QString sampleText(const QString &context, const QString &text) const;

private:
    [[nodiscard]] QString secondTranslation(const QString &context, const QString &text) const;

    QTranslator m_second;
    SourceTextScanner m_scanner;
    QString m_context;
};
