#include "EveryWindow.h"
#include "lesson/LessonWords.h"
#include "window/Mnemonics.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

/// Whether every window can be used without a mouse, by someone who sees where she is.
class tst_LooksKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyGoesThroughEveryWindow();
    void theFocusIsSeenInEveryWindow();
    void everyDialogHasAKeyForOkAndForCancel();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
};

namespace {

/// No window has as many stops as this.
constexpr int kMostStops = 120;
/// Controls of a row may differ so much in height and place, in pixels.
constexpr int kUnevenness = 12;

/// The control of @p window that has the focus; nullptr where the focus is elsewhere.
QWidget *focusIn(const EditorWindow *window)
{
    QWidget *widget = QApplication::focusWidget();
    while (widget != nullptr && widget->parentWidget() != window) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// The controls that the tab key stops at, in the order in which it does, each once.
QVector<QWidget *> stopsIn(EditorWindow *window)
{
    Editor::focusWindow();
    window->focusFirst();
    QVector<QWidget *> stops;
    for (int press = 0; press < kMostStops; ++press) {
        QWidget *stop = focusIn(window);
        if (stop != nullptr && stops.contains(stop)) {
            break;
        }
        if (stop != nullptr) {
            stops.append(stop);
        }
        Editor::key(Qt::Key_Tab);
    }
    return stops;
}

bool takesFocus(const QWidget *widget)
{
    const auto takes = [](const QWidget *one) {
        return (one->focusPolicy() & Qt::TabFocus) != 0;
    };
    const auto children = widget->findChildren<QWidget *>();
    return takes(widget) || std::any_of(children.cbegin(), children.cend(), takes);
}

/// Of radio buttons that belong together the tab key stops at one.
bool isReached(const QWidget *widget, const QVector<QWidget *> &stops)
{
    const auto *radio = qobject_cast<const QRadioButton *>(widget);
    const auto belongs = [radio](const QWidget *stop) {
        const auto *other = qobject_cast<const QRadioButton *>(stop);
        return other != nullptr && other->group() == radio->group();
    };
    return stops.contains(const_cast<QWidget *>(widget)) ||
           (radio != nullptr && std::any_of(stops.cbegin(), stops.cend(), belongs));
}

/// Whether who reads from the top left to the bottom right, or one column after the other, would go from the
/// one to the other.
bool isInOrder(const QRect &from, const QRect &to)
{
    const bool isAbove = to.bottom() < from.top() + kUnevenness;
    const bool isInTheRow = to.top() < from.bottom() - kUnevenness && to.bottom() > from.top() + kUnevenness;
    const bool isLeft = to.right() < from.left();
    return !(isAbove && to.left() < from.right()) && !(isInTheRow && isLeft);
}

QStringList faultsOf(const QString &what, EditorWindow *window)
{
    QStringList faults;
    const QVector<QWidget *> stops = stopsIn(window);
    const auto controls = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *control : controls) {
        if (!control->isWindow() && control->isVisible() && control->isEnabled() && takesFocus(control) &&
            qobject_cast<const EditorWindow *>(control) == nullptr && !isReached(control, stops)) {
            faults.append(str("%1: %2 is not reached").arg(what, control->objectName()));
        }
    }
    for (int stop = 1; stop < stops.size(); ++stop) {
        const QWidget *from = stops.at(stop - 1);
        const QWidget *to = stops.at(stop);
        // A window may open in a field that is not the topmost one, such as below its tabs.
        const bool isAboveFirst = to->geometry().bottom() < stops.constFirst()->geometry().top();
        if (!isAboveFirst && !isInOrder(from->geometry(), to->geometry())) {
            faults.append(str("%1: from %2 back to %3").arg(what, from->objectName(), to->objectName()));
        }
    }
    return faults;
}

/// The controls that look the same with the focus as without.
QStringList unseenIn(const QString &what, EditorWindow *window)
{
    QStringList faults;
    const QVector<QWidget *> stops = stopsIn(window);
    for (QWidget *stop : stops) {
        const QRect around = stop->geometry().adjusted(-2, -2, 2, 2);
        QWidget *const focus = stop->focusProxy() != nullptr ? stop->focusProxy() : stop;
        focus->setFocus(Qt::TabFocusReason);
        const QImage with = window->grab(around).toImage();
        if (QApplication::focusWidget() != nullptr) {
            QApplication::focusWidget()->clearFocus();
        }
        if (window->grab(around).toImage() == with) {
            faults.append(str("%1: %2").arg(what, stop->objectName()));
        }
    }
    return faults;
}

/// Letters that more than one of these texts has as its mnemonic.
QString twiceIn(const QStringList &texts)
{
    QString once;
    QString twice;
    for (const QString &text : texts) {
        const QChar letter = Mnemonics::letterOf(text).toUpper();
        if (!letter.isNull()) {
            QString &found = once.contains(letter) ? twice : once;
            found.append(letter);
        }
    }
    return twice;
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions) {
        if (!action->isSeparator()) {
            texts.append(action->text());
        }
    }
    return texts;
}

