#pragma once

#include "SampleEditor.h"

/// What a person does to the events of the first map of the sample, with the mouse.
namespace EventHands {

/// A cell of the first map that holds no event.
constexpr QPoint kFree{2, 7};

inline void begin(SampleEditor &editor)
{
    editor.click("MainWindow", "modeEvent");
    editor.takeTold();
}

inline QPoint centreOf(const QPoint &cell)
{
    return cell * 32 + QPoint(16, 16);
}

inline void clickCell(const SampleEditor &editor, const QPoint &cell, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(editor.map(), button, {}, centreOf(cell));
}

inline void openCell(const SampleEditor &editor, const QPoint &cell)
{
    clickCell(editor, cell);
    QTest::mouseDClick(editor.map(), Qt::LeftButton, {}, centreOf(cell));
}

inline QJsonArray events(const SampleEditor &editor)
{
    return editor.value("Map001", "/events").toArray();
}

} // namespace EventHands
