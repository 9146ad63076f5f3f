#include "EditorFixture.h"
#include "lesson/LessonWords.h"
#include "lesson/description/DescriptionSet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

/// Whether every control of every window and form has room: for its texts, beside its neighbours, in its
/// window.
class tst_LooksLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsHaveRoom_data();
    void textsHaveRoom();
    void menusHaveRoom_data() { textsHaveRoom_data(); }
    void menusHaveRoom();
    void marksArePointedAtOnTheirWords_data() { textsHaveRoom_data(); }
    void marksArePointedAtOnTheirWords();
    void controlsStandApartAndInside();
    void windowsFitTheSmallestScreen();
};

namespace {

using Kind = WindowDescription::Kind;

/// What the style puts beside the text, in pixels.
constexpr int kRoomInButton = 12;
constexpr int kRoomInToolButton = 2;
constexpr int kRoomInBox = 32;
constexpr int kRoomInTab = 8;
constexpr int kRoomInRow = 10;
/// Width of a letter in Japanese and Chinese.
constexpr int kLetter = 12;
/// Above and below the text of a field together.
constexpr int kRoomInField = 6;

constexpr QSize kSmallestScreen(1024, 768);
/// What a window manager puts around a window.
constexpr QMargins kDecoration(6, 32, 6, 6);
/// The menu bar above the contents, and the lesson strip below them.
constexpr int kMenuHeight = 24;
constexpr int kStripHeight = 96;

DescriptionSet descriptions()
{
    QStringList errors;
    auto set = DescriptionSet::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions"), nullptr, &errors);
    if (!errors.isEmpty()) {
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    }
    return set;
}

int advance(const QWidget *widget, QString text)
{
    return widget->fontMetrics().horizontalAdvance(text.remove(QLatin1Char('&')));
}

QStringList textsOf(const QComboBox *box)
{
    QStringList texts;
    for (int item = 0; item < box->count(); ++item) {
        texts.append(box->itemText(item));
    }
    return texts;
}

QStringList textsOf(const RowList *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row) {
        texts.append(list->item(row)->text());
    }
    return texts;
}

/// How many pixels are missing for the widest of @p texts; less than 1 when none are.
int missing(const QWidget *widget, const QStringList &texts, int room, int width)
{
    int most = -1;
    for (const QString &text : texts) {
        most = qMax(most, advance(widget, text) + room - width);
    }
    return most;
}

/// How many pixels of width are missing for what the control says.
int missingWidth(const ControlDescription &control, const QWidget *widget)
{
    const int width = widget->width();
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        // What shows a field is as long as that is.
        return control.label.isEmpty() ? -1 : missing(label, {label->text()}, 0, width);
    }
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
        const bool isOfEditor = control.own.object.contains(str("choices"));
        return missing(box, isOfEditor ? textsOf(box) : QStringList(), kRoomInBox, width);
    }
    if (const auto *list = qobject_cast<const RowList *>(widget)) {
        const bool isOfEditor = control.own.object.contains(str("choices"));
        return missing(list, isOfEditor ? textsOf(list) : QStringList(), kRoomInRow, width);
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        int most = -1;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            most = qMax(most, missing(tabs, {tabs->tabText(tab)}, kRoomInTab, control.tabWidth(tab)));
        }
        return most;
    }
    if (const auto *button = qobject_cast<const QToolButton *>(widget)) {
        return missing(button, {button->text()}, kRoomInToolButton, width);
    }
    if (const auto *button = qobject_cast<const QPushButton *>(widget)) {
        return missing(button, {button->text()}, kRoomInButton, width);
    }
    const bool hasOwnWidth = qobject_cast<const QCheckBox *>(widget) != nullptr ||
                             qobject_cast<const QRadioButton *>(widget) != nullptr ||
                             qobject_cast<const QSpinBox *>(widget) != nullptr;
    return hasOwnWidth ? widget->sizeHint().width() - width : -1;
}

int missingHeight(const QWidget *widget)
{
    const bool isLine = qobject_cast<const QLabel *>(widget) != nullptr;
    const bool isField = qobject_cast<const QComboBox *>(widget) != nullptr ||
                         qobject_cast<const QSpinBox *>(widget) != nullptr ||
                         qobject_cast<const QLineEdit *>(widget) != nullptr ||
                         qobject_cast<const QAbstractButton *>(widget) != nullptr;
    if (!isLine && !isField) {
        return -1;
    }
    return widget->fontMetrics().height() + (isField ? kRoomInField : 0) - widget->height();
}

void compare(const QString &where, const EditorWindow *window, const QVector<ControlDescription> &controls,
             QStringList *faults, int *looked)
{
    for (const ControlDescription &control : controls) {
        const auto *widget = window->findChild<QWidget *>(control.name, Qt::FindDirectChildrenOnly);
        if (widget == nullptr) {
            faults->append(str("%1 %2 is not there").arg(where, control.name));
            continue;
        }
        *looked += 1;
        const int width = missingWidth(control, widget);
        const int height = missingHeight(widget);
        if (width > 0 || height > 0) {
            faults->append(str("%1 %2: %3 pixels of width and %4 of height are missing")
                               .arg(where, control.name)
                               .arg(qMax(0, width))
                               .arg(qMax(0, height)));
        }
    }
}