bool allHaveLetters(const QStringList &texts)
{
    return std::none_of(texts.cbegin(), texts.cend(),
                        [](const QString &text) { return Mnemonics::letterOf(text).isNull(); });
}

} // namespace

void tst_LooksKeys::theTabKeyGoesThroughEveryWindow()
{
    SampleEditor editor;
    QStringList faults;
    int looks = 0;
    EveryWindow every(&editor, [&faults, &looks](const QString &what, EditorWindow *window) {
        if (window->isWindow()) {
            faults += faultsOf(what, window);
            ++looks;
        }
    });
    every.visitAll();
    const QStringList keys = every.windows().keys();
    for (const QString &key : keys) {
        const WindowDescription &window = every.windows()[key];
        if (window.kind == WindowDescription::Kind::kWindow && window.closesAfterMs == 0 &&
            !every.seen().contains(key)) {
            faults.append(str("%1 was not opened by any control").arg(key));
        }
    }
    QVERIFY(looks > 100);
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_LooksKeys::theFocusIsSeenInEveryWindow()
{
    SampleEditor editor;
    QStringList faults;
    EveryWindow every(&editor, [&faults](const QString &what, EditorWindow *window) {
        if (window->isWindow()) {
            faults += unseenIn(what, window);
        }
    });
    every.visitAll();
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_LooksKeys::everyDialogHasAKeyForOkAndForCancel()
{
    SampleEditor editor;
    QStringList faults;
    QSet<QString> closed;
    const auto look = [&editor, &faults, &closed](const QString & /*what*/, EditorWindow *window) {
        const QString key = window->key();
        if (!window->isWindow() || editor->project()->drafts().top() == nullptr || closed.contains(key)) {
            return;
        }
        closed.insert(key);
        const auto buttons = window->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
        const auto isDefault = [](const QPushButton *button) {
            return button->isDefault();
        };
        if (std::count_if(buttons.cbegin(), buttons.cend(), isDefault) != 1) {
            faults.append(str("%1 has no default button, or several").arg(key));
        }
    };
    EveryWindow every(&editor, look);
    every.visitAll();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    closed.remove(str("MainWindow"));
    QVERIFY2(closed.size() > 25, qPrintable(QStringList(closed.values()).join(QLatin1Char(' '))));
    for (const QString &key : qAsConst(closed)) {
        editor->open(key);
        QVERIFY2(editor->openWindows().contains(key), qPrintable(key));
        Editor::key(Qt::Key_Escape);
        QVERIFY2(!editor->openWindows().contains(key), qPrintable(key));
    }
}

void tst_LooksKeys::mnemonicsAreUnique_data()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_LooksKeys::mnemonicsAreUnique()
{
    QFETCH(QString, locale);
    SampleEditor editor(qPrintable(locale));
    const QList<QAction *> menus = editor.frame()->findChild<QMenuBar *>()->actions();
    QVERIFY(menus.size() > 4);
    QVERIFY(allHaveLetters(textsOf(menus)));
    QCOMPARE(twiceIn(textsOf(menus)), QString());
    for (const QAction *menu : menus) {
        const QStringList texts = textsOf(menu->menu()->actions());
        QVERIFY2(allHaveLetters(texts), qPrintable(menu->text()));
        QCOMPARE(twiceIn(texts), QString());
    }
    int windows = 0;
    const auto look = [&windows](const QString &what, EditorWindow *window) {
        QStringList texts;
        const auto buttons = window->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QAbstractButton *button : buttons) {
            if (button->isVisible()) {
                texts.append(button->text());
            }
        }
        QVERIFY2(twiceIn(texts).isEmpty(), qPrintable(what));
        ++windows;
    };
    EveryWindow every(&editor, look);
    every.visitAll();
    QVERIFY(windows > 100);
    QStringList popups;
    for (const PopupDescription &popup : every.windows()[every.windows().popupKey()].popups) {
        QStringList texts;
        const auto entries = editor->window(popup.name)->findChildren<QPushButton *>();
        for (const QPushButton *entry : entries) {
            texts.append(entry->text());
        }
        QVERIFY2(allHaveLetters(texts), qPrintable(popup.name));
        QCOMPARE(twiceIn(texts), QString());
    }
}

QTEST_MAIN(tst_LooksKeys)
#include "tst_LooksKeys.moc"
