#pragma once

#include <QByteArray>
#include <QString>

/// The outbound frame of one command: "1", the length of the UTF-8 form in eight lowercase hexadecimal
/// digits, the byte 0x02, the UTF-8 bytes and a zero byte.
[[nodiscard]] QByteArray outboundFrame(const QString &command);
