#include "Tutorial/link/Frame.h"

QByteArray outboundFrame(const QString &command)
{
    const QByteArray payload = command.toUtf8();
    QByteArray frame;
    frame.reserve(payload.size() + 11);
    frame.append('1');
    frame.append(QStringLiteral("%1").arg(payload.size(), 8, 16, QLatin1Char('0')).toLatin1());
    frame.append('\x02');
    frame.append(payload);
    frame.append('\0');
    return frame;
}
