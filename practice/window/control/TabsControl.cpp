#include "window/control/TabsControl.h"

#include "window/control/TabRow.h"

#include <QJsonArray>
#include <QSignalBlocker>

namespace {

/// The sets of choices that the tabs stand for; none for tabs that only take turns.
QStringList setsOf(const ControlDescription &control)
{
    QStringList sets;
    const QJsonArray names = control.own.object.value(QStringLiteral("choices")).toArray();
    for (const QJsonValue &name : names) {
        sets.append(name.toString());
    }
    return sets;
}

/// Reads the sets and the field of tabs that stand for sets of choices.
void readSets(ControlReader &reader, int tabs)
{
    const QString kChoices = QStringLiteral("choices");
    if (!reader.hasChoices()) {
        return;
    }
    Q_UNUSED(reader.field());
    const QStringList sets = reader.json().texts(kChoices);
    for (const QString &set : sets) {
        const QString problem = reader.context().project->start().choices.problemOf(set);
        if (!problem.isEmpty()) {
            reader.json().addError(kChoices, problem);
        }
    }
    if (sets.size() != tabs) {
        reader.json().addError(kChoices, QStringLiteral("must have a set for each tab"));
    }
}

/// Rows without a text are counted from 1.
QStringList textsOf(const QVector<Row> &rows)
{
    QStringList texts;
    for (const Row &row : rows) {
        texts.append(row.text.isEmpty() ? QString::number(texts.size() + 1) : row.text);
    }
    return texts;
}

} // namespace

void declareTabs(const QVector<ControlDescription> &controls, Project *project)
{
    for (const ControlDescription &control : controls) {
        const QString source = control.own.object.value(QStringLiteral("source")).toString();
        if (control.type == QLatin1String("tabs") && !source.isEmpty() &&
            control.own.object.contains(QStringLiteral("tabs")) && !project->sources().isPath(source)) {
            const QStringList sets = setsOf(control);
            if (sets.isEmpty()) {
                project->addTabs(source,
                                 int(control.own.object.value(QStringLiteral("tabs")).toArray().size()));
            } else {
                project->addTabs(source, control.own.object.value(QStringLiteral("field")).toString(), sets);
            }
        }
    }
}

ControlMaker readTabs(ControlReader &reader)
{
    QStringList texts;
    const bool areRows = !reader.has(QStringLiteral("tabs"));
    if (!areRows) {
        const QVector<LocalText> labels = reader.json().localTexts(QStringLiteral("tabs"));
        for (const LocalText &label : labels) {
            texts.append(label.value(reader.context().locale));
        }
    }
    const QString source = reader.source();
    readSets(reader, int(texts.size()));
    const QVector<int> tabWidths = reader.tabWidths();
    return [texts, areRows, source, tabWidths, description = reader.description()](EditorWindow *window) {
        const QString name = description.name;
        auto *tabs = new TabRow(texts, tabWidths, window);
        keepFresh(tabs, window, [tabs, window, areRows, source] {
            const QSignalBlocker quiet(tabs);
            if (areRows) {
                tabs->setTexts(textsOf(window->rows(source)));
            }
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
        QObject::connect(tabs, &TabRow::menuRequested, window,
                         [choose, window, description](int index, const QPoint &at) {
                             if (index >= 0) {
                                 choose(index);
                             }
                             window->act(description.contextMenu, at, window->spot(description.name, index));
                         });
        return tabs;
    };
}
