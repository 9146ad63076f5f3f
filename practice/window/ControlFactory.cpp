#include "window/ControlFactory.h"

#include "window/EditorProject.h"
#include "window/MapView.h"
#include "window/PictureBox.h"
#include "window/RowList.h"
#include "window/TabRow.h"
#include "window/ToolIcon.h"

#include <QCheckBox>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace {

using Context = EditorWindowContext;

/// Runs @p refresh now and after each change of the project, as long as @p widget lives.
template<typename Refresh>
void keepFresh(QWidget *widget, const Context &context, Refresh refresh)
{
    QObject::connect(context.project, &EditorProject::changed, widget, refresh);
    refresh();
}

/// Carries out what a click on the button does and reports the action, if it is one.
void wireClick(QAbstractButton *button, const ControlDescription &control, EditorWindow *window)
{
    QObject::connect(button, &QAbstractButton::clicked, window, [control, window] {
        window->act(control.click, QCursor::pos());
        if (!control.actionName.isEmpty())
            window->report(QStringLiteral("action"), control.actionName, control.actionState);
    });
}

QWidget *makeLabel(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *label = new QLabel(context.text(control.label), window);
    if (!control.field.isEmpty()) {
        keepFresh(label, context, [label, field = control.field, project = context.project] {
            label->setText(project->field(field).toString());
        });
    }
    return label;
}

QWidget *makeLineEdit(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *edit = new QLineEdit(window);
    keepFresh(edit, context, [edit, field = control.field, project = context.project] {
        if (edit->text() != project->field(field).toString())
            edit->setText(project->field(field).toString());
    });
    QObject::connect(edit, &QLineEdit::textEdited, context.project,
                     [field = control.field, project = context.project](const QString &text) {
                         project->setField(field, text);
                     });
    return edit;
}

QWidget *makeSpinBox(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *spin = new QSpinBox(window);
    spin->setRange(control.minimum, control.maximum);
    spin->setSuffix(control.suffix);
    keepFresh(spin, context, [spin, field = control.field, project = context.project] {
        const QSignalBlocker quiet(spin);
        spin->setValue(project->field(field).toInt());
    });
    QObject::connect(spin, qOverload<int>(&QSpinBox::valueChanged), window,
                     [spin, window, field = control.field, project = context.project](int value) {
                         project->setField(field, value);
                         window->report(QStringLiteral("spinBox"), QStringLiteral("="), spin->text());
                     });
    return spin;
}

QWidget *makeCheckBox(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *box = new QCheckBox(context.text(control.label), window);
    keepFresh(box, context, [box, field = control.field, project = context.project] {
        box->setChecked(project->field(field).toBool());
    });
    QObject::connect(
        box, &QCheckBox::clicked, window, [control, window, project = context.project](bool checked) {
            project->setField(control.field, checked);
            window->report(QStringLiteral("checked"), control.name, QString::number(checked ? 1 : 0));
        });
    return box;
}

QWidget *makeButton(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *button = new QPushButton(context.text(control.label), window);
    if (control.isDefault)
        window->setDefaultButton(button);
    wireClick(button, control, window);
    return button;
}

QWidget *makeEntry(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *entry = new QPushButton(context.text(control.label), window);
    entry->setFlat(true);
    entry->setFocusPolicy(Qt::NoFocus);
    entry->setStyleSheet(QStringLiteral(
        "QPushButton { text-align: left; padding-left: 10px; border: none; }"
        "QPushButton:hover { background: palette(highlight); color: palette(highlighted-text); }"));
    wireClick(entry, control, window);
    return entry;
}

QWidget *makeToolButton(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    constexpr int kFontPixels = 10;
    constexpr int kIconPixels = 24;
    auto *button = new QToolButton(window);
    button->setText(context.text(control.label));
    button->setIcon(toolIcon(control.icon));
    button->setIconSize({kIconPixels, kIconPixels});
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    QFont small = window->font();
    small.setPixelSize(kFontPixels);
    button->setFont(small);
    keepFresh(button, context, [button, control, project = context.project] {
        button->setEnabled(control.needs.isEmpty() || project->isOpen());
        const std::optional<bool> on = project->isOn(control.click.run);
        button->setCheckable(on.has_value());
        button->setChecked(on.value_or(false));
    });
    wireClick(button, control, window);
    return button;
}

