#include "Tutorial/TutorialManager.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "TutorialEditor/ItemClipboard.h"
#include "TutorialEditor/ScenarioSource.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/DataSupport.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>

#include <cstdlib>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr int kTickMs = 100;
constexpr int kVisibilityIntervalMs = 10;

TutorialManager *theInstance = nullptr;

} // namespace

TutorialManager::TutorialManager(QObject *parent, TranslationOutput::Resolve translationPath)
    : QObject(parent)
    , m_connection(std::make_unique<HostConnection>())
    , m_overlays(*this)
    , m_timer(this)
    , m_document(std::make_unique<TutorialEditor::Manager>(&m_languages.texts(), &UndoRedo::instance))
    , m_translationOutput(translationPath ? std::move(translationPath) : &TutorialManager::getExistsFilename)
{
    theInstance = this;
    logDebug(kSource, "TutorialManager::TutorialManager", 210) << locale() << locale2();
    connect(&m_languages, &Languages::localeChanged, this, &TutorialManager::localeChanged);
    connect(&m_languages, &Languages::locale2Changed, this, &TutorialManager::locale2Changed);
    connect(&m_languages, &Languages::fontLocaleChanged, this,
            [this](const QString &locale) { m_font.setLocale(locale); });

    const QStringList arguments = QCoreApplication::arguments();
    const QString key = arguments.size() >= 2 ? arguments.at(1) : QStringLiteral("20200318-0017");
    if (key.isEmpty()) {
        deleteLater();
        return;
    }
    connect(m_connection.get(), &HostConnection::received, this, &TutorialManager::received);
    connect(m_connection.get(), &HostConnection::bye, this, &TutorialManager::stopPlayback);
    connect(m_connection.get(), &HostConnection::ended, this, &TutorialManager::requestClose);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    m_connection->connectToHost(key);

    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &TutorialManager::onApplicationStateChanged);
    startTimer(kTickMs, Qt::CoarseTimer);
    const bool loaded = m_languages.texts().loadSecond();
    logDebug(kSource, "TutorialManager::TutorialManager", 247) << loaded;

    m_timer.setInterval(kVisibilityIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &TutorialManager::onTimerTimeout);
    m_timer.start();
    m_presetTranslations = buildSampleTable();
}

TutorialManager::~TutorialManager()
{
    logDebug(kSource, "TutorialManager::~TutorialManager", 268);
    m_connection.reset();
    m_document.reset();
    if (UndoRedo::instance()) {
        UndoRedo::instance()->setHost(nullptr);
    }
    theInstance = nullptr;
    logDebug(kSource, "TutorialManager::~TutorialManager", 276);
}

TutorialManager *TutorialManager::instance()
{
    return theInstance;
}

QPoint TutorialManager::getXy(const QString &windowKey)
{
    return m_windows.position(windowKey);
}

QString TutorialManager::getCurrentWindowKey()
{
    return m_windows.current();
}

void TutorialManager::clearMimeData()
{
    m_mimeData.clear();
    setMimeType(ItemClipboard::emptyMimeType());
}

bool TutorialManager::connected()
{
    send(CommandWords::kTutorialReady);
    return m_connection->connected();
}

void TutorialManager::requestClose()
{
    logDebug(kSource, "TutorialManager::requestClose", 1535);
    std::exit(EXIT_SUCCESS);
}

bool TutorialManager::isMakingSupported()
{
    return false;
}

void TutorialManager::copyTutorialItemList(const QList<int> &idList)
{
    const std::optional<QByteArray> payload = ItemClipboard::copy(m_document->tree(), idList);
    if (payload) {
        setMimeData(ItemClipboard::mimeType(), *payload);
    }
}

QList<int> TutorialManager::pasteTutorialItemList()
{
    return ItemClipboard::paste(m_mimeData.data(ItemClipboard::mimeType()), m_document.get(),
                                m_languages.texts());
}

QString TutorialManager::save()
{
    return m_document->save();
}

