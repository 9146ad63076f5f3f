#include "host/CompanionFrameReader.h"

namespace {

constexpr int kLengthStart = 1;
constexpr int kLengthDigits = 8;
constexpr int kSeparatorAt = kLengthStart + kLengthDigits;
constexpr int kPayloadStart = kSeparatorAt + 1;

/// The number that lowercase hexadecimal digits stand for; -1 when they are none or too many for int.
int lengthOf(const QByteArray &digits)
{
    for (const char digit : digits) {
        if (!(digit >= '0' && digit <= '9') && !(digit >= 'a' && digit <= 'f')) {
            return -1;
        }
    }
    bool fits = false;
    const int length = digits.toInt(&fits, 16);
    return fits ? length : -1;
}

/// What is wrong with the header as far as it is there; empty when nothing is.
QString headerProblem(const QByteArray &header)
{
    if (header.at(0) != '1') {
        return QStringLiteral("a frame does not begin with \"1\"");
    }
    if (header.size() < kPayloadStart) {
        return {};
    }
    const int length = lengthOf(header.mid(kLengthStart, kLengthDigits));
    if (length < 0 || length > CompanionFrameReader::kLargestPayload) {
        return QStringLiteral("the length of a frame is no length");
    }
    if (header.at(kSeparatorAt) != '\x02') {
        return QStringLiteral("the separator behind a frame's length is not 0x02");
    }
    return {};
}

} // namespace

CompanionFrameReader::Result CompanionFrameReader::read(const QByteArray &bytes)
{
    m_buffer.append(bytes);
    Result result;
    int cursor = 0;
    while (cursor < m_buffer.size()) {
        if (m_skipping) {
            const int zero = m_buffer.indexOf('\0', cursor);
            cursor = zero < 0 ? m_buffer.size() : zero + 1;
            m_skipping = zero < 0;
            continue;
        }
        const QByteArray header = m_buffer.mid(cursor, kPayloadStart);
        const QString problem = headerProblem(header);
        if (!problem.isEmpty()) {
            result.problems.append(problem);
            m_skipping = true;
            continue;
        }
        if (header.size() < kPayloadStart) {
            break;
        }
        const int length = lengthOf(header.mid(kLengthStart, kLengthDigits));
        const int end = cursor + kPayloadStart + length;
        if (m_buffer.size() <= end) {
            break;
        }
        if (m_buffer.at(end) != '\0') {
            result.problems.append(QStringLiteral("no zero byte stands behind a frame's payload"));
            m_skipping = true;
            continue;
        }
        const QByteArray payload = m_buffer.mid(cursor + kPayloadStart, length);
        const QString text = QString::fromUtf8(payload);
        // What is no UTF-8 does not come back as it was.
        if (text.toUtf8() != payload) {
            result.problems.append(QStringLiteral("a payload is not UTF-8"));
        } else {
            result.commands.append(text);
        }
        cursor = end + 1;
    }
    m_buffer.remove(0, cursor);
    return result;
}
