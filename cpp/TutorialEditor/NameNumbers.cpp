#include "TutorialEditor/NameNumbers.h"

#include <QRegularExpression>

namespace {

std::optional<int> decimal(const QString &text)
{
    bool ok = false;
    const int number = text.toInt(&ok, 10);
    return ok ? std::optional<int>(number) : std::nullopt;
}

qint64 above(int highest)
{
    return static_cast<qint64>(highest) + 1;
}

} // namespace

std::optional<int> suffixNumber(const QString &name, const QString &base)
{
    static const QRegularExpression digitsOnly(QStringLiteral("^(\\d+)$"));
    if (name.size() <= base.size() || !name.startsWith(base)) {
        return std::nullopt;
    }
    const QString rest = name.mid(base.size());
    return digitsOnly.match(rest).hasMatch() ? decimal(rest) : std::nullopt;
}

std::optional<int> bracketNumber(const QString &name, const QString &base)
{
    const int open = base.size();
    if (name.size() < open + 3 || !name.startsWith(base) || name.at(open) != QLatin1Char('(') ||
        !name.endsWith(QLatin1Char(')'))) {
        return std::nullopt;
    }
    const QString inside = name.mid(open + 1, name.size() - open - 2);
    const std::optional<int> number = decimal(inside);
    return number && QString::number(*number) == inside ? number : std::nullopt;
}

QString numberedName(const QString &base, int highest, int digits)
{
    return base + QString::number(above(highest)).rightJustified(digits, QLatin1Char('0'));
}

QString bracketedName(const QString &base, int highest)
{
    return base + QLatin1Char('(') + QString::number(above(highest)) + QLatin1Char(')');
}
