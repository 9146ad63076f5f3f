#pragma once

#include "EditorFixture.h"
#include "window/control/CellPicker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabBar>

/// Uses controls as a person does, each so that it shows something else behind it. It opens and closes
/// nothing.
class WindowHands
{
public:
    /// Whether a person could use the control at present.
    static bool canUse(const QWidget *control)
    {
        return control != nullptr && control->isVisible() && control->isEnabled();
    }

    /// Uses all there is to fill in, to choose from and to switch in the window, once behind each of its
    /// tabs.
    static void useAll(EditorWindow *window)
    {
        const auto rows = window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
        for (QTabBar *tabs : rows) {
            for (int tab = 0; canUse(tabs) && tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                useShown(window);
            }
        }
        useShown(window);
    }

    /// The same of what shows behind the tabs that are in front.
    static void useShown(EditorWindow *window)
    {
        const auto controls = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *control : controls) {
            // One may have taken another one away.
            if (canUse(control)) {
                use(control);
            }
        }
    }

private:
    static void use(QWidget *control)
    {
        if (auto *box = qobject_cast<QComboBox *>(control); box != nullptr && box->count() > 1) {
            const int next = (box->currentIndex() + 1) % box->count();
            box->setCurrentIndex(next);
            Q_EMIT box->activated(next);
        } else if (auto *check = qobject_cast<QCheckBox *>(control)) {
            check->click();
        } else if (auto *radio = qobject_cast<QRadioButton *>(control)) {
            radio->click();
        } else if (auto *spin = qobject_cast<QSpinBox *>(control)) {
            spin->setValue(spin->value() < spin->maximum() ? spin->value() + 1 : spin->value() - 1);
        } else if (auto *line = qobject_cast<QLineEdit *>(control)) {
            QTest::keyClicks(line, str("a"));
        } else if (auto *text = qobject_cast<QPlainTextEdit *>(control)) {
            QTest::keyClicks(text, str("a"));
        } else if (auto *list = qobject_cast<RowList *>(control); list != nullptr && list->count() > 1) {
            QTest::keyClick(list, list->currentRow() + 1 < list->count() ? Qt::Key_Down : Qt::Key_Home);
        } else if (auto *picker = qobject_cast<CellPicker *>(control)) {
            QTest::keyClick(picker, Qt::Key_Right);
            QTest::keyClick(picker, Qt::Key_Down);
        }
    }
};
