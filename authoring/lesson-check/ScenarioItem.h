#pragma once

#include "lesson/LessonWords.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One item of a scenario file as it stands there, nothing resolved.
struct ScenarioItem
{
    int line = 0; ///< of the item's opening brace, counted from 1
    int id = -1;
    QString name;
    bool folder = false;
    int translationId = -1;
    int x = 0; ///< pixels, relative to the contents of the window, of the bubble's top left corner
    int y = 0;
    QString windowKey;
    QString condition;
    int hint = -1; ///< the number N of qsTr("#N")
    QString icon;
    int jump = -1;
    int jumpNo = -1;
    QString command;
    bool showArrow = true;
    bool prohibited = false;
    QStringList unread; ///< names of the fields that are missing or cannot be read; their values mean nothing

    [[nodiscard]] bool isRead(const char *field) const { return !unread.contains(QLatin1String(field)); }

    /// Whether the step points at nothing.
    [[nodiscard]] bool hasNoPosition() const
    {
        return x == LessonWords::kNoPosition && y == LessonWords::kNoPosition;
    }
};

using ScenarioItems = QVector<ScenarioItem>;
