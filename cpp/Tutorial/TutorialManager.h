#pragma once

#include "Tutorial/AuthoringCalls.h"
#include "Tutorial/CommandTable.h"
#include "Tutorial/link/HostConnection.h"
#include "Tutorial/localisation/Languages.h"
#include "Tutorial/playback/Playback.h"
#include "UndoRedo/UndoHost.h"

#include <QCursor>
#include <QList>
#include <QLocalSocket>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QTimer>

#include <memory>

/// The companion as a host editor, main and an author's tool see it: one object with the calls, properties
/// and signals that they reach by name. What it does is done by its parts, each of which works without it.
///
/// There is one instance, made by main and reached through instance(). It connects to the host editor in its
/// constructor and ends the process when the link goes down or stays silent for 30 s.
///
/// Everything here runs in the main thread. Positions are global screen pixels.
class TutorialManager final : public QObject, public UndoHost
{
    Q_OBJECT
    Q_PROPERTY(bool modified READ modified WRITE setModified NOTIFY modifiedChanged)
    Q_PROPERTY(QString mimeType READ mimeType NOTIFY mimeTypeChanged)
    Q_PROPERTY(QString tutorialName READ tutorialName NOTIFY tutorialNameChanged)
    Q_PROPERTY(QString currentWindowKey READ getCurrentWindowKey NOTIFY currentWindowKeyChanged)
    Q_PROPERTY(QString locale READ locale WRITE setLocale NOTIFY localeChanged)
    Q_PROPERTY(QString locale2 READ locale2 WRITE setLocale2 NOTIFY locale2Changed)

public:
    /// Connects to the host editor whose key is the first argument of the program. With an empty key the
    /// object deletes itself when the event loop next runs, and the process stays without a link.
    ///
    /// @p translationPath gives the path of a translation source from its relative name; without it they are
    /// looked for in the resources, where nothing can be written.
    explicit TutorialManager(QObject *parent = nullptr, TranslationOutput::Resolve translationPath = {});
    ~TutorialManager() override;

    /// The one instance, or null.
    [[nodiscard]] static TutorialManager *instance();

    /// Position of a window or control as the host editor told it; (0, 0) when it has not.
    Q_INVOKABLE QPoint getXy(const QString &windowKey) { return m_playback.windows().position(windowKey); }
    /// Key of the host editor's topmost window; "ApplicationWindow" when none is open.
    Q_INVOKABLE QString getCurrentWindowKey() { return m_playback.windows().current(); }
    /// Empties the item clipboard; mimeType becomes "Empty".
    Q_INVOKABLE void clearMimeData() { m_authoring->emptyClipboard(); }
    /// Tells the host editor that an author's tool is there. Whether the link has ever been up.
    Q_INVOKABLE bool connected();
    /// Always false: this build plays lessons.
    Q_INVOKABLE bool isMakingSupported() { return false; }
    /// Copies items, folders with their children, to the item clipboard. An unknown id leaves it as it was.
    Q_INVOKABLE void copyTutorialItemList(const QList<int> &idList) { m_authoring->copyItems(idList); }
    /// Adds the items of the clipboard at the end of the document. Their new ids, in order.
    Q_INVOKABLE QList<int> pasteTutorialItemList() { return m_authoring->pasteItems(); }
    /// Ends the process with exit status 0, at once.
    Q_INVOKABLE void requestClose();
    /// Writes the document to the file that it was loaded from. Empty, or a message for the author.
    Q_INVOKABLE QString save() { return m_authoring->save(); }
    /// The list of lessons as a JSON array with translated titles; empty when it cannot be read.
    Q_INVOKABLE QString getTutorialJson() { return m_authoring->lessonList(); }
    /// Drops the document and the undo history.
    Q_INVOKABLE void unload() { m_authoring->unload(); }
    /// Hands the document over to the host editor, to be played from the item with this id; -1 is the first.
    Q_INVOKABLE void startFromId(int id) { send(m_authoring->startCommand(id)); }
    Q_INVOKABLE void startFromId() { startFromId(-1); }
    /// Loads a scenario file into the document. Empty, or one error a line.
    Q_INVOKABLE QString loadTutorial(const QString &filename) { return m_authoring->load(filename); }
    /// The mouse pointer.
    Q_INVOKABLE QPoint getCursorPos() { return QCursor::pos(); }
    /// Moves the indicator, here and in the host editor's record of the step.
    Q_INVOKABLE void updateIndicatorXyWindowKey(int x, int y, const QString &windowKey);
    /// Writes the translation sources of both locales, then the scenario. Empty, or a message for the author.
    Q_INVOKABLE QString feedbackTranslation() { return m_authoring->saveWithTranslations(); }
    /// Writes the translation sources of both locales; true if both were written.
    [[nodiscard]] bool saveTranslation() const { return m_authoring->saveTranslations(); }

    [[nodiscard]] bool modified() const { return m_authoring->modified(); }
    void setModified(bool modified) override { m_authoring->setModified(modified); }
    [[nodiscard]] QString mimeType() const { return m_authoring->mimeType(); }
    [[nodiscard]] QString tutorialName() const { return m_authoring->tutorialName(); }
    [[nodiscard]] QString locale() const { return m_languages.locale(); }
    /// Changes the language of all texts and stores it for later runs; the old one becomes locale2.
    void setLocale(const QString &locale) { m_languages.setLocale(locale); }
    [[nodiscard]] QString locale2() const { return m_languages.locale2(); }
    void setLocale2(const QString &locale) { m_languages.setLocale2(locale); }

    /// What the last undo or redo was about, for an author's tool; empty for nothing.
    [[nodiscard]] QString undoNote() const { return m_authoring->undoNote(); }
    void setUndoNote(const QString &note) override { m_authoring->setUndoNote(note); }

    /// Sends one command to the host editor; dropped without a connection.
    void send(const QString &text) { m_connection->send(text); }

Q_SIGNALS:
    /// One command of the host editor, out of its frame.
    void received(const QString &text);
    void modifiedChanged();
    /// An item that an author's tool is to jump to.
    void jumpLinkChanged(const QString &linkInfo);
    void mimeTypeChanged();
    void tutorialNameChanged();
    void localeChanged();
    void locale2Changed();
    void actionIdChanged(int actionId);
    void currentWindowKeyChanged();

public Q_SLOTS:
    void onApplicationStateChanged(Qt::ApplicationState state) { m_playback.setApplicationState(state); }
    /// Runs one command of the host editor; an unknown word is ignored.
    void onReceived(const QString &text) { m_commands.run(text); }
    void onReadyRead() { m_connection->onReadyRead(); }
    void onConnected() { m_connection->onConnected(); }
    void onDisconnected() { m_connection->onDisconnected(); }
    void onTimerTimeout();
    void onStateChanged(QLocalSocket::LocalSocketState socketState)
    {
        m_connection->onStateChanged(socketState);
    }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void connectParts();

    Playback m_playback;
    Languages m_languages;
    std::unique_ptr<AuthoringCalls> m_authoring;
    std::unique_ptr<HostConnection> m_connection;
    CommandTable m_commands;
    QString m_pendingJumpLink;
    QTimer m_timer;
};
