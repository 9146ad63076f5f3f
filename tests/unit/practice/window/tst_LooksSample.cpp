#include "EveryWindow.h"
#include "SampleFiles.h"
#include "lesson/LessonWords.h"

/// Whether the windows have room for what the lessons make: the sample game, in each language.
class tst_LooksSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesHaveRoom_data();
    void namesHaveRoom();
};

namespace {

/// Button, frame and margins of a combo box, and those of a list, beside the text, in pixels.
constexpr int kRoomInBox = 32;
constexpr int kRoomInRow = 10;

QString narrow(const QWidget *widget, const QString &text, int room)
{
    const int missing = widget->fontMetrics().horizontalAdvance(text) + room - widget->width();
    return missing > 0
               ? str("%1: %2 pixels are missing for \"%3\"").arg(widget->objectName()).arg(missing).arg(text)
               : QString();
}

/// What does not fit in the boxes and lists that are to be seen in @p window.
QStringList narrowIn(const EditorWindow *window, int *looked)
{
    QStringList faults;
    const auto boxes = window->findChildren<QComboBox *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QComboBox *box : boxes) {
        for (int item = 0; box->isVisible() && item < box->count(); ++item) {
            faults.append(narrow(box, box->itemText(item), kRoomInBox));
            ++*looked;
        }
    }
    const auto lists = window->findChildren<RowList *>(QString(), Qt::FindDirectChildrenOnly);
    for (const RowList *list : lists) {
        // What an event does is cut where it is long.
        const bool isOfCommands = list->objectName().endsWith(str("ommands"));
        for (int row = 0; list->isVisible() && !isOfCommands && row < list->count(); ++row) {
            faults.append(narrow(list, list->item(row)->text(), kRoomInRow));
            ++*looked;
        }
    }
    faults.removeAll(QString());
    return faults;
}

} // namespace

void tst_LooksSample::namesHaveRoom_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LooksSample::namesHaveRoom()
{
    QFETCH(QString, locale);
    SampleEditor editor(qPrintable(locale), sample::catalogue(locale));
    QStringList faults;
    int looked = 0;
    EveryWindow every(&editor, [&faults, &looked](const QString &what, const EditorWindow *window) {
        const QStringList found = narrowIn(window, &looked);
        for (const QString &fault : found) {
            faults.append(what + QLatin1Char(' ') + fault);
        }
    });
    every.visitAll();
    QVERIFY(looked > 1000);
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_LooksSample)
#include "tst_LooksSample.moc"
