#include "window/control/ComboBoxControl.h"

#include <QComboBox>

#include <functional>

namespace {

/// What is shown for a value that none of the rows stands for.
using Stranger = std::function<QString(const QJsonValue &)>;

/// Shows @p rows in the box, with the one chosen that @p value stands for. Where none does, such as for an
/// entry that was deleted, a row of its own behind them says what is there; to choose that one changes
/// nothing.
void show(QComboBox *box, const QVector<Row> &rows, const QJsonValue &value, const Stranger &stranger)
{
    const QSignalBlocker quiet(box);
    QStringList texts;
    for (const Row &row : rows) {
        texts.append(row.text);
    }
    int current = rowWith(rows, value);
    const QString own = current < 0 ? stranger(value) : QString();
    if (!own.isEmpty()) {
        current = int(texts.size());
        texts.append(own);
    }
    bool isSame = box->count() == texts.size();
    for (int row = 0; isSame && row < texts.size(); ++row) {
        isSame = box->itemText(row) == texts.at(row);
    }
    // An open list must not close while its texts stay what they are.
    if (!isSame) {
        box->clear();
        box->addItems(texts);
    }
    box->setCurrentIndex(current);
}

/// The text in "other", else the value itself: the number of an entry as that of one without a name. None for
/// nothing, and for 0, which is no entry.
Stranger readStranger(ControlReader &reader)
{
    const QString kOther = QStringLiteral("other");
    const bool isOfList = !reader.hasChoices();
    QString other =
        reader.has(kOther) ? reader.json().localText(kOther).value(reader.context().locale) : QString();
    return [isOfList, other](const QJsonValue &value) {
        if (value.isUndefined() || value.isNull() || value == QJsonValue(0)) {
            return QString();
        }
        if (!other.isEmpty()) {
            return other;
        }
        return isOfList && value.isDouble() ? namelessText(value.toInt()) : value.toVariant().toString();
    };
}

} // namespace

ControlMaker readComboBox(ControlReader &reader)
{
    const QString field = reader.field();
    const Rows rows = reader.rows(true);
    const QJsonValue missing = reader.missing();
    const Stranger stranger = readStranger(reader);
    return [field, rows, missing, stranger, name = reader.description().name](EditorWindow *window) {
        auto *box = new QComboBox(window);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        keepFresh(box, window, [box, window, field, rows, missing, stranger] {
            show(box, rows(window), fieldValue(window, field, missing), stranger);
        });
        settleWhenComing(box, window, [box, window, field, rows, missing] {
            const QVector<Row> all = rows(window);
            const EditorWindow::Return back = window->returnOf(box, field);
            const int kept = back.value ? rowWith(all, QJsonValue::fromVariant(*back.value)) : -1;
            const bool isToBegin = back.isOthers || rowWith(all, fieldValue(window, field, missing)) < 0;
            if (kept >= 0) {
                window->choose(field, all.at(kept));
            } else if (!all.isEmpty() && isToBegin) {
                window->choose(field, all.constFirst());
            }
        });
        QObject::connect(
            box, qOverload<int>(&QComboBox::activated), window, [window, field, rows, name](int index) {
                const QVector<Row> all = rows(window);
                if (index < 0 || index >= all.size()) {
                    return;
                }
                window->choose(field, all.at(index));
                window->report(QStringLiteral("comboBox"), name, QString::number(index), window->spot(name));
            });
        return box;
    };
}
