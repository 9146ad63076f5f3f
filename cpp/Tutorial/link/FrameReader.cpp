#include "Tutorial/link/FrameReader.h"

namespace {

constexpr char kLead = '0';
constexpr int kLengthDigits = 8;
constexpr int kShortestHeader = 1 + kLengthDigits;
constexpr int kPayloadOffset = kShortestHeader + 1;
constexpr qint64 kFrameOverhead = kPayloadOffset + 1;
constexpr QChar kCommandSeparator(2);

} // namespace

void FrameReader::read(const QByteArray &bytes, Sink &sink)
{
    QByteArray data = bytes;
    if (m_missing > 0) {
        if (bytes.size() > m_mostBytes - m_buffer.size()) {
            const QByteArray start = m_buffer.left(kPayloadOffset);
            wait({}, 0);
            sink.problem(Problem::kInvalidPayloadSize, start);
            return;
        }
        m_buffer.append(bytes);
        if (bytes.size() < m_missing) {
            m_missing -= bytes.size();
            return;
        }
        data = m_buffer;
        m_buffer.clear();
        m_missing = 0;
    }
    if (data.size() < 2) {
        wait(data, 1);
        return;
    }

    int cursor = 0;
    while (data.size() - cursor >= kShortestHeader) {
        if (data.at(cursor) != kLead) {
            sink.problem(Problem::kInvalidHeader, data.mid(cursor));
            break;
        }
        bool isNumber = false;
        const int length =
            QString::fromUtf8(data.constData() + cursor + 1, kLengthDigits).toInt(&isNumber, 16);
        if (!isNumber || length < 0) {
            sink.problem(Problem::kInvalidPayloadSize, data.mid(cursor));
            return;
        }
        const qint64 total = length + kFrameOverhead;
        const int left = data.size() - cursor;
        if (left < total) {
            wait(data.mid(cursor), total - left);
            return;
        }
        const int payload = cursor + kPayloadOffset;
        const int zero = data.indexOf('\0', payload);
        const int payloadEnd = zero < 0 ? data.size() : zero;
        if (!deliver(QString::fromUtf8(data.constData() + payload, payloadEnd - payload), sink)) {
            return;
        }
        // The search starts at the frame's first byte: a zero byte inside the header ends the frame there.
        const int terminator = data.indexOf('\0', cursor);
        if (terminator < 0) {
            sink.problem(Problem::kTerminatorNotFound, data);
            return;
        }
        cursor = terminator + 1;
    }
    if (cursor < data.size()) {
        wait(data.mid(cursor), 1);
    }
}

bool FrameReader::deliver(const QString &payload, Sink &sink)
{
    if (payload.isEmpty()) {
        return true;
    }
    int start = 0;
    for (;;) {
        const int end = payload.indexOf(kCommandSeparator, start);
        if (!sink.command(payload.mid(start, end < 0 ? -1 : end - start))) {
            return false;
        }
        if (end < 0) {
            return true;
        }
        start = end + 1;
    }
}

void FrameReader::wait(const QByteArray &bytes, qint64 missing)
{
    m_buffer = bytes;
    m_missing = missing;
}
