#include "window/control/CurveControl.h"

#include "window/control/CurveBox.h"

ControlMaker readCurve(ControlReader &reader)
{
    return [field = reader.field()](EditorWindow *window) {
        auto *box = new CurveBox(window);
        keepFresh(box, window, [box, window, field] { box->setPair(fieldValue(window, field)); });
        return box;
    };
}
