#include "project/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <algorithm>

namespace {

/// A value in a text that is known to be sound, with the places of its parts.
struct Node
{
    int begin = 0;
    int end = 0;

    struct Part
    {
        /// Where the member's key, or the element, begins; and where the value ends.
        int begin = 0;
        int end = 0;
        /// The place of its value in the nodes of the text.
        int value = 0;
        QString key;
    };
    QVector<Part> parts;
};

class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_text(text)
    {
        // A byte order mark may stand before the value.
        while (m_at < m_text.size() && m_text.at(m_at) != '[' && m_text.at(m_at) != '{') {
            ++m_at;
        }
        scanValue();
    }

    /// The first one is the whole value.
    QVector<Node> nodes;

private:
    int scanValue()
    {
        const int number = int(nodes.size());
        nodes.append(Node());
        const int begin = m_at;
        QVector<Node::Part> parts;
        const char first = m_text.at(m_at);
        if (first == '{' || first == '[') {
            parts = scanParts(first == '{');
        } else if (first == '"') {
            skipString();
        } else {
            while (m_at < m_text.size() && !isEnd(m_text.at(m_at))) {
                ++m_at;
            }
        }
        nodes[number] = {begin, m_at, parts};
        return number;
    }

    QVector<Node::Part> scanParts(bool isObject)
    {
        QVector<Node::Part> parts;
        ++m_at;
        skipBlanks();
        while (m_text.at(m_at) != '}' && m_text.at(m_at) != ']') {
            Node::Part part;
            part.begin = m_at;
            if (isObject) {
                skipString();
                part.key = QJsonDocument::fromJson('[' + m_text.mid(part.begin, m_at - part.begin) + ']')
                               .array()
                               .at(0)
                               .toString();
                skipBlanks();
                ++m_at; // the colon
                skipBlanks();
            }
            part.value = scanValue();
            part.end = m_at;
            parts.append(part);
            skipBlanks();
            if (m_text.at(m_at) == ',') {
                ++m_at;
                skipBlanks();
            }
        }
        ++m_at;
        return parts;
    }

    void skipString()
    {
        for (++m_at; m_text.at(m_at) != '"'; ++m_at) {
            if (m_text.at(m_at) == '\\') {
                ++m_at;
            }
        }
        ++m_at;
    }

    void skipBlanks()
    {
        while (m_at < m_text.size() && isBlank(m_text.at(m_at))) {
            ++m_at;
        }
    }

    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
    static bool isEnd(char c) { return isBlank(c) || c == ',' || c == '}' || c == ']'; }

    const QByteArray &m_text;
    int m_at = 0;
};

class Rewriter
{
public:
    explicit Rewriter(const QByteArray &text)
        : m_text(text)
        , m_nodes(Scanner(text).nodes)
    {
    }

    [[nodiscard]] QByteArray whole(const QJsonValue &old, const QJsonValue &wanted) const
    {
        return between(0, m_nodes.at(0).begin) + rewrite(0, old, wanted) +
               between(m_nodes.at(0).end, int(m_text.size()));
    }

private:
    /// A part that stays or comes, and what stands before it: blanks, and the comma where it has been there.
    struct Piece
    {
        QByteArray ahead;
        QByteArray text;
    };

    [[nodiscard]] QByteArray between(int begin, int end) const { return m_text.mid(begin, end - begin); }

    [[nodiscard]] QByteArray rewrite(int number, const QJsonValue &old, const QJsonValue &wanted) const
    {
        const Node &node = m_nodes.at(number);
        if (old == wanted) {
            return between(node.begin, node.end);
        }
        if (old.isObject() && wanted.isObject()) {
            return join(node, membersOf(node, old.toObject(), wanted.toObject()));
        }
        if (old.isArray() && wanted.isArray()) {
            return join(node, elementsOf(node, old.toArray(), wanted.toArray()));
        }
        return JsonText::compact(wanted);
    }

