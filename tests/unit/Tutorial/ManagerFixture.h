#pragma once

#include "Frames.h"
#include "Tutorial/TutorialManager.h"
#include "playback/OverlayWindows.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <utility>

/// A manager in the test's own process, linked to a server of the test. The key stands in the arguments that
/// the test program gave to its QApplication.
class ManagerFixture
{
public:
    static constexpr int kLimitMs = 30000;

    /// Listens, makes the manager and waits until the link is up on both sides. @p translationPath goes to
    /// the manager.
    bool start(TranslationOutput::Resolve translationPath = {})
    {
        QLocalServer::removeServer(serverName());
        if (!m_server.listen(serverName())) {
            return false;
        }
        manager = std::make_unique<TutorialManager>(nullptr, std::move(translationPath));
        if (!QTest::qWaitFor([this] { return m_server.hasPendingConnections(); }, kLimitMs)) {
            return false;
        }
        m_socket = m_server.nextPendingConnection();
        return true;
    }

    static QString serverName() { return QStringLiteral("tkvq") + QCoreApplication::arguments().at(1); }

    /// Runs a command as if it had come over the link.
    void receive(const QStringList &fields) const { manager->onReceived(fields.join(QChar(1))); }

    /// Writes bytes to the link.
    void write(const QByteArray &bytes) const
    {
        m_socket->write(bytes);
        m_socket->flush();
    }

    /// Waits for the next payload that is not "alive".
    QString nextPayload()
    {
        QString payload;
        const bool arrived = QTest::qWaitFor([this, &payload] { return takePayload(&payload); }, kLimitMs);
        return arrived ? payload : QStringLiteral("nothing arrived");
    }

    std::unique_ptr<TutorialManager> manager;

private:
    bool takePayload(QString *payload)
    {
        m_reader.add(m_socket->readAll());
        while (const std::optional<QString> next = m_reader.take()) {
            if (*next != QLatin1String("alive")) {
                *payload = *next;
                return true;
            }
        }
        return false;
    }

    QLocalServer m_server;
    QLocalSocket *m_socket = nullptr;
    Frames::PayloadReader m_reader;
};

/// Runs a test class in an application whose first argument is a key that no other test uses, with settings
/// in a folder that goes away.
template<typename Test>
int runWithKey(int argc, char **argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QByteArray key = settings.path().section(QLatin1Char('/'), -1).toLatin1();
    int count = 2;
    char *arguments[] = {argv[0], key.data(), nullptr};
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELMORAN"));
    QApplication::setQuitOnLastWindowClosed(false);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
