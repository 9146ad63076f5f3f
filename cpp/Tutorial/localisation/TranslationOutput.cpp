#include "Tutorial/localisation/TranslationOutput.h"

#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <utility>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr int kIndent = 4;

} // namespace

TranslationOutput::TranslationOutput(Resolve resolve)
    : m_resolve(std::move(resolve))
{
}

bool TranslationOutput::save(const QString &locale, const QString &locale2) const
{
    return saveOne(locale, m_document, 1857) && saveOne(locale2, m_document2, 1863);
}

bool TranslationOutput::saveOne(const QString &locale, const QDomDocument &document, int failureNumber) const
{
    const QString path = m_resolve(QStringLiteral("translations/%1.ts").arg(locale));
    if (DataSupport::writeFile(path, document.toByteArray(kIndent))) {
        return true;
    }
    logWarning(kSource, "TutorialManager::saveTranslation", failureNumber) << "Failed to save" << path;
    return false;
}
