#include "window/control/ControlTypes.h"

#include "window/control/ButtonControl.h"
#include "window/control/CheckBoxControl.h"
#include "window/control/ComboBoxControl.h"
#include "window/control/ControlState.h"
#include "window/control/CurveControl.h"
#include "window/control/EntryControl.h"
#include "window/control/LabelControl.h"
#include "window/control/LineEditControl.h"
#include "window/control/ListControl.h"
#include "window/control/MapCellControl.h"
#include "window/control/MapControl.h"
#include "window/control/PictureControl.h"
#include "window/control/ProgressControl.h"
#include "window/control/RadioButtonControl.h"
#include "window/control/SpinBoxControl.h"
#include "window/control/TabsControl.h"
#include "window/control/TextEditControl.h"
#include "window/control/ToolButtonControl.h"

#include <QMap>

namespace {

using Read = ControlMaker (*)(ControlReader &);

const QMap<QString, Read> &readers()
{
    static const QMap<QString, Read> readers{
        {QStringLiteral("button"), readButton},
        {QStringLiteral("checkBox"), readCheckBox},
        {QStringLiteral("comboBox"), readComboBox},
        {QStringLiteral("curve"), readCurve},
        {QStringLiteral("entry"), readEntry},
        {QStringLiteral("label"), readLabel},
        {QStringLiteral("lineEdit"), readLineEdit},
        {QStringLiteral("list"), readList},
        {QStringLiteral("map"), readMap},
        {QStringLiteral("mapCell"), readMapCell},
        {QStringLiteral("picture"), readPicture},
        {QStringLiteral("progress"), readProgress},
        {QStringLiteral("radioButton"), readRadioButton},
        {QStringLiteral("spinBox"), readSpinBox},
        {QStringLiteral("tabs"), readTabs},
        {QStringLiteral("textEdit"), readTextEdit},
        {QStringLiteral("toolButton"), readToolButton},
    };
    return readers;
}

} // namespace

QStringList controlTypes()
{
    return readers().keys();
}

ControlMaker readControl(const ControlDescription &description, const ControlContext &context,
                         QStringList *errors)
{
    ControlReader reader(&description, &context, errors);
    const auto read = readers().constFind(description.type);
    if (read == readers().constEnd()) {
        reader.oneOf(QStringLiteral("type"), description.type, controlTypes());
        return {};
    }
    const ControlMaker maker = (*read)(reader);
    reader.finish();
    return withState(maker, reader);
}
