#pragma once

#include "author/LessonRecord.h"
#include "lesson/EditorEvent.h"
#include "lesson/description/DescriptionSet.h"

#include <QObject>

class HostEditor;

/// Writes down what an author does in the editor as the steps of a lesson: one for each thing that was done,
/// with what of all that came of it a step waits for.
///
/// It is told of the author's hand by press() and type(), and hears from the editor what happens.
class Recorder : public QObject
{
    Q_OBJECT

public:
    enum class Press { kClick, kDoubleClick, kRightClick };
    enum class Keys { kText, kOther };

    /// @p editor stays the caller's and outlives this.
    Recorder(HostEditor *editor, DescriptionSet windows, const LessonRecord &record,
             QObject *parent = nullptr);

    /// A mouse button went down at @p place, global screen pixels; the second press of a double click too.
    void press(Press kind, const QPoint &place);
    /// A key was struck: one that writes text, or any other, which is a step only if something came of it.
    void type(Keys keys = Keys::kText);
    /// What was done last has come to its end.
    void finish();

    [[nodiscard]] const LessonRecord &record() const { return m_record; }

Q_SIGNALS:
    /// The lesson has a step more, and stands in its files.
    void recorded(const RecordedStep &step);
    /// The files cannot be written.
    void problemFound(const QString &problem);

private:
    void hear(const EditorEvent &event);
    void add(const RecordedStep &step);
    /// Key of the window that has the keyboard.
    [[nodiscard]] QString keyboardWindow() const;
    [[nodiscard]] RecordedStep stepAt(const QPoint &place) const;
    /// The control itself is where the step points, if it was used through something that stands for it, such
    /// as an entry of the menu bar.
    void pointAt(const ControlSpot &spot);
    [[nodiscard]] bool pointsAt(const ControlSpot &spot) const;

    HostEditor *m_editor;
    DescriptionSet m_windows;
    LessonRecord m_record;
    /// What is being done; its condition is empty until something came of it.
    std::optional<RecordedStep> m_step;
    int m_rank = 0;
    /// Text was typed in it.
    bool m_hasText = false;
};
