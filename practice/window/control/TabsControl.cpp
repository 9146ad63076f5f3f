#include "window/control/TabsControl.h"

#include "window/control/TabRow.h"

#include <QJsonArray>
#include <QSignalBlocker>

void declareTabs(const QVector<ControlDescription> &controls, Project *project)
{
    for (const ControlDescription &control : controls) {
        const QString source = control.own.object.value(QStringLiteral("source")).toString();
        if (control.type == QLatin1String("tabs") && !source.isEmpty() &&
            !project->sources().isPath(source)) {
            project->addTabs(source, int(control.own.object.value(QStringLiteral("tabs")).toArray().size()));
        }
    }
}

ControlMaker readTabs(ControlReader &reader)
{
    QStringList texts;
    const QVector<LocalText> labels = reader.json().localTexts(QStringLiteral("tabs"));
    for (const LocalText &label : labels) {
        texts.append(label.value(reader.context().locale));
    }
    const QString source = reader.source();
    const int tabWidth = reader.tabWidth();
    return [texts, source, tabWidth, name = reader.description().name](EditorWindow *window) {
        auto *tabs = new TabRow(texts, tabWidth, window);
        keepFresh(tabs, window, [tabs, window, source] {
            const QSignalBlocker quiet(tabs);
            tabs->setCurrentIndex(window->currentRow(source));
        });
        const auto choose = [window, source, name](int index) {
            window->setCurrentRow(source, index);
            window->report(QStringLiteral("tabView"), QStringLiteral("tabview"), QString::number(index),
                           window->spot(name, index));
        };
        // A click on the current tab counts too; currentChanged() alone would only tell of the others.
        QObject::connect(tabs, &QTabBar::tabBarClicked, window, [choose](int index) {
            if (index >= 0) {
                choose(index);
            }
        });
        QObject::connect(tabs, &QTabBar::currentChanged, window, [choose, window, source](int index) {
            if (window->currentRow(source) != index) {
                choose(index);
            }
        });
        return tabs;
    };
}
