#include "window/control/ComboBoxControl.h"

#include <QComboBox>

namespace {

/// Shows @p rows in the box, with the one chosen that @p value stands for.
void show(QComboBox *box, const QVector<Row> &rows, const QJsonValue &value)
{
    const QSignalBlocker quiet(box);
    bool isSame = box->count() == rows.size();
    for (int row = 0; isSame && row < rows.size(); ++row) {
        isSame = box->itemText(row) == rows.at(row).text;
    }
    // An open list must not close while its texts stay what they are.
    if (!isSame) {
        box->clear();
        for (const Row &row : rows) {
            box->addItem(row.text);
        }
    }
    box->setCurrentIndex(rowWith(rows, value));
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    // What no row stands for any more, such as an entry that was deleted, is shown as it is.
    box->setPlaceholderText(value.isUndefined() || value == QJsonValue(0) ? QString()
                                                                          : value.toVariant().toString());
#endif
}

} // namespace

ControlMaker readComboBox(ControlReader &reader)
{
    const QString field = reader.field();
    const Rows rows = reader.rows(true);
    const QJsonValue missing = reader.missing();
    return [field, rows, missing, name = reader.description().name](EditorWindow *window) {
        auto *box = new QComboBox(window);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        keepFresh(box, window, [box, window, field, rows, missing] {
            show(box, rows(window), fieldValue(window, field, missing));
        });
        settleWhenComing(box, window, [box, window, field, rows] {
            const QVector<Row> all = rows(window);
            if (box->currentIndex() < 0 && !all.isEmpty()) {
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
