#pragma once

#include <QObject>

class EditorWindow;
class QKeyEvent;
class QPushButton;

/// The context menu that is open, if one is. A menu takes no activation, so that the windows of another
/// program stay usable; its keys reach it through whichever window of the editor has them.
class OpenPopup : public QObject
{
    Q_OBJECT

public:
    /// What stands for any open context menu among the open windows.
    static QString stackEntry() { return QStringLiteral("Popup"); }

    explicit OpenPopup(QObject *parent = nullptr);

    /// nullptr when none is open.
    [[nodiscard]] EditorWindow *window() const { return m_popup; }

    /// Shows @p popup with its corner at @p corner, in screen pixels, in place of the one that is open.
    void open(EditorWindow *popup, const QPoint &corner);
    void close();
    /// Takes it away as another program that becomes active does. Does nothing when none is open.
    void abandon();

Q_SIGNALS:
    /// It was closed, or an entry was chosen.
    void closed();
    /// It went away because another program became the active one, or was used.
    void abandoned();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A window manager that is late shows a menu that has gone, unseen, and it takes the clicks.
    static void takeAwayAgain(QWidget *widget);
    void takeAway();
    [[nodiscard]] QVector<QPushButton *> entries() const;
    /// Marks the entry that the return key chooses.
    void mark(QPushButton *entry);
    void markNext(int step);
    void takeKey(const QKeyEvent &event);

    EditorWindow *m_popup = nullptr;
    QPushButton *m_marked = nullptr;
};
