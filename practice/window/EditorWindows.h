#pragma once

#include "host/HostEditor.h"
#include "project/PlayWords.h"
#include "project/SoundWords.h"
#include "project/events/EventPlace.h"

#include <QMap>

#include <functional>

class QWidget;

/// What the rest of the practice editor knows of its windows, beside what any host editor tells a lesson. The
/// windows themselves are built from descriptions; nothing outside this folder sees a widget.
class EditorWindows : public HostEditor
{
    Q_OBJECT

public:
    using HostEditor::HostEditor;

    /// Opens the window with this key, or raises it when it is open. False when no description has the key.
    virtual bool open(const QString &windowKey) = 0;

    /// Closes the window if it is open.
    virtual void close(const QString &windowKey) = 0;
    /// Closes all but the main window.
    void closeDialogs()
    {
        const QStringList open = openWindows();
        for (int i = open.size() - 1; i > 0; --i) {
            close(open.at(i));
        }
    }

    /// Takes @p strip over and shows it in the main window, below the contents, as wide as they are and as
    /// high as its size hint. It stays of use while a dialog is open.
    virtual void dock(QWidget *strip) = 0;

    /// Where no control leads a person back to the lesson, the arrow points at this button.
    virtual void setPutBackButton(QWidget *button) = 0;

    /// A button of the companion was pressed: the window on top gets the focus, and what the person presses
    /// in the editor for a moment is the rest of a double click and not meant for it.
    virtual void takeFocusBack() = 0;

    /// Whether somebody else shows what hovered() tells: then no tool tips of the toolkit show.
    virtual void setTipsShownElsewhere(bool shown) = 0;

    /// Nobody is there to ask: what is not saved is dropped without a question.
    virtual void setUnattended(bool unattended) = 0;

    /// How the window is called in the person's language; empty when no description has the key, or no title.
    [[nodiscard]] virtual QString title(const QString &windowKey) const = 0;

    /// Offers @p folder as the place of projects.
    virtual void setProjectsFolder(const QString &folder) = 0;

    /// Gives the open project these data files, path inside the project to text, in place of its own. False
    /// when that cannot be done, which problemFound() tells the person.
    virtual bool replaceFiles(const QMap<QString, QString> &files) = 0;

    /// Hands in who plays the project when the person asks for it: the buttons for it are of use from here
    /// on. The windows stay as they are meanwhile, and of use.
    virtual void setPlayer(const PlayWords::Play &play) = 0;
    /// Hands in who lets sounds be heard while they are chosen; it outlives the windows, or nullptr is handed
    /// in before it goes.
    virtual void setSoundListener(SoundListener *listener) = 0;
    /// Lets the project be played as it stands, as its button does; nothing happens while none is open.
    virtual void play() = 0;
    /// The window in which the project is played, once it is shown: where it lies over what a lesson points
    /// at, it is to be closed. @p leaveRect gives, in global pixels, where in it a click leaves the game;
    /// nothing while there is no room for that.
    virtual void setPlayWindow(QWidget *window, const std::function<std::optional<QRect>()> &leaveRect) = 0;
    /// What was played is over, which a lesson may wait for.
    virtual void tellPlayed() = 0;
    /// Shows a place among the event commands, ready to be changed. False when there is no such place any
    /// more, or a dialog is open.
    virtual bool showPlace(const EventPlace &place) = 0;

    /// Full path of the open project's folder; empty while none is open.
    [[nodiscard]] virtual QString projectFolder() const = 0;

Q_SIGNALS:
    /// What is played is to end.
    void playEndAsked();

    /// What was open is gone: another project is open now, none, or the same one with other files.
    void projectLeft();

    /// The person has made a new project, which is open; its folder is called @p name.
    void projectCreated(const QString &name);

    /// Something that the person asked for cannot be done; @p text says what, why and how to mend it.
    void problemFound(const QString &text);

    /// The person closed the main window: the editor is to end.
    void mainWindowClosed();
};
