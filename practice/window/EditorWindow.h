#pragma once

#include "lesson/EditorEvent.h"
#include "lesson/description/WindowDescription.h"
#include "project/Project.h"

#include <QMap>
#include <QSet>
#include <QTimer>
#include <QWidget>

#include <vector>

class QPushButton;

/// One window, part of a window or context menu, with its controls. It shows and changes what stands in its
/// layer of the project, and reports what the person does and what the controls ask for; it opens and closes
/// nothing itself.
class EditorWindow : public QWidget
{
    Q_OBJECT

public:
    /// @p project outlives the window. @p flags of the top level window, which keeps its size; without any it
    /// is a part of @p parent.
    EditorWindow(const QString &key, const QSize &size, Project *project, QWidget *parent,
                 Qt::WindowFlags flags);

    /// Gives @p widget the font that the sizes in the descriptions are made for, whatever the desktop's is.
    static void takePixelFont(QWidget *widget);

    [[nodiscard]] QString key() const { return objectName(); }
    [[nodiscard]] Project &project() const { return *m_project; }

    /// Puts a control, which is a child of the window already, at its place.
    void add(QWidget *control, const ControlDescription &description);
    /// Puts a child at its place, from where it follows the window's size.
    void place(QWidget *child, const QRect &geometry, const Stretch &stretch);
    /// Names of the controls with their places in this window, in pixels.
    [[nodiscard]] QVector<QPair<QString, QPoint>> controlPlaces() const;

    /// What the window shows and changes. The project itself at first; never one that is gone.
    [[nodiscard]] DataLayer &layer() const { return *m_layer; }
    /// @p isOwn: a draft that began with the window, whose changes its keys undo.
    void setLayer(DataLayer *layer, bool isOwn = false)
    {
        m_layer = layer;
        m_hasOwnLayer = isOwn;
    }

    /// Nothing is changed while the window is hidden or blocked: a number that was half typed when it closed
    /// is rounded when the focus leaves it, and must not get into the project that way.
    [[nodiscard]] QVariant field(const QString &name) const;
    void setField(const QString &name, const QVariant &value);
    /// Gives the field what @p row stands for, as Fields::choose() does.
    void choose(const QString &name, const Row &row);
    [[nodiscard]] QVector<Row> rows(const QString &source) const;
    [[nodiscard]] int currentRow(const QString &source) const;
    void setCurrentRow(const QString &source, int row);
    /// @p command may have an argument; @p entry is what it adds to a list.
    void run(const QString &command, const QJsonValue &entry = QJsonValue(QJsonValue::Undefined));

    /// A control of this window, or a row, tab or cell in it, as the cause of what it does.
    [[nodiscard]] ControlSpot spot(const QString &control, int part = -1) const
    {
        return {key(), control, part};
    }
    /// Passes on what a control did: called by the controls. @p screenPosition is where the mouse was.
    void report(const QString &type, const QString &target, const QString &value,
                const ControlSpot &cause = {});
    /// Passes on that a control was used of which no event tells.
    void tellUse(const ControlSpot &cause) { Q_EMIT asked({}, {}, cause); }
    /// Whether all of these hold at present.
    [[nodiscard]] bool meets(const QVector<ControlRequirement> &requirements) const;
    /// What happens at present when a control does @p action: itself, what it has in its place, or nothing.
    [[nodiscard]] const ControlAction *chosen(const ControlAction &action) const;
    void act(const ControlAction &action, const QPoint &screenPosition, const ControlSpot &cause = {});
    /// What act() does once nothing is lost by it.
    void carryOut(const ControlAction &action, const QPoint &screenPosition, const ControlSpot &cause);

