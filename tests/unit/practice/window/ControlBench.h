#pragma once

#include "DescriptionFiles.h"
#include "EditorFixture.h"
#include "window/TileDrawing.h"
#include "window/control/ControlTypes.h"
#include "window/control/TabsControl.h"

/// A control of a window that a test describes itself, in a project of its own.
class Bench
{
public:
    Bench()
        : project(start(), m_folder.path())
        , painter(&project.start())
        , window(str("Box"), QSize(200, 200), &project, nullptr, Qt::Window)
    {
        project.run(str("newProject.create"), project.files());
        QObject::connect(&window, &EditorWindow::happened, &window,
                         [this](const QString &type, const QString &target, const QString &value,
                                const ControlSpot &cause) {
                             told.append(QStringList{type, target, value}.join(QLatin1Char(',')) +
                                         str(" by %1 %2").arg(cause.control, QString::number(cause.part)));
                         });
    }

    /// Gives the project these items.
    bool setItems(const char *items) { return project.replaceFiles({{str("data/Items.json"), str(items)}}); }
    /// The same, and two maps, of 20 columns and 10 rows, and of 40 and 30.
    bool setItemsAndMaps(const char *items)
    {
        return project.replaceFiles(
            {{str("data/Items.json"), str(items)},
             {str("data/MapInfos.json"), str(R"([null, {"id": 1, "name": "a"}, {"id": 2, "name": "b"}])")},
             {str("data/Map001.json"), str(R"({"width": 20, "height": 10})")},
             {str("data/Map002.json"), str(R"({"width": 40, "height": 30})")}});
    }

    /// Makes the control, which is of this class.
    template<typename Widget>
    Widget *make(const QByteArray &description)
    {
        auto *widget = qobject_cast<Widget *>(make(description));
        if (widget == nullptr) {
            qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
        }
        return widget;
    }

    /// Makes the control that @p description describes. nullptr when something is wrong with it.
    QWidget *make(const QByteArray &description)
    {
        const QByteArray text =
            R"({"key": "Box", "kind": "window", "size": [200, 200], "place": [0, 0], "title": TEXT,
            "controls": [{"name": "it", "geometry": [0, 0, 90, 90], )" +
            description + "}]}";
        const QString path =
            m_files.write(str("Box.json"),
                          QByteArray(text).replace("TEXT", R"({"en_US": "a", "ja_JP": "b", "zh_CN": "c"})"));
        errors.clear();
        const QVector<ControlDescription> controls = WindowDescription::read(path, &errors).controls;
        if (!errors.isEmpty()) {
            return nullptr;
        }
        declareTabs(controls, &project);
        const ControlDescription &control = controls.constFirst();
        const ControlMaker maker = readControl(control, {&project, &painter, str("zh_CN")}, &errors);
        for (QString &error : errors) {
            error.remove(path + str(": controls[0]."));
        }
        if (!errors.isEmpty()) {
            return nullptr;
        }
        QWidget *widget = maker(&window);
        window.add(widget, control);
        return widget;
    }

    [[nodiscard]] QJsonValue value(const char *file, const char *pointer)
    {
        return project.files().value(str(file), str(pointer));
    }

private:
    static StartData start()
    {
        QStringList errors;
        StartData start = StartData::read(str(TUTORIAL_SOURCE_DIR "/practice/descriptions/data"),
                                          tileDrawings(), str("en_US"), &errors);
        DescriptionFiles files;
        files.write(str("kinds.json"), R"({"choices": [
            {"value": "hp", "text": {"en_US": "Recover", "ja_JP": "a", "zh_CN": "b"}},
            {"value": "addState", "text": {"en_US": "Add state", "ja_JP": "a", "zh_CN": "b"}}]})");
        start.choices = ChoiceSets::read(files.folder(), str("en_US"), &errors);
        return start;
    }

    DescriptionFiles m_files;
    QTemporaryDir m_folder;

public:
    /// What was reported, with the control through which it came about.
    QStringList told;
    QStringList errors;
    Project project;
    MapPainter painter;
    EditorWindow window;
};