QWidget *makeTabs(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    QStringList texts;
    for (const LocalText &tab : control.tabs)
        texts.append(context.text(tab));
    auto *tabs = new TabRow(texts, control.tabWidth, window);
    keepFresh(tabs, context, [tabs, source = control.source, project = context.project] {
        const QSignalBlocker quiet(tabs);
        tabs->setCurrentIndex(project->currentRow(source));
    });
    const auto choose = [window, source = control.source, project = context.project](int index) {
        project->setCurrentRow(source, index);
        window->report(QStringLiteral("tabView"), QStringLiteral("tabview"), QString::number(index));
    };
    // A click on the current tab counts too; currentChanged() alone would only tell of the others.
    QObject::connect(tabs, &QTabBar::tabBarClicked, window, [choose](int index) {
        if (index >= 0)
            choose(index);
    });
    QObject::connect(tabs, &QTabBar::currentChanged, window,
                     [choose, source = control.source, project = context.project](int index) {
                         if (project->currentRow(source) != index)
                             choose(index);
                     });
    return tabs;
}

QWidget *makeList(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *list = new RowList(context.project, context.painter, control.source, control.rowHeight, window);
    QObject::connect(list, &RowList::rowChosen, window, [window](int row) {
        window->report(QStringLiteral("list"), QString::number(row), QString());
    });
    QObject::connect(list, &QListWidget::itemDoubleClicked, window,
                     [control, window] { window->act(control.doubleClick, QCursor::pos()); });
    QObject::connect(list, &RowList::menuRequested, window,
                     [control, window](const QPoint &at) { window->act(control.contextMenu, at); });
    return list;
}

QWidget *makePicture(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *picture = new PictureBox(context.project, context.painter, control.picture, window);
    wireClick(picture, control, window);
    return picture;
}

QWidget *makeProgress(const ControlDescription & /*control*/, const Context & /*context*/,
                      EditorWindow *window)
{
    auto *bar = new QProgressBar(window);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    return bar;
}

QWidget *makeMap(const ControlDescription &control, const Context &context, EditorWindow *window)
{
    auto *area = new QScrollArea(window);
    area->setFrameShape(QFrame::NoFrame);
    area->setBackgroundRole(QPalette::Dark);
    auto *view = new MapView(context.project, context.painter);
    area->setWidget(view);
    QObject::connect(view, &MapView::pressed, window, [window] {
        window->report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"));
    });
    QObject::connect(view, &MapView::clicked, window, [window, target = control.target] {
        window->report(QStringLiteral("mouseEvent"), target, QStringLiteral("click"));
    });
    QObject::connect(view, &MapView::menuRequested, window, [window, control](const QPoint &at) {
        window->report(QStringLiteral("menuEvent"), control.target, QStringLiteral("click"));
        window->act(control.contextMenu, at);
    });
    return area;
}

} // namespace

QWidget *makeControl(const ControlDescription &control, const EditorWindowContext &context,
                     EditorWindow *window)
{
    using Maker = QWidget *(*)(const ControlDescription &, const EditorWindowContext &, EditorWindow *);
    static const QMap<QString, Maker> makers{
        {QStringLiteral("button"), makeButton},     {QStringLiteral("checkBox"), makeCheckBox},
        {QStringLiteral("entry"), makeEntry},       {QStringLiteral("label"), makeLabel},
        {QStringLiteral("lineEdit"), makeLineEdit}, {QStringLiteral("list"), makeList},
        {QStringLiteral("map"), makeMap},           {QStringLiteral("picture"), makePicture},
        {QStringLiteral("progress"), makeProgress}, {QStringLiteral("spinBox"), makeSpinBox},
        {QStringLiteral("tabs"), makeTabs},         {QStringLiteral("toolButton"), makeToolButton},
    };
    return makers[control.type](control, context, window);
}
