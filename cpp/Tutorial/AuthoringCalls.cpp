#include "Tutorial/AuthoringCalls.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "Tutorial/localisation/Languages.h"
#include "TutorialEditor/ItemClipboard.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioSource.h"
#include "tool/DataSupport.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>

#include <utility>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

QString resourcePath(const QString &relativeName)
{
    logDebug(kSource, "TutorialManager::getExistsFilename", 1402) << relativeName;
    QString path = DataSupport::resourcePath(relativeName);
    logDebug(kSource, "TutorialManager::getExistsFilename", 1405) << path;
    return path;
}

} // namespace

AuthoringCalls::AuthoringCalls(Languages &languages, HistorySource history,
                               TranslationOutput::Resolve translationPath, QObject *parent)
    : QObject(parent)
    , m_languages(languages)
    , m_document(std::make_unique<TutorialEditor::Manager>(&languages.texts(), std::move(history)))
    , m_translationOutput(translationPath ? std::move(translationPath) : &resourcePath)
{
}

AuthoringCalls::~AuthoringCalls() = default;

QString AuthoringCalls::load(const QString &fileName)
{
    QString baseName = fileName.mid(fileName.lastIndexOf(QLatin1Char('/')) + 1);
    if (baseName.endsWith(QLatin1String(".js"))) {
        baseName.chop(3);
    }
    m_languages.texts().setContext(baseName);
    setTutorialName(baseName);
    return m_document->setContents(fileName).join(QLatin1Char('\n'));
}

QString AuthoringCalls::loadLesson(const QString &name)
{
    return load(resourcePath(QStringLiteral("qml/Tutorial/%1.js").arg(name)));
}

void AuthoringCalls::unload()
{
    m_document->clear();
    setTutorialName(QString());
}

QString AuthoringCalls::save()
{
    return m_document->save();
}

QString AuthoringCalls::saveWithTranslations()
{
    logDebug(kSource, "TutorialManager::feedbackTranslation", 1779);
    if (!saveTranslations()) {
        return QCoreApplication::translate("TutorialManager", "Failed to save translation.");
    }
    return save();
}

bool AuthoringCalls::saveTranslations() const
{
    return m_translationOutput.save(m_languages.locale(), m_languages.locale2());
}

QString AuthoringCalls::lessonList() const
{
    const QString path = resourcePath(QStringLiteral("qml/Tutorial/TutorialList.js"));
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes)) {
        logWarning(kSource, "TutorialManager::getTutorialJson", 1421) << "Failed to load" << path;
        return {};
    }
    QStringList errors;
    QString list = m_languages.texts().translateList(QString::fromUtf8(bytes), &errors);
    if (!errors.isEmpty()) {
        logWarning(kSource, "TutorialManager::getTutorialJson", 1447) << errors;
    }
    return list;
}

QString AuthoringCalls::startCommand(int id) const
{
    QStringList errors;
    const QString text =
        m_languages.texts().translateScript(scenarioArray(m_document->getScenario(false)), &errors);
    return CommandFields::join({CommandWords::kStart,
                                QLatin1String("var scenario = ") + text + QLatin1Char(';'),
                                QString::number(id)});
}

void AuthoringCalls::copyItems(const QList<int> &ids)
{
    const std::optional<QByteArray> payload = ItemClipboard::copy(m_document->tree(), ids);
    if (payload) {
        m_clipboard = *payload;
        setMimeType(ItemClipboard::mimeType());
    }
}

QList<int> AuthoringCalls::pasteItems()
{
    return ItemClipboard::paste(m_clipboard, m_document.get(), m_languages.texts());
}

void AuthoringCalls::emptyClipboard()
{
    m_clipboard.clear();
    setMimeType(ItemClipboard::emptyMimeType());
}

void AuthoringCalls::setModified(bool modified)
{
    if (m_modified != modified) {
        m_modified = modified;
        Q_EMIT modifiedChanged();
    }
}

void AuthoringCalls::setMimeType(const QString &mimeType)
{
    if (m_mimeType != mimeType) {
        m_mimeType = mimeType;
        Q_EMIT mimeTypeChanged();
    }
}

void AuthoringCalls::setTutorialName(const QString &name)
{
    if (m_tutorialName != name) {
        m_tutorialName = name;
        Q_EMIT tutorialNameChanged();
    }
}
