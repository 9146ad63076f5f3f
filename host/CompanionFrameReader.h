#pragma once

#include <QByteArray>
#include <QStringList>

/// Cuts the bytes that the companion sends into commands, whatever pieces they come in.
///
/// A frame is "1", the payload's length in bytes in eight lowercase hexadecimal digits, the byte 0x02, the
/// payload in UTF-8, a zero byte; it carries one command. The reader is strict, so that a mistake of the
/// other end shows, and it recovers: bytes that are no frame are dropped up to the next zero byte. It holds
/// no more than what arrived, and no frame above kLargestPayload.
class CompanionFrameReader
{
public:
    static constexpr int kLargestPayload = 64 * 1024 * 1024;

    struct Result
    {
        /// Complete commands, in order.
        QStringList commands;
        /// One line for each thing that was no frame.
        QStringList problems;
    };

    /// Takes the next bytes of the stream and returns what they complete.
    Result read(const QByteArray &bytes);

private:
    QByteArray m_buffer;
    /// What comes before the next zero byte belongs to something that was no frame.
    bool m_skipping = false;
};
