#include "window/control/NumberBox.h"

namespace {

/// More digits than any range has, and few enough for an int.
constexpr int kMostDigits = 9;

} // namespace

std::optional<int> NumberBox::numberIn(QString input) const
{
    if (!suffix().isEmpty() && input.endsWith(suffix())) {
        input.chop(suffix().size());
    }
    input = input.trimmed();
    bool isNumber = false;
    const int number = input.toInt(&isNumber);
    return isNumber && input.size() <= kMostDigits ? std::optional(number) : std::nullopt;
}

QValidator::State NumberBox::validate(QString &input, int &pos) const
{
    const QValidator::State state = QSpinBox::validate(input, pos);
    const bool isSign = input.trimmed() == QLatin1String("-");
    return state == QValidator::Invalid && (isSign || numberIn(input)) ? QValidator::Intermediate : state;
}

void NumberBox::fixup(QString &input) const
{
    const std::optional<int> number = numberIn(input);
    if (number) {
        input = textFromValue(qBound(minimum(), *number, maximum())) + suffix();
    } else {
        QSpinBox::fixup(input);
    }
}
