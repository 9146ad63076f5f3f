#include "window/control/ProgressControl.h"

#include <QProgressBar>

ControlMaker readProgress(ControlReader & /*reader*/)
{
    return [](EditorWindow *window) {
        auto *bar = new QProgressBar(window);
        bar->setRange(0, 0);
        bar->setTextVisible(false);
        return bar;
    };
}
