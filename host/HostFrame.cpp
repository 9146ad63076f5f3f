#include "host/HostFrame.h"

QByteArray hostFrame(const QStringList &commands)
{
    const QByteArray payload = commands.join(QChar(2)).toUtf8();
    QByteArray frame = QStringLiteral("0%1").arg(payload.size(), 8, 16, QLatin1Char('0')).toLatin1();
    frame.append('\x02').append(payload).append('\0');
    return frame;
}
