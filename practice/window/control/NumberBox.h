#pragma once

#include <QSpinBox>

#include <optional>

/// A box for a whole number that takes what is typed as it is meant: a number beyond the range becomes the
/// nearest one in it when the typing is over, where a plain box would drop the key that went too far.
class NumberBox : public QSpinBox
{
    Q_OBJECT

public:
    using QSpinBox::QSpinBox;

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;

private:
    /// The whole number that @p input is; nothing for a text that is none, or far from any range.
    [[nodiscard]] std::optional<int> numberIn(QString input) const;
};
