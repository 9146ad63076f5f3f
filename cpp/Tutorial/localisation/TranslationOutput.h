#pragma once

#include "tool/DataSupport.h"

#include <QDomDocument>
#include <QString>

#include <functional>

/// Writes the two translation documents as translation source files, one for each locale. Nothing fills the
/// documents, so what is written is empty.
class TranslationOutput
{
public:
    /// Gives the path of the file with a name such as "translations/en_US.ts".
    using Resolve = std::function<QString(const QString &relativeName)>;

    explicit TranslationOutput(Resolve resolve = &DataSupport::resourcePath);

    /// Writes the file of @p locale, then that of @p locale2; true if both were written. After a failure,
    /// which is logged, nothing further is tried; a first file stays written when the second fails.
    [[nodiscard]] bool save(const QString &locale, const QString &locale2) const;

private:
    [[nodiscard]] bool saveOne(const QString &locale, const QDomDocument &document, int failureNumber) const;

    Resolve m_resolve;
    QDomDocument m_document;
    QDomDocument m_document2;
};
