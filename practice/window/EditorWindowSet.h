#pragma once

#include "window/EditorGround.h"
#include "window/EditorWindow.h"
#include "window/GuidedWindows.h"
#include "window/InputBlock.h"
#include "window/LeaveQuestion.h"
#include "window/MenuKey.h"
#include "window/OpenPopup.h"
#include "window/SecondClick.h"
#include "window/WindowBuilder.h"
#include "window/WindowPlaces.h"

#include <QHash>

#include <memory>

/// All windows of the editor, and what is open of them. The windows exist from the start and are shown and
/// hidden; the set owns them and the project behind them.
class EditorWindowSet : public GuidedWindows
{
    Q_OBJECT

public:
    /// Builds the windows described in @p folder with the texts of @p locale, English where that is not one
    /// of the three. Gives nullptr and adds a line to @p errors for each thing that is wrong with a file;
    /// each names the file, the place and the mend.
    static std::unique_ptr<EditorWindowSet> create(const QString &locale, QStringList *errors,
                                                   const QString &folder = QStringLiteral(":/descriptions"));
    ~EditorWindowSet() override;

    bool open(const QString &windowKey) override;
    void close(const QString &windowKey) override;
    [[nodiscard]] QStringList openWindows() const override;
    [[nodiscard]] std::optional<QPoint> origin(const QString &windowKey) const override
    {
        return m_places.origin(windowKey);
    }
    [[nodiscard]] QStringList openedFrom(const QString &windowKey) const override
    {
        return m_ground.descriptions.openedFrom(windowKey);
    }
    void takeFocusBack() override;
    void dock(QWidget *strip) override { m_frame->dock(strip); }
    void setUnattended(bool unattended) override { m_isUnattended = unattended; }
    [[nodiscard]] QString title(const QString &windowKey) const override;
    [[nodiscard]] QRect screenRect() const override { return m_places.screen(); }
    [[nodiscard]] QSize applicationSize() const override { return m_main->size(); }

    void setProjectsFolder(const QString &folder) override;
    void setPlayer(const PlayWords::Play &play) override;
    void setSoundListener(SoundListener *listener) override;
    void play() override;
    void tellPlayed() override;
    bool replaceFiles(const QMap<QString, QString> &files) override;
    [[nodiscard]] QString projectFolder() const override { return m_ground.project->files().folder(); }

    [[nodiscard]] Project *project() { return m_ground.project.get(); }

    /// The window, part or (by its name) context menu; nullptr when there is none. Owned by the set.
    [[nodiscard]] EditorWindow *window(const QString &keyOrPopup) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    EditorWindowSet(EditorGround ground, WindowBuilder::Windows windows);

    void wire(EditorWindow *window);
    void wireEditor();
    /// Opens the window, in which what @p action begins is run.
    bool openWith(const QString &windowKey, const ControlAction &action);
    void closeTop();
    /// Lets @p window, the topmost one, keep all others from being used.
    void setTop(EditorWindow *window);
    void showPopup(const QString &name, const QPoint &position);
    void updateVisible();
    void updateTitle();
    void onAsked(EditorWindow *window, const ControlAction &action, const QPoint &position,
                 const ControlSpot &cause);
    /// As a lesson knows it: the entries of all context menus stand in one window.
    [[nodiscard]] ControlSpot toldSpot(const ControlSpot &spot) const;
    void onCloseRequested(const QString &key);
    /// Goes on with @p leave when nothing is lost by it, or the person wants it so; asks above @p window.
    void askToLeave(EditorWindow *window, const std::function<void()> &leave);
    void tellState(const QString &key, const char *state);

    EditorGround m_ground;
    std::unique_ptr<MainFrame> m_frame;
    /// The contents of the frame.
    EditorWindow *m_main;
    /// Windows and parts by key, context menus by name.
    QHash<QString, EditorWindow *> m_windows;
    QStringList m_stack;
    MenuKey m_menuKey;
    InputBlock m_block;
    OpenPopup m_popup;
    /// Behind the popup, whose keys it has to see.
    SecondClick m_secondClick;
    WindowPlaces m_places;
    LeaveQuestion m_question;
    /// Through which control windows open and close just now.
    ControlSpot m_cause;
    bool m_isUnattended = false;
    bool m_visible = false;
};
