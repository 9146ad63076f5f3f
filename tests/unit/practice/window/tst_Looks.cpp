#include "EveryWindow.h"
#include "Palettes.h"
#include "window/ToolIcon.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabBar>

#include <cmath>

/// Whether everything can be seen, on light and dark desktops, and told by those who cannot see.
class tst_Looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void textCanBeRead_data();
    void textCanBeRead();
    void iconsCanBeSeen_data();
    void iconsCanBeSeen();
    void controlsHaveAccessibleNames_data();
    void controlsHaveAccessibleNames();
    void labelsNameTheControlBesideThem();
    void aDialogKeepsWhatIsBelowFromBeingPressed();
};

namespace {

void addPalettes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << lightPalette();
    QTest::newRow("dark") << darkPalette();
}

double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1 for the same colour to 21 for black and white.
double contrast(const QColor &one, const QColor &other)
{
    const double light = qMax(luminance(one), luminance(other));
    const double dark = qMin(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

/// The largest contrast in the inside of a picture to the colour that most of it has.
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 3; y < picture.height() - 3; ++y) {
        for (int x = 3; x < picture.width() - 3; ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        ground = count.value() > counts.value(ground) ? count.key() : ground;
    }
    double largest = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        largest = qMax(largest, contrast(QColor(count.key()), QColor(ground)));
    }
    return largest;
}

bool showsText(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const auto *edit = qobject_cast<const QLineEdit *>(widget);
    const auto *list = qobject_cast<const RowList *>(widget);
    return (label != nullptr && !label->text().isEmpty()) ||
           (button != nullptr && !button->text().isEmpty()) || (edit != nullptr && !edit->text().isEmpty()) ||
           (list != nullptr && list->count() > 0);
}

} // namespace

void tst_Looks::cleanup()
{
    QApplication::setPalette(QApplication::style()->standardPalette());
}

void tst_Looks::textCanBeRead_data()
{
    addPalettes();
}

void tst_Looks::textCanBeRead()
{
    QFETCH(QPalette, palette);
    QApplication::setStyle(QStyleFactory::create(str("Fusion")));
    QApplication::setPalette(palette);
    SampleEditor editor;
    QSet<QString> checked;
    QStringList faults;
    const auto look = [&checked, &faults](const QString &what, EditorWindow *window) {
        const QImage picture = window->grab().toImage();
        const auto widgets = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *widget : widgets) {
            const QString name = window->key() + QLatin1Char(' ') + widget->objectName();
            if (!showsText(widget) || !widget->isVisible() || !widget->isEnabled() ||
                checked.contains(name)) {
                continue;
            }
            checked.insert(name);
            const double seen = contrastIn(picture.copy(widget->geometry()));
            if (seen < 4.5) {
                faults.append(str("%1, %2: %3").arg(what, widget->objectName()).arg(seen));
            }
        }
    };
    EveryWindow every(&editor, look);
    every.visitAll();
    QVERIFY(checked.size() > 600);
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
    QVERIFY(contrastIn(editor.frame()->findChild<QMenuBar *>()->grab().toImage()) >= 4.5);
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    Editor::key(Qt::Key_Down);
    for (const char *entry : {"mapProperties", "deleteMap"}) {
        QVERIFY(contrastIn(editor.find<QWidget>("MapPopup", entry)->grab().toImage()) >= 4.5);
    }
    const auto colourOf = [&editor](const char *entry) {
        return editor.find<QWidget>("MapPopup", entry)->grab().toImage().pixelColor(3, 14);
    };
    QCOMPARE(colourOf("mapProperties"), palette.color(QPalette::Highlight));
    QVERIFY(colourOf("deleteMap") != palette.color(QPalette::Highlight));
}

void tst_Looks::iconsCanBeSeen_data()
{
    addPalettes();
}

void tst_Looks::iconsCanBeSeen()
{
    QFETCH(QPalette, palette);
    const QColor ground = palette.color(QPalette::Window);
    const QStringList names = toolIcons();
    QVERIFY(names.size() > 15);
    for (const QString &name : names) {
        const QImage picture = toolIcon(name).pixmap(QSize(24, 24)).toImage();
        int drawn = 0;
        int clear = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                drawn += color.alpha() > 128 ? 1 : 0;
                clear += color.alpha() > 128 && contrast(color, ground) >= 2.5 ? 1 : 0;
            }
        }
        QVERIFY2(drawn > 0 && clear * 5 >= drawn,
                 qPrintable(str("%1: %2 of %3").arg(name).arg(clear).arg(drawn)));
    }
}

