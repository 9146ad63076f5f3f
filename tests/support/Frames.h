#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The frames of the link, put together and taken apart here once for all tests, and on purpose not with the
/// code of either end.
namespace Frames {

inline QByteArray framed(char sender, const QByteArray &payload, char separator)
{
    return sender + QByteArray::number(payload.size(), 16).rightJustified(8, '0') + separator + payload +
           '\0';
}

/// A frame as a host editor sends it.
inline QByteArray ofHost(const QByteArray &payload, char separator = '\x02')
{
    return framed('0', payload, separator);
}

/// A frame as the companion sends it.
inline QByteArray ofCompanion(const QByteArray &payload)
{
    return framed('1', payload, '\x02');
}

/// Takes the payloads out of what the companion sends, piece by piece as it arrives.
class PayloadReader
{
public:
    void add(const QByteArray &bytes) { m_bytes += bytes; }

    /// The next payload, once all of it is there. Behind bytes that are no frame nothing comes any more.
    [[nodiscard]] std::optional<QString> take()
    {
        constexpr int kHeader = 10; // sender, eight digits, separator
        if (m_bytes.size() <= kHeader || m_bytes.at(0) != '1') {
            return std::nullopt;
        }
        const int length = m_bytes.mid(1, 8).toInt(nullptr, 16);
        if (m_bytes.size() < kHeader + length + 1) {
            return std::nullopt;
        }
        const QString payload = QString::fromUtf8(m_bytes.mid(kHeader, length));
        m_bytes.remove(0, kHeader + length + 1);
        return payload;
    }

private:
    QByteArray m_bytes;
};

} // namespace Frames
