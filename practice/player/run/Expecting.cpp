#include "player/run/Expecting.h"

namespace player::Expecting {

namespace {

bool compares(qint64 left, const QString &sign, qint64 right)
{
    if (sign == QLatin1String("=")) {
        return left == right;
    }
    if (sign == QLatin1String("!=")) {
        return left != right;
    }
    if (sign == QLatin1String("<")) {
        return left < right;
    }
    if (sign == QLatin1String(">")) {
        return left > right;
    }
    if (sign == QLatin1String("<=")) {
        return left <= right;
    }
    return sign == QLatin1String(">=") && left >= right;
}

} // namespace

Seen number(Hand *hand, const QString &sign, const QString &wanted, const std::function<int()> &now)
{
    const bool holds = hand->until(kPatience, [&] { return compares(now(), sign, wanted.toLongLong()); });
    return {holds, QString::number(now())};
}

Seen flag(Hand *hand, const QString &wanted, const std::function<bool()> &now)
{
    if (wanted != QLatin1String("on") && wanted != QLatin1String("off")) {
        return {false, QStringLiteral("neither \"on\" nor \"off\" is expected")};
    }
    const bool holds = hand->until(kPatience, [&] { return now() == (wanted == QLatin1String("on")); });
    return {holds, now() ? QStringLiteral("on") : QStringLiteral("off")};
}

Seen text(Hand *hand, const QString &wanted, const std::function<QString()> &now)
{
    const bool holds = hand->until(kPatience, [&] { return now() == wanted; });
    return {holds, now()};
}

Seen onScreen(Hand *hand, const std::function<bool()> &now)
{
    return {hand->until(kPatience, now), hand->seen()};
}

} // namespace player::Expecting