/// The controls with a mark and words of which the arrow, in the middle of their place, points at blank
/// ground more than a letter behind the words.
void compareMarks(const QString &where, const EditorWindow *window,
                  const QVector<ControlDescription> &controls, QStringList *faults, int *looked)
{
    for (const ControlDescription &control : controls) {
        if (control.type != str("checkBox") && control.type != str("radioButton")) {
            continue;
        }
        *looked += 1;
        const auto *widget = window->findChild<QWidget *>(control.name, Qt::FindDirectChildrenOnly);
        const int words = widget != nullptr ? widget->sizeHint().width() : 0;
        const int tip = control.geometry.width() / 2;
        if (tip > words + kLetter) {
            faults->append(str("%1 %2: the arrow points %3 pixels behind the words")
                               .arg(where, control.name)
                               .arg(tip - words));
        }
    }
}

void compareAreas(const QString &where, const QSize &size, const QVector<ControlDescription> &controls,
                  QStringList *faults)
{
    for (int one = 0; one < controls.size(); ++one) {
        const ControlDescription &control = controls.at(one);
        if (!QRect(QPoint(), size).contains(control.geometry)) {
            faults->append(str("%1 %2 reaches out of its window").arg(where, control.name));
        }
        for (int other = one + 1; other < controls.size(); ++other) {
            const ControlDescription &neighbour = controls.at(other);
            if (control.geometry.intersects(neighbour.geometry) &&
                !excludeEachOther(control.shownWhen, neighbour.shownWhen)) {
                faults->append(str("%1 %2 stands over %3").arg(where, control.name, neighbour.name));
            }
        }
    }
}

} // namespace

void tst_LooksLayout::textsHaveRoom_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LooksLayout::textsHaveRoom()
{
    QFETCH(QString, locale);
    Editor editor(qPrintable(locale));
    editor.openProject();
    const DescriptionSet set = descriptions();
    const QStringList keys = set.keys();
    QStringList faults;
    int looked = 0;
    for (const QString &key : keys) {
        if (const EditorWindow *window = editor->window(key)) {
            compare(key, window, set[key].controls, &faults, &looked);
        }
        for (const PopupDescription &popup : set[key].popups) {
            compare(popup.name, editor->window(popup.name), popup.controls, &faults, &looked);
        }
    }
    QVERIFY(looked > 1200);
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_LooksLayout::menusHaveRoom()
{
    QFETCH(QString, locale);
    Editor editor(qPrintable(locale));
    editor.openProject();
    const auto *bar = editor.frame()->findChild<QMenuBar *>();
    QVERIFY(bar->sizeHint().width() <= kSmallestScreen.width());
    QVERIFY(bar->height() <= kMenuHeight);
}

void tst_LooksLayout::marksArePointedAtOnTheirWords()
{
    QFETCH(QString, locale);
    Editor editor(qPrintable(locale));
    editor.openProject();
    const DescriptionSet set = descriptions();
    const QStringList keys = set.keys();
    QStringList faults;
    int looked = 0;
    for (const QString &key : keys) {
        if (const EditorWindow *window = editor->window(key)) {
            compareMarks(key, window, set[key].controls, &faults, &looked);
        }
    }
    QVERIFY(looked > 150);
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_LooksLayout::controlsStandApartAndInside()
{
    const DescriptionSet set = descriptions();
    const QStringList keys = set.keys();
    QStringList faults;
    for (const QString &key : keys) {
        compareAreas(key, set[key].size, set[key].controls, &faults);
        for (const PopupDescription &popup : set[key].popups) {
            compareAreas(popup.name, popup.size, popup.controls, &faults);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_LooksLayout::windowsFitTheSmallestScreen()
{
    const QSize room = QRect(QPoint(), kSmallestScreen).marginsRemoved(kDecoration).size();
    const DescriptionSet set = descriptions();
    const QStringList keys = set.keys();
    QStringList faults;
    for (const QString &key : keys) {
        const WindowDescription &window = set[key];
        const bool isMain = window.minimumSize.isValid();
        const QSize size = isMain ? window.minimumSize + QSize(0, kMenuHeight + kStripHeight) : window.size;
        // The lesson goes on in the strip while a dialog is open.
        const QSize free = isMain ? room : room - QSize(0, kStripHeight);
        if (window.kind == Kind::kWindow && (size.width() > free.width() || size.height() > free.height())) {
            faults.append(str("%1: %2 x %3").arg(key).arg(size.width()).arg(size.height()));
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_LooksLayout)
#include "tst_LooksLayout.moc"
