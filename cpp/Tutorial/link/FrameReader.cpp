#include "Tutorial/link/FrameReader.h"

#include <utility>

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
    if (m_unwanted > 0) {
        const int dropped = int(qMin<qint64>(m_unwanted, bytes.size()));
        m_unwanted -= dropped;
        if (dropped < bytes.size()) {
            parse(bytes.mid(dropped), sink);
        }
        return;
    }
    if (m_missing == 0) {
        parse(bytes, sink);
        return;
    }
    m_buffer.append(bytes);
    if (bytes.size() < m_missing) {
        m_missing -= bytes.size();
        return;
    }
    m_missing = 0;
    parse(std::exchange(m_buffer, {}), sink);
}

void FrameReader::parse(const QByteArray &data, Sink &sink)
{
    if (data.size() < 2) {
        wait(data, 1);
        return;
    }

    int cursor = 0;
    while (data.size() - cursor >= kShortestHeader) {
        if (data.at(cursor) != kLead) {
            sink.problem(Problem::kInvalidHeader, data.mid(cursor));
            wait(data.mid(cursor, int(m_mostPayload + kFrameOverhead)), 1);
            return;
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
        if (length > m_mostPayload) {
            sink.problem(Problem::kInvalidPayloadSize, data.mid(cursor, kPayloadOffset));
            if (left <= total) {
                m_unwanted = total - left;
                return;
            }
            cursor += int(total);
            continue;
        }
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
