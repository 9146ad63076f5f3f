#include "Tutorial/TutorialManager.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>
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
    , m_authoring(
          std::make_unique<AuthoringCalls>(m_languages, &UndoRedo::instance, std::move(translationPath)))
    , m_connection(std::make_unique<HostConnection>())
    , m_commands({m_playback, *m_authoring, m_languages, [this](const QString &text) { send(text); },
                  QCoreApplication::applicationDirPath()})
    , m_timer(this)
{
    theInstance = this;
    logDebug(kSource, "TutorialManager::TutorialManager", 210) << locale() << locale2();
    connectParts();

    const QStringList arguments = QCoreApplication::arguments();
    const QString key = arguments.size() >= 2 ? arguments.at(1) : QStringLiteral("20200318-0017");
    if (key.isEmpty()) {
        deleteLater();
        return;
    }
    m_connection->connectToHost(key);

    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &TutorialManager::onApplicationStateChanged);
    startTimer(kTickMs, Qt::CoarseTimer);
    const bool loaded = m_languages.texts().loadSecond();
    logDebug(kSource, "TutorialManager::TutorialManager", 247) << loaded;

    m_timer.setInterval(kVisibilityIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &TutorialManager::onTimerTimeout);
    m_timer.start();
}

TutorialManager::~TutorialManager()
{
    logDebug(kSource, "TutorialManager::~TutorialManager", 268);
    // First: the history may change when the document goes, and its host is no longer whole then.
    if (UndoRedo::instance() != nullptr) {
        UndoRedo::instance()->setHost(nullptr);
    }
    m_connection.reset();
    m_authoring.reset();
    theInstance = nullptr;
    logDebug(kSource, "TutorialManager::~TutorialManager", 276);
}

void TutorialManager::connectParts()
{
    HostConnection *const link = m_connection.get();
    connect(link, &HostConnection::received, this, &TutorialManager::received);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    connect(link, &HostConnection::bye, &m_playback, &Playback::stop);
    connect(link, &HostConnection::ended, this, &TutorialManager::requestClose);
    connect(&m_playback, &Playback::answered, link, &HostConnection::send);
    connect(&m_playback, &Playback::currentWindowKeyChanged, this, &TutorialManager::currentWindowKeyChanged);
    connect(&m_languages, &Languages::fontLocaleChanged, &m_playback, &Playback::setFontLocale);
    connect(&m_languages, &Languages::localeChanged, this, &TutorialManager::localeChanged);
    connect(&m_languages, &Languages::locale2Changed, this, &TutorialManager::locale2Changed);
    AuthoringCalls *const authoring = m_authoring.get();
    connect(authoring, &AuthoringCalls::modifiedChanged, this, &TutorialManager::modifiedChanged);
    connect(authoring, &AuthoringCalls::mimeTypeChanged, this, &TutorialManager::mimeTypeChanged);
    connect(authoring, &AuthoringCalls::tutorialNameChanged, this, &TutorialManager::tutorialNameChanged);
}

TutorialManager *TutorialManager::instance()
{
    return theInstance;
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

void TutorialManager::updateIndicatorXyWindowKey(int x, int y, const QString &windowKey)
{
    send(CommandFields::join({CommandWords::kIndicator, CommandWords::kUpdateXyWindowKey, QString::number(x),
                              QString::number(y), windowKey}));
    m_playback.aim({x, y}, windowKey);
}

void TutorialManager::timerEvent(QTimerEvent * /*event*/)
{
    m_playback.tick();
    m_connection->tick();
}

void TutorialManager::onTimerTimeout()
{
    if (!m_pendingJumpLink.isEmpty()) {
        const QString link = std::exchange(m_pendingJumpLink, {});
        Q_EMIT jumpLinkChanged(link);
    }
    m_playback.updateOverlayVisibility();
}
