#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Catches what goes through Qt's message streams from construction to destruction, in place of the handler
/// that stood before. One at a time, in one thread.
///
///     LogCapture log;
///     doSomething();
///     QCOMPARE(log.warnings(), QStringList { QStringLiteral("source Class::function 12 Failed") });
class LogCapture
{
public:
    struct Line
    {
        QtMsgType type;
        QString text;
    };

    LogCapture()
    {
        Q_ASSERT(s_lines == nullptr);
        s_lines = &m_lines;
        m_previous = qInstallMessageHandler(&LogCapture::take);
    }
    ~LogCapture()
    {
        qInstallMessageHandler(m_previous);
        s_lines = nullptr;
    }
    Q_DISABLE_COPY(LogCapture)

    /// The text of every line, whatever its level, in order.
    [[nodiscard]] QStringList lines() const
    {
        QStringList texts;
        for (const Line &line : m_lines) {
            texts << line.text;
        }
        return texts;
    }
    /// The text of the lines of one level, in order.
    [[nodiscard]] QStringList lines(QtMsgType type) const
    {
        QStringList texts;
        for (const Line &line : m_lines) {
            if (line.type == type) {
                texts << line.text;
            }
        }
        return texts;
    }
    [[nodiscard]] QStringList warnings() const { return lines(QtWarningMsg); }
    [[nodiscard]] QStringList debugs() const { return lines(QtDebugMsg); }
    /// True when a line of any level holds @p part.
    [[nodiscard]] bool contains(const QString &part) const
    {
        for (const Line &line : m_lines) {
            if (line.text.contains(part)) {
                return true;
            }
        }
        return false;
    }
    /// Forgets the lines caught so far.
    void clear() { m_lines.clear(); }

private:
    static void take(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
    {
        s_lines->append({type, text});
    }

    static inline QList<Line> *s_lines = nullptr;
    QList<Line> m_lines;
    QtMessageHandler m_previous = nullptr;
};
