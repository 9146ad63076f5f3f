#pragma once

#include "PracticeEditor.h"
#include "XWindows.h"
#include "pilot/ArrowSpot.h"
#include "pilot/x11/XEye.h"
#include "window/EditorWindowSet.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

class QLabel;

/// The whole practice editor with the real companion, and a learner at the mouse.
class PracticeTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr int kSoonMs = 30000;

    /// What the editor is started with: lesson 1 in English, and projects in a folder of their own.
    [[nodiscard]] PracticeEditor::Options options() const;
    void start(const PracticeEditor::Options &options);
    /// Until the first step rests on the screen, with its button.
    void waitForTheLesson();

    /// A click of the real mouse at a place in a widget, as soon as the X server would give it to the
    /// widget's window: one that is only just shown, or still lies below a window on its way out, gets none.
    [[nodiscard]] static bool clickOn(const QWidget *widget, const QPoint &place, int button = 1);
    [[nodiscard]] static bool clickOn(const QWidget *widget);

    /// The widget with this name in any window.
    template<typename Widget>
    [[nodiscard]] static Widget *find(const char *name)
    {
        const QWidgetList topLevels = QApplication::topLevelWidgets();
        for (const QWidget *topLevel : topLevels) {
            if (auto *widget = topLevel->findChild<Widget *>(QString::fromLatin1(name))) {
                return widget;
            }
        }
        qFatal("there is no %s", name);
    }
    /// What the lesson strip says; a control of a window may have the same name.
    [[nodiscard]] static const QLabel *stripText();

    [[nodiscard]] SeenOverlays overlays() const;
    /// Whether the bubble of a step without a place rests in the middle of the main window, beside its
    /// button.
    [[nodiscard]] bool isReadable() const;
    /// Whether the arrow on the screen points at the spot of the present step.
    [[nodiscard]] bool isPointing() const;
    [[nodiscard]] int stepId() const;
    /// Clicks what the arrow points at in the main window, once it does.
    [[nodiscard]] bool clickSpot() const;
    /// The contents of the main window, and the window around them.
    [[nodiscard]] QWidget *contents() const { return m_windows->window(QStringLiteral("MainWindow")); }
    [[nodiscard]] QWidget *mainWindow() const { return contents()->window(); }
    /// Skips to the step at "New", and does it.
    void openNewProject();

    QTemporaryDir m_projects;
    EditorWindowSet *m_windows = nullptr;
    std::unique_ptr<PracticeEditor> m_editor;

private Q_SLOTS:
    void initTestCase();
    void cleanup();

private:
    std::unique_ptr<XEye> m_eye;
};
