#pragma once

#include "host/EditorState.h"
#include "host/WindowTrail.h"

#include <optional>

class HostEditor;

/// What there was in the editor when a step was reached: the measure of whether the person has strayed, and
/// what can be brought back.
struct StepStart
{
    EditorState state;
    OpenWindows open;
    QHash<QString, ControlSpot> lastCauses;
    QString project;
    QString dataMark;
    /// What using the control that the step points at meant.
    QString meaning;
    QVector<ControlSpot> chosen;
    /// The same of what the open windows and the menus before them were opened with, by their names.
    QHash<QString, QString> openingMeanings;
    /// What wrong moves of earlier steps had left and nobody had chosen again.
    QVector<ControlSpot> leftBehind;

    static StepStart of(const HostEditor &editor, const WindowTrail &trail,
                        const std::optional<ControlSpot> &pointed);

    /// A step that begins astray, as the person has left @p needed, the window of the step, since @p before:
    /// the windows are to be opened as they were there.
    void takeWindows(const StepStart &before, const QString &needed);

    /// What another run needs of it: the state, how the windows came up, and what was left behind.
    [[nodiscard]] QJsonObject toJson() const;
    static StepStart fromJson(const QJsonObject &json);
};
