#pragma once

#include "lesson/description/WindowDescription.h"
#include "window/EditorWindow.h"

#include <functional>
#include <memory>
#include <utility>

class MapPainter;
class QAbstractButton;
class RowText;

/// What the controls of all windows share; the pointers outlive the windows.
struct ControlContext
{
    Project *project;
    MapPainter *painter;
    QString locale;
};

/// Makes the control that a description has told of, as a child of the window. The window owns it.
using ControlMaker = std::function<QWidget *(EditorWindow *window)>;

/// What there is to choose from at present.
using Rows = std::function<QVector<Row>(const EditorWindow *window)>;

/// Reads what a description says of one control. Each thing that is wrong is one line in the list of errors,
/// with file, place and mend.
class ControlReader
{
public:
    /// All of them outlive the reader.
    ControlReader(const ControlDescription *description, const ControlContext *context, QStringList *errors);

    [[nodiscard]] const ControlDescription &description() const { return *m_description; }
    [[nodiscard]] const ControlContext &context() const { return *m_context; }
    /// The fields that are the type's own.
    [[nodiscard]] JsonReader &json() { return m_json; }

    /// The required fields: an error when absent or of no use.
    [[nodiscard]] QString label();
    [[nodiscard]] QString field();
    [[nodiscard]] QString source();
    [[nodiscard]] int rowHeight();
    [[nodiscard]] QVector<int> tabWidths();
    void readAction();
    /// What there is to choose from: "choices", or a "source" with the text of its rows in "rowText" and,
    /// where
    /// @p hasNone, a first row for the number 0 in "none".
    [[nodiscard]] Rows rows(bool hasNone);
    /// What the control shows while the member of its field is missing: "missing"; undefined for nothing.
    [[nodiscard]] QJsonValue missing() { return m_json.value(QStringLiteral("missing")); }
    /// The text of a row in "rowText"; nullptr where there is none.
    [[nodiscard]] std::shared_ptr<const RowText> rowText();
    [[nodiscard]] bool hasChoices() const { return has(QStringLiteral("choices")); }

    [[nodiscard]] bool has(const QString &field) const { return m_json.has(field); }

    /// Adds an error when @p value, which stands in @p field, is none of @p allowed.
    void oneOf(const QString &field, const QString &value, const QStringList &allowed);

    /// The control is grey where @p isOfUse says so, whatever else its description has about that.
    void enableWhen(std::function<bool(const EditorWindow *window)> isOfUse)
    {
        m_isOfUse = std::move(isOfUse);
    }
    [[nodiscard]] const std::function<bool(const EditorWindow *window)> &isOfUse() const { return m_isOfUse; }

    /// Adds an error for each field that no control of this type has, and for what it does or requires with
    /// names that the editor does not know.
    void finish();

private:
    void require(const QString &field, bool isThere);
    [[nodiscard]] Rows choices();
    void checkCommands();
    void checkRequirements(const QString &place, const QVector<ControlRequirement> &requirements);

    const ControlDescription *m_description;
    const ControlContext *m_context;
    JsonReader m_json;
    QStringList m_taken;
    std::function<bool(const EditorWindow *window)> m_isOfUse;
};

/// Runs @p refresh now and whenever the window is to show what there is, as long as @p widget lives. One that
/// is away waits until it is there.
template<typename Refresh>
void keepFresh(QWidget *widget, EditorWindow *window, Refresh refresh)
{
    QObject::connect(window, &EditorWindow::refreshed, widget, [widget, window, refresh] {
        if (!window->isAway(widget)) {
            refresh();
        }
    });
    refresh();
}

/// Runs @p settle when @p widget came up in the place of another control, by what the person changed: its
/// field has to get a value that it can show, for the person sees none else.
template<typename Settle>
void settleWhenComing(QWidget *widget, EditorWindow *window, Settle settle)
{
    QObject::connect(window, &EditorWindow::cameUp, widget, [widget, settle](const QWidget *coming) {
        if (coming == widget) {
            settle();
        }
    });
}

/// The value of a field as it would stand in a data file; undefined where there is none.
[[nodiscard]] QJsonValue fieldValue(const EditorWindow *window, const QString &field);
/// The same, with @p missing in place of nothing.
[[nodiscard]] QJsonValue fieldValue(const EditorWindow *window, const QString &field,
                                    const QJsonValue &missing);

/// The first of @p rows that is chosen when @p value stands in a field; -1 for none.
[[nodiscard]] int rowWith(const QVector<Row> &rows, const QJsonValue &value);

/// Carries out what a click on the button does and reports the action, if it is one.
void wireClick(QAbstractButton *button, const ControlDescription &description, EditorWindow *window);
