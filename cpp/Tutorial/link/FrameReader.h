#pragma once

#include <QByteArray>
#include <QString>

/// Reassembles the host editor's frames from whatever pieces the socket delivers, and cuts them into
/// commands.
///
/// A frame is "0", eight hexadecimal digits with the payload's length in bytes, one byte that nobody looks
/// at, the payload in UTF-8, and a zero byte. Within a payload the byte 0x02 separates commands.
///
/// The length only tells when a frame has come in whole. Where its text ends is told by the first zero byte,
/// so a length that is too small loses nothing, and a zero byte inside the payload ends the text early.
/// Nothing is allocated ahead of the bytes that arrived, whatever a length says, and what waits for the rest
/// of its frame has a limit.
class FrameReader
{
public:
    /// The most bytes that wait: a log line may hold them as six characters each, of three bytes for a
    /// moment, and that still has to fit Qt's containers.
    static constexpr int kMostBytes = 1 << 26;

    /// @p mostBytes is for tests.
    explicit FrameReader(int mostBytes = kMostBytes)
        : m_mostBytes(mostBytes)
    {
    }

    enum class Problem { kInvalidHeader, kInvalidPayloadSize, kTerminatorNotFound };

    /// Receives what a read brought, in order, from inside read().
    class Sink
    {
    public:
        /// One command, possibly empty. Return false to drop everything that came with it.
        virtual bool command(const QString &text) = 0;

        /// Bytes that are no frame: from the place of the problem on, or all of the read for a missing
        /// terminator.
        virtual void problem(Problem problem, const QByteArray &bytes) = 0;

    protected:
        Sink() = default;
        ~Sink() = default;
        Sink(const Sink &) = default;
        Sink &operator=(const Sink &) = default;
    };

    /// Takes the next bytes of the stream, any number of them, and hands complete commands to @p sink.
    ///
    /// After an invalid header the bytes stay, and every later read reports the same problem; after an
    /// invalid size or a missing terminator this read is lost and the next one starts afresh. More bytes than
    /// may wait are an invalid size, reported with the first of them only.
    void read(const QByteArray &bytes, Sink &sink);

private:
    bool deliver(const QString &payload, Sink &sink);
    void wait(const QByteArray &bytes, qint64 missing);

    int m_mostBytes;
    /// Bytes of a frame that has not come in whole.
    QByteArray m_buffer;
    /// How many bytes are missing, 0 when nothing is waiting. A 1 may stand for any number.
    qint64 m_missing = 0;
};