    /// Controls take turns: what is away is not seen and need not be kept fresh.
    void setAway(QWidget *control, bool isAway);
    [[nodiscard]] bool isAway(const QWidget *control) const { return m_away.contains(control); }
    /// The field that a person changes just now; empty for none.
    [[nodiscard]] const QString &changing() const { return m_changing; }
    /// Tells of @p control, once it shows what there is, that it came up in the place of another one: what
    /// stands in its field may have meant something else. See cameUp().
    void tellOfComing(QWidget *control) { m_coming.append(control); }
    /// Keeps what stands in the field of @p control, which goes by that: if the person brings it back while
    /// the window is open, it has that again.
    void tellOfGoing(const QWidget *control, const QString &fieldName);
    /// What a control that has come up is to put into its field: what it had there before; nothing where
    /// another one had the field, and where nobody had.
    struct Return
    {
        std::optional<QVariant> value;
        /// What stands in the field is the other one's.
        bool isOthers = false;
    };
    [[nodiscard]] Return returnOf(const QWidget *control, const QString &fieldName) const;

    /// While a window above keeps this one from being used, its controls do nothing, however they are
    /// pressed: mouse and keys do not get here, but those who have the window read to them can.
    void setBlocked(bool isBlocked) { m_isBlocked = isBlocked; }
    [[nodiscard]] bool isBlocked() const { return m_isBlocked; }

    /// The button that the return key presses.
    void setDefaultButton(QPushButton *button);
    /// Gives the focus to the first control that a person fills in or chooses from, all of its text selected.
    void focusFirst();
    /// That is this one, where it is there.
    void setFirstControl(const QWidget *control) { m_firstControl = control; }

    /// Lets the window do @p action by itself @p ms after it came up; until then nobody can close it.
    void setTimedAction(int ms, const ControlAction &action);
    [[nodiscard]] bool hasTimedAction() const { return m_timer.interval() > 0; }

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

Q_SIGNALS:
    /// Controls that take turns are to come and go, ahead of what those that are there show.
    void arranged();
    /// The controls are to show what there is now: the project changed, or the window comes up. A window that
    /// nobody sees waits until then.
    void refreshed();
    /// The person changed what @p control depends on, and it came up by that.
    void cameUp(QWidget *control);
    /// The controls have followed the window to another size.
    void laidOut();
    /// Something that a condition may wait for, in its words.
    void happened(const QString &type, const QString &target, const QString &value, const ControlSpot &cause);
    /// A control was used that closes or opens something; its commands have run already.
    void asked(const ControlAction &action, const QPoint &screenPosition, const ControlSpot &cause);
    /// A control was used that would drop what was not saved. Nothing has happened so far: carryOut() does
    /// it.
    void leaveAsked(const ControlAction &action, const QPoint &screenPosition, const ControlSpot &cause);
    /// The frame's close button or the escape key was used. The window is still open.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    /// Besides Enter and Esc: Ctrl+Tab and Ctrl+Shift+Tab go through the first row of tabs.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void focusFirstOf(const QVector<QWidget *> &controls);
    /// The key goes to another tab.
    bool changesTab(const QKeyEvent &event);
    void refresh();
    [[nodiscard]] bool isOfUse() const { return isVisible() && !m_isBlocked; }

    struct Placed
    {
        QWidget *widget;
        QRect geometry;
        Stretch stretch;
    };

    Project *m_project;
    DataLayer *m_layer;
    bool m_hasOwnLayer = false;
    /// As described.
    QSize m_size;
    QVector<QWidget *> m_controls;
    QSet<const QWidget *> m_away;
    QString m_changing;
    QVector<QWidget *> m_coming;
    /// What stood in the fields of controls that have gone, by control and place in the data; and the places
    /// of those that have gone last.
    QMap<QPair<const QWidget *, QString>, QVariant> m_gone;
    QSet<QString> m_placesLeft;
    [[nodiscard]] QString placeOf(const QString &fieldName) const;
    /// Of the controls that take turns: those that have come last, and whether one with the focus has gone.
    QVector<QWidget *> m_shown;
    bool m_hidesFocus = false;
    std::vector<Placed> m_placed;
    QPushButton *m_defaultButton = nullptr;
    const QWidget *m_firstControl = nullptr;
    QTimer m_timer;
    bool m_isToBeSeen = false;
    bool m_isBlocked = false;
};