QString TutorialManager::getTutorialJson()
{
    const QString path = getExistsFilename(QStringLiteral("qml/Tutorial/TutorialList.js"));
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

void TutorialManager::unload()
{
    m_document->clear();
    if (!m_tutorialName.isEmpty()) {
        m_tutorialName.clear();
        Q_EMIT tutorialNameChanged();
    }
}

void TutorialManager::startFromId(int id)
{
    QStringList errors;
    const QString text =
        m_languages.texts().translateScript(scenarioArray(m_document->getScenario(false)), &errors);
    send(
        CommandFields::join({CommandWords::kStart, QLatin1String("var scenario = ") + text + QLatin1Char(';'),
                             QString::number(id)}));
}

void TutorialManager::startFromId()
{
    startFromId(-1);
}

QString TutorialManager::loadTutorial(const QString &filename)
{
    QString baseName = filename.mid(filename.lastIndexOf(QLatin1Char('/')) + 1);
    if (baseName.endsWith(QLatin1String(".js"))) {
        baseName.chop(3);
    }
    m_languages.texts().setContext(baseName);
    if (m_tutorialName != baseName) {
        m_tutorialName = baseName;
        Q_EMIT tutorialNameChanged();
    }
    return m_document->setContents(filename).join(QLatin1Char('\n'));
}

QString TutorialManager::feedbackTranslation()
{
    logDebug(kSource, "TutorialManager::feedbackTranslation", 1779);
    if (!saveTranslation()) {
        return tr("Failed to save translation.");
    }
    return m_document->save();
}

bool TutorialManager::saveTranslation() const
{
    return m_translationOutput.save(locale(), locale2());
}

QPoint TutorialManager::getCursorPos()
{
    return QCursor::pos();
}

void TutorialManager::updateIndicatorXyWindowKey(int x, int y, const QString &windowKey)
{
    send(CommandFields::join({CommandWords::kIndicator, CommandWords::kUpdateXyWindowKey, QString::number(x),
                              QString::number(y), windowKey}));
    m_overlays.aim(QPoint(x, y), windowKey);
}

void TutorialManager::setModified(bool modified)
{
    if (m_modified != modified) {
        m_modified = modified;
        Q_EMIT modifiedChanged();
    }
}

void TutorialManager::setMimeData(const QString &mimeType, const QByteArray &data)
{
    m_mimeData.clear();
    m_mimeData.setData(mimeType, data);
    setMimeType(mimeType);
}

void TutorialManager::setMimeType(const QString &mimeType)
{
    if (m_mimeType != mimeType) {
        m_mimeType = mimeType;
        Q_EMIT mimeTypeChanged();
    }
}

QString TutorialManager::getExistsFilename(const QString &relativeName)
{
    logDebug(kSource, "TutorialManager::getExistsFilename", 1402) << relativeName;
    QString path = DataSupport::resourcePath(relativeName);
    logDebug(kSource, "TutorialManager::getExistsFilename", 1405) << path;
    return path;
}

void TutorialManager::timerEvent(QTimerEvent * /*event*/)
{
    const PlaybackVisibility::Tick due = m_visibility.tick();
    if (due.showAgain) {
        logDebug(kSource, "TutorialManager::timerEvent", 427) << due.hiddenTicks;
        if (due.rebuild) {
            m_overlays.rebuild();
        }
        m_overlays.showLog();
        updateOverlayVisibility();
    }
    if (due.hide) {
        updateOverlayVisibility();
    }
    if (due.ignoringShow) {
        logDebug(kSource, "TutorialManager::timerEvent", 460)
            << "m_logHideIgnoreTimeout now" << due.ignoreShowTicks;
    }
    m_connection->tick();
}

void TutorialManager::onTimerTimeout()
{
    if (!m_pendingJumpLink.isEmpty()) {
        const QString link = m_pendingJumpLink;
        m_pendingJumpLink.clear();
        Q_EMIT jumpLinkChanged(link);
    }
    updateOverlayVisibility();
}

void TutorialManager::updateOverlayVisibility()
{
    switch (m_visibility.showing()) {
    case PlaybackVisibility::Showing::kNoPlayback:
        m_overlays.hideIndicator();
        m_overlays.hideLog();
        break;
    case PlaybackVisibility::Showing::kHostHidden:
        m_overlays.hideIndicator();
        m_overlays.hideLog();
        m_overlays.hideEditorTooltip();
        break;
    case PlaybackVisibility::Showing::kShown:
        m_overlays.showIndicator();
        m_overlays.showLog();
        m_overlays.showEditorTooltip();
        break;
    }
}

void TutorialManager::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive || state == Qt::ApplicationInactive) {
        m_visibility.setApplicationActive(state == Qt::ApplicationActive);
        updateOverlayVisibility();
    }
}

void TutorialManager::onOverlayActivated()
{
    if (m_windows.popPopup()) {
        Q_EMIT currentWindowKeyChanged();
    }
}
