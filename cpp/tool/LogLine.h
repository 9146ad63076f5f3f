#pragma once

#include <QByteArray>
#include <QDebug>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// One line of the debug log. Stream into it as into a QDebug; it is written when the last copy goes.
///
/// Texts, bytes, lists of texts and maps are cut, and followed by "(cut)", where the line would grow longer
/// than Qt can write: a line that does not fit Qt's containers would end the process.
class LogLine
{
public:
    /// Characters of a line, escapes counted as they are written: each takes up to four bytes for a moment,
    /// and a container of Qt ends at 2 GiB. What is left to that is for the message pattern.
    static constexpr int kMostCharacters = (1 << 29) - (1 << 20);

    /// @p mostCharacters is for tests.
    explicit LogLine(QDebug stream, int mostCharacters = kMostCharacters)
        : m_stream(std::move(stream))
        , m_left(mostCharacters)
    {
    }

    LogLine &operator<<(const QString &text);
    LogLine &operator<<(const QByteArray &bytes);
    LogLine &operator<<(const QStringList &texts);
    LogLine &operator<<(const QVariantMap &values);

    template<typename Value>
    LogLine &operator<<(const QList<Value> &values)
    {
        writeList(values);
        return *this;
    }

    LogLine &operator<<(const char *text)
    {
        m_stream << text;
        return *this;
    }

    template<typename Value>
    LogLine &operator<<(const Value &value)
    {
        m_stream << value;
        return *this;
    }

private:
    template<typename Text>
    Text fitting(const Text &text);
    LogLine &endOfCut(bool cut);

    /// Brackets and commas are written here: from Qt 6 on Qt has the container's name in front of them.
    template<typename Value>
    void writeList(const QList<Value> &values)
    {
        const QDebugStateSaver saver(m_stream);
        m_stream.nospace() << '(';
        const char *comma = "";
        for (const Value &value : values) {
            m_stream << comma << value;
            comma = ", ";
        }
        m_stream << ')';
    }

    QDebug m_stream;
    qint64 m_left;
};

/// Starts a line of the debug log: the source label, the qualified function name and the number of the
/// message, then whatever the caller streams behind it.
///
/// The numbers are identifiers that support staff search for. They belong to the message, are unique within
/// their function and never follow the source.
inline LogLine logDebug(const char *source, const char *function, int number)
{
    LogLine line(qDebug());
    line << source << function << number;
    return line;
}

/// As logDebug, for the warning stream.
inline LogLine logWarning(const char *source, const char *function, int number)
{
    LogLine line(qWarning());
    line << source << function << number;
    return line;
}
