#pragma once

#include <QByteArray>
#include <QStringList>

/// One frame from the host editor to the companion: "0", the payload's length in bytes in eight hexadecimal
/// digits, a separator byte, the payload in UTF-8, a zero byte. The payload is @p commands joined by the byte
/// 0x02.
[[nodiscard]] QByteArray hostFrame(const QStringList &commands);
