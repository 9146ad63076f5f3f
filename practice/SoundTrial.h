#pragma once

#include "player/sound/Loudspeaker.h"
#include "project/SoundWords.h"

#include <QObject>

class EditorWindows;

/// Lets music and sounds be heard while the person chooses them, as a game would play them. It falls silent
/// when their window closes.
class SoundTrial : public QObject, public SoundListener
{
    Q_OBJECT

public:
    using Make = std::function<std::unique_ptr<player::Loudspeaker>()>;

    /// @p windows ask for it and outlive this. @p make is called once, when it is first of interest.
    explicit SoundTrial(EditorWindows *windows, Make make = &player::Loudspeaker::make);
    ~SoundTrial() override;

    [[nodiscard]] bool canBeHeard() override;
    [[nodiscard]] bool isPlaying() const override { return m_isPlaying; }
    void listen(const QString &kind, const QJsonValue &sound) override;
    void stop() override;

private:
    EditorWindows *m_windows;
    Make m_make;
    /// nullptr where nothing can be heard.
    std::unique_ptr<player::Loudspeaker> m_loudspeaker;
    bool m_isPlaying = false;
};
