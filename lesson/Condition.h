#pragma once

#include <QString>
#include <QStringList>

#include <optional>

struct EditorEvent;

/// What ends a step of a lesson, read once from the lesson's words: "type,target,value".
///
/// Three kinds end in three ways. kNext and kYesNo wait for a button of the companion, kWait for the clock,
/// all others for an event of the windows. An empty value of an action accepts any.
class Condition
{
public:
    enum class Type {
        kNext,
        kYesNo,
        kWait,
        kWindowState,
        kList,
        kAction,
        kTabView,
        kSpinBox,
        kComboBox,
        kChecked,
        kPopup,
        kMouseEvent,
        kMenuEvent,
        kRadioButton,
        kPressed,
        kTextLength,
    };

    static constexpr int kDefaultWaitMs = 1000;

    /// Reads the condition of an item. Nothing for words that are none: then @p problem, where given, gets a
    /// sentence that says what is wrong and shows the form. Empty words are the default of the field and mean
    /// kNext.
    [[nodiscard]] static std::optional<Condition> parse(const QString &text, QString *problem = nullptr);

    /// The first word of a condition's text, whatever follows it and whether it is a condition or not.
    [[nodiscard]] static QString wordOf(const QString &text);

    [[nodiscard]] Type type() const { return m_type; }
    [[nodiscard]] QString target() const { return m_target; }
    [[nodiscard]] QString value() const { return m_value; }

    /// Whether it is about a control, so that what counts is what happens in the window of the step.
    [[nodiscard]] bool isOfControl() const;

    /// How long a kWait lasts: the number in "wait,<milliseconds>", or kDefaultWaitMs.
    [[nodiscard]] int waitMs() const;

    /// Whether the event is what the condition waits for in a step of the window @p windowKey. What a control
    /// of a window reports counts only in that window; the keys "" and "ApplicationWindow" take any window.
    [[nodiscard]] bool isMetBy(const EditorEvent &event, const QString &windowKey) const;

    /// Whether the condition is true already as the windows stand: only kWindowState can be. A step that asks
    /// for a window that is open (or gone) has nothing left to wait for.
    [[nodiscard]] bool holds(const QStringList &openWindows) const;

private:
    Condition() = default;

    Type m_type = Type::kNext;
    QString m_target;
    QString m_value;
};