    [[nodiscard]] QVector<Piece> membersOf(const Node &node, const QJsonObject &old,
                                           const QJsonObject &wanted) const
    {
        QVector<Piece> pieces;
        for (int i = 0; i < node.parts.size(); ++i) {
            const Node::Part &part = node.parts.at(i);
            // Of two members with one key only the last counts.
            if (wanted.contains(part.key) && isLastOfItsKey(node, i)) {
                const int value = m_nodes.at(part.value).begin;
                pieces.append(
                    {ahead(node, i), between(part.begin, value) +
                                         rewrite(part.value, old.value(part.key), wanted.value(part.key))});
            }
        }
        for (auto member = wanted.begin(); member != wanted.end(); ++member) {
            if (!old.contains(member.key())) {
                pieces.append({aheadOfNew(node), JsonText::compact(member.key()) + colonOf(node) +
                                                     JsonText::compact(member.value())});
            }
        }
        return pieces;
    }

    [[nodiscard]] QVector<Piece> elementsOf(const Node &node, const QJsonArray &old,
                                            const QJsonArray &wanted) const
    {
        // What is the same from both ends stays where it is, so that one more element moves the others on.
        const int oldSize = int(old.size());
        const int size = int(wanted.size());
        const int shorter = qMin(oldSize, size);
        int front = 0;
        while (front < shorter && old.at(front) == wanted.at(front)) {
            ++front;
        }
        int back = 0;
        while (back < shorter - front && old.at(oldSize - 1 - back) == wanted.at(size - 1 - back)) {
            ++back;
        }
        QVector<Piece> pieces;
        for (int i = 0; i < size; ++i) {
            const bool isBack = i >= size - back;
            const int from = isBack ? i - size + oldSize : i;
            if (isBack || from < oldSize - back) {
                const Node::Part &part = node.parts.at(from);
                pieces.append({ahead(node, from), rewrite(part.value, old.at(from), wanted.at(i))});
            } else {
                pieces.append({aheadOfNew(node), JsonText::compact(wanted.at(i))});
            }
        }
        return pieces;
    }

    [[nodiscard]] QByteArray join(const Node &node, const QVector<Piece> &pieces) const
    {
        QByteArray text = between(node.begin, node.begin + 1);
        for (int i = 0; i < pieces.size(); ++i) {
            QByteArray ahead = pieces.at(i).ahead;
            if (i == 0) {
                ahead.replace(',', QByteArray());
            } else if (!ahead.contains(',')) {
                ahead.prepend(',');
            }
            text += ahead + pieces.at(i).text;
        }
        const int last = node.parts.isEmpty() ? node.begin + 1 : node.parts.constLast().end;
        return text + between(last, node.end);
    }

    [[nodiscard]] QByteArray ahead(const Node &node, int part) const
    {
        return between(part == 0 ? node.begin + 1 : node.parts.at(part - 1).end, node.parts.at(part).begin);
    }

    [[nodiscard]] static bool isLastOfItsKey(const Node &node, int part)
    {
        const auto isNamesake = [&](const Node::Part &other) {
            return other.key == node.parts.at(part).key;
        };
        return std::none_of(node.parts.cbegin() + part + 1, node.parts.cend(), isNamesake);
    }

    /// A part that comes stands as the last one does.
    [[nodiscard]] QByteArray aheadOfNew(const Node &node) const
    {
        return node.parts.isEmpty() ? QByteArray() : ahead(node, int(node.parts.size()) - 1);
    }

    /// The colon with the blanks around it, as the object has it at its first member.
    [[nodiscard]] QByteArray colonOf(const Node &node) const
    {
        if (node.parts.isEmpty()) {
            return ":";
        }
        const Node::Part &first = node.parts.constFirst();
        const QByteArray member = between(first.begin, m_nodes.at(first.value).begin);
        return member.mid(member.lastIndexOf('"') + 1);
    }

    const QByteArray &m_text;
    QVector<Node> m_nodes;
};

} // namespace

namespace JsonText {

std::optional<QJsonValue> parse(const QByteArray &text, Problem *problem)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        // What Qt points at may be the next thing behind some blanks.
        const QByteArray sound = QByteArray('x' + text.left(error.offset)).trimmed();
        *problem = {int(sound.count('\n')) + 1, error.errorString()};
        return std::nullopt;
    }
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QByteArray rewritten(const QByteArray &text, const QJsonValue &value)
{
    Problem problem;
    const std::optional<QJsonValue> old = parse(text, &problem);
    return old ? Rewriter(text).whole(*old, value) : compact(value);
}

QByteArray compact(const QJsonValue &value)
{
    // Only lists and objects are documents.
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace JsonText
