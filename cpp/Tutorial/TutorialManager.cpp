#include "Tutorial/TutorialManager.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>

#include <cstdlib>
#include <utility>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr int kTickMs = 100;
constexpr int kVisibilityIntervalMs = 10;

TutorialManager *theInstance = nullptr;

} // namespace

TutorialManager::TutorialManager(QObject *parent, TranslationOutput::Resolve translationPath)
    : QObject(parent)
    , m_connection(std::make_unique<HostConnection>())
    , m_authoring(
          std::make_unique<AuthoringCalls>(m_languages, &UndoRedo::instance, std::move(translationPath)))
    , m_overlays(*this)
    , m_timer(this)
{
    theInstance = this;
    logDebug(kSource, "TutorialManager::TutorialManager", 210) << locale() << locale2();
    connect(m_authoring.get(), &AuthoringCalls::modifiedChanged, this, &TutorialManager::modifiedChanged);
    connect(m_authoring.get(), &AuthoringCalls::mimeTypeChanged, this, &TutorialManager::mimeTypeChanged);
    connect(m_authoring.get(), &AuthoringCalls::tutorialNameChanged, this,
            &TutorialManager::tutorialNameChanged);
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
    m_authoring.reset();
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
