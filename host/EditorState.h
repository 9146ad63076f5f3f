#pragma once

#include <QJsonObject>

/// All of an editor that a lesson can change, as a value: the project's data, the open windows with what was
/// typed into them, what is selected, the tool in the hand. Only the editor knows what stands in it.
class EditorState
{
public:
    /// That of an editor that does not give its state away.
    EditorState() = default;

    [[nodiscard]] bool isEmpty() const { return m_json.isEmpty(); }
    [[nodiscard]] QJsonObject toJson() const { return m_json; }
    static EditorState fromJson(const QJsonObject &json)
    {
        EditorState state;
        state.m_json = json;
        return state;
    }

    bool operator==(const EditorState &other) const { return m_json == other.m_json; }
    bool operator!=(const EditorState &other) const { return !(*this == other); }

private:
    QJsonObject m_json;
};
