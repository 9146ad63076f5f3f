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
/// Nothing is allocated ahead of the bytes that arrived, whatever a length says. A frame whose length is
/// beyond the limit is thrown away as it comes, and the one behind it is read again.
class FrameReader
{
public:
    /// The most bytes of payload that are delivered: the text of a frame, its fields and a log line of them
    /// all have to fit Qt's containers, which end at 2 GiB.
    static constexpr int kMostPayload = 1 << 28;

    /// @p mostPayload is for tests.
    explicit FrameReader(int mostPayload = kMostPayload)
        : m_mostPayload(mostPayload)
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
        /// terminator. Of a frame that is too long, its header.
        virtual void problem(Problem problem, const QByteArray &bytes) = 0;

    protected:
        Sink() = default;
        ~Sink() = default;
        Sink(const Sink &) = default;
        Sink &operator=(const Sink &) = default;
    };

    /// Takes the next bytes of the stream, any number of them, and hands complete commands to @p sink.
    ///
    /// After an invalid header the bytes stay, as many as the longest frame has, and every later read reports
    /// the same problem; after an invalid size or a missing terminator this read is lost and the next one
    /// starts afresh. A frame that is too long is an invalid size too, but only its own bytes are lost.
    void read(const QByteArray &bytes, Sink &sink);

private:
    void parse(const QByteArray &data, Sink &sink);
    bool deliver(const QString &payload, Sink &sink);
    void wait(const QByteArray &bytes, qint64 missing);

    int m_mostPayload;
    /// Bytes of a frame that has not come in whole.
    QByteArray m_buffer;
    /// How many bytes are missing, 0 when nothing is waiting. A 1 may stand for any number.
    qint64 m_missing = 0;
    /// How many bytes are still to come of a frame that is too long.
    qint64 m_unwanted = 0;
};
