#pragma once

#include <QString>

/// A control of the editor, or a row, tab or cell in it: what a step of a lesson points at, and what a person
/// acts on.
struct ControlSpot
{
    /// Key under which the control is described: of its window, of the part of a window that it stands in, or
    /// "Menu" for an entry of a context menu. Empty for no control at all.
    QString windowKey;
    /// Its name, "<menu>/<entry>" in a context menu. "@dismiss" is whatever leaves the window as if nothing
    /// had been done there: the escape key and the close button of its frame.
    QString control;
    /// Number of the row, tab or cell (see cell()); -1 for the control as a whole.
    int part = -1;

    [[nodiscard]] static QString dismiss() { return QStringLiteral("@dismiss"); }
    /// The part that a cell of a map is; no map has more columns.
    [[nodiscard]] static int cell(int column, int row) { return row * kColumns + column; }
    [[nodiscard]] static int columnOf(int cell) { return cell % kColumns; }
    [[nodiscard]] static int rowOf(int cell) { return cell / kColumns; }

    [[nodiscard]] bool isNone() const { return windowKey.isEmpty() && control.isEmpty(); }
    [[nodiscard]] bool isSameControl(const ControlSpot &other) const
    {
        return windowKey == other.windowKey && control == other.control;
    }
    /// Whether both are the same as far as they say: a control as a whole is any part of it.
    [[nodiscard]] bool isLike(const ControlSpot &other) const
    {
        return isSameControl(other) && (part == other.part || part < 0 || other.part < 0);
    }

    bool operator==(const ControlSpot &other) const { return isSameControl(other) && part == other.part; }
    bool operator!=(const ControlSpot &other) const { return !(*this == other); }

private:
    static constexpr int kColumns = 256;
};