void tst_Looks::controlsHaveAccessibleNames_data()
{
    QTest::addColumn<QByteArray>("locale");
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QByteArray(locale);
    }
}

void tst_Looks::controlsHaveAccessibleNames()
{
    QFETCH(QByteArray, locale);
    const Editor editor(locale.constData());
    QStringList errors;
    const auto descriptions = DescriptionSet::read(str(":/descriptions"), nullptr, &errors);
    const QStringList keys = descriptions.keys();
    int checked = 0;
    for (const QString &key : keys) {
        const EditorWindow *window = editor->window(key);
        if (window == nullptr) {
            continue;
        }
        for (const ControlDescription &control : descriptions[key].controls) {
            auto *widget = window->findChild<QWidget *>(control.name, Qt::FindDirectChildrenOnly);
            QVERIFY2(widget != nullptr, qPrintable(key + QLatin1Char(' ') + control.name));
            if (control.type == str("label")) {
                continue;
            }
            QAccessibleInterface *const access = QAccessible::queryAccessibleInterface(widget);
            QVERIFY(access != nullptr);
            // Qt calls a row of tabs as the current one; the pages of an event are none before it is open.
            const auto *tabs = qobject_cast<QTabBar *>(widget);
            const QString name = tabs != nullptr && tabs->count() == 0 ? widget->accessibleName()
                                                                       : access->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), qPrintable(key + QLatin1Char(' ') + control.name));
            ++checked;
        }
    }
    QVERIFY(checked > 40);
}

void tst_Looks::labelsNameTheControlBesideThem()
{
    const Editor editor;
    const auto name = [&editor](const char *window, const char *control) {
        return QAccessible::queryAccessibleInterface(editor.find<QWidget>(window, control))
            ->text(QAccessible::Name);
    };
    QCOMPARE(name("MapProperties", "name"), str("Name"));
    QCOMPARE(name("MapProperties", "height"), str("Height"));
    QCOMPARE(name("MapProperties", "ok"), str("OK"));
    QCOMPARE(name("MapEditTreeBox", "maps"), str("Maps"));
    QCOMPARE(name("MapLoader", "sampleMaps"), str("Load a sample map"));
    QCOMPARE(name("MainWindow", "drawPencil"), str("Pencil"));
}

void tst_Looks::aDialogKeepsWhatIsBelowFromBeingPressed()
{
    Editor editor;
    editor.openProject();
    const auto access = [](QWidget *widget) {
        return QAccessible::queryAccessibleInterface(widget);
    };
    // A button that is pressed so goes down, and up some time later.
    const auto press = [&access](QAbstractButton *button) {
        access(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_VERIFY(!button->isDown());
    };
    EditorWindow *const main = editor->window(str("MainWindow"));
    QVERIFY(!access(main)->state().disabled);
    editor->open(str("MapProperties"));
    EditorWindow *const properties = editor->window(str("MapProperties"));
    QCOMPARE(access(properties)->role(), QAccessible::Dialog);
    QVERIFY(access(properties)->state().modal);
    QVERIFY(access(main)->state().disabled);
    editor.takeTold();

    press(editor.find<QAbstractButton>("MainWindow", "fileNew"));
    QCOMPARE(editor->openWindows().constLast(), str("MapProperties"));
    auto *maps = editor.find<RowList>("MapEditTreeBox", "maps");
    maps->setCurrentRow(1);
    QCOMPARE(maps->currentRow(), 0);
    QCOMPARE(editor.rows("maps").value(0).text, editor.shownMap()->name);

    editor->open(str("ImageSelector"));
    QVERIFY(!access(properties)->state().modal);
    QVERIFY(access(properties)->state().disabled);
    press(editor.find<QAbstractButton>("MapProperties", "ok"));
    QCOMPARE(editor->openWindows().constLast(), str("ImageSelector"));
    editor->close(str("ImageSelector"));
    QVERIFY(access(properties)->state().modal);
    press(editor.find<QAbstractButton>("MapProperties", "ok"));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QVERIFY(!access(main)->state().disabled);
    press(editor.find<QAbstractButton>("MainWindow", "fileNew"));
    QCOMPARE(editor->openWindows().constLast(), str("NewProject"));
}

QTEST_MAIN(tst_Looks)
#include "tst_Looks.moc"
