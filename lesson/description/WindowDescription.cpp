#include "lesson/description/WindowDescription.h"

#include <QFileInfo>
#include <QSet>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

const QStringList &controlTypes()
{
    static const QStringList types{str("button"),   str("checkBox"), str("entry"), str("label"),
                                   str("lineEdit"), str("list"),     str("map"),   str("picture"),
                                   str("progress"), str("spinBox"),  str("tabs"),  str("toolButton")};
    return types;
}

ControlAction readAction(JsonReader &parent, const QString &field)
{
    ControlAction action;
    if (auto reader = parent.object(field)) {
        action.run = reader->text(str("run"), QString());
        action.close = reader->flag(str("close"));
        action.open = reader->text(str("open"), QString());
        action.popup = reader->text(str("popup"), QString());
        reader->reportUnknownFields();
        if (action.isEmpty())
            parent.addError(field, str("does nothing; give it a run, close, open or popup, or remove it"));
    }
    return action;
}

void readOwnFields(JsonReader &reader, ControlDescription &control)
{
    const QString &type = control.type;
    const bool hasLabel =
        type == str("button") || type == str("entry") || type == str("toolButton") || type == str("checkBox");
    if (hasLabel || (type == str("label") && !reader.has(str("field"))))
        control.label = reader.localText(str("label"));
    if (type == str("list")) {
        control.rowHeight = reader.number(str("rowHeight"));
        control.source = reader.text(str("source"));
        if (control.rowHeight <= 0)
            reader.addError(str("rowHeight"), str("must be above 0"));
    } else if (type == str("tabs")) {
        control.tabWidth = reader.number(str("tabWidth"));
        control.source = reader.text(str("source"));
        control.tabs = reader.localTexts(str("tabs"));
    } else if (type == str("toolButton")) {
        control.icon = reader.text(str("icon"));
        control.needs = reader.text(str("needs"), QString());
        control.actionName = reader.text(str("action"));
        control.actionState = reader.text(str("actionState"));
        if (control.actionState != QString() && control.actionState != str("open") &&
            control.actionState != str("close"))
            reader.addError(str("actionState"), str("must be \"open\", \"close\" or empty"));
    } else if (type == str("spinBox")) {
        const QVector<int> range = reader.numbers(str("range"), 2);
        control.minimum = range[0];
        control.maximum = range[1];
        control.suffix = reader.text(str("suffix"), QString());
    } else if (type == str("picture")) {
        control.picture = reader.text(str("picture"));
    } else if (type == str("map")) {
        control.target = reader.text(str("target"));
    }
}

ControlDescription readControl(JsonReader &reader)
{
    ControlDescription control;
    control.type = reader.choice(str("type"), controlTypes());
    control.name = reader.text(str("name"));
    control.geometry = reader.rect(str("geometry"));
    control.field = reader.text(str("field"), QString());
    control.isDefault = reader.flag(str("default"));
    readOwnFields(reader, control);
    control.click = readAction(reader, str("click"));
    control.doubleClick = readAction(reader, str("doubleClick"));
    control.contextMenu = readAction(reader, str("contextMenu"));
    reader.reportUnknownFields();
    return control;
}

QVector<ControlDescription> readControls(JsonReader &parent, const QSize &size)
{
    QVector<ControlDescription> controls;
    QSet<QString> names;
    for (JsonReader &reader : parent.objects(str("controls"))) {
        const ControlDescription control = readControl(reader);
        if (names.contains(control.name))
            reader.addError(str("name"),
                            str("\"%1\" stands here twice; give each control its own").arg(control.name));
        if (!QRect(QPoint(), size).contains(control.geometry))
            reader.addError(str("geometry"), str("reaches out of the window; keep it inside its size"));
        names.insert(control.name);
        controls.append(control);
    }
    return controls;
}

WindowDescription::Kind readKind(JsonReader &reader)
{
    const QStringList names{str("window"), str("part"), str("popup"), str("area")};
    return static_cast<WindowDescription::Kind>(qMax(0, names.indexOf(reader.choice(str("kind"), names))));
}

void readWhatKindHas(JsonReader &reader, WindowDescription &window)
{
    using Kind = WindowDescription::Kind;
    if (window.kind == Kind::kPart)
        window.owner = reader.text(str("partOf"));
    if (window.kind == Kind::kArea)
        window.owner = reader.text(str("areaOf"));
    if (window.kind == Kind::kWindow || window.kind == Kind::kPart) {
        window.place = reader.point(str("place"));
        window.controls = readControls(reader, window.size);
    }
    if (window.kind == Kind::kWindow && reader.has(str("closesAfterMs"))) {
        window.closesAfterMs = reader.number(str("closesAfterMs"));
        window.after = readAction(reader, str("after"));
    }
    if (window.kind == Kind::kPopup) {
        for (JsonReader &popupReader : reader.objects(str("popups"))) {
            PopupDescription popup;
            popup.name = popupReader.text(str("name"));
            popup.size = popupReader.size(str("size"));
            popup.controls = readControls(popupReader, popup.size);
            popupReader.reportUnknownFields();
            window.popups.append(popup);
        }
    }
}

} // namespace

bool ControlAction::isEmpty() const
{
    return run.isEmpty() && !close && open.isEmpty() && popup.isEmpty();
}

WindowDescription WindowDescription::read(const QString &path, QStringList *errors)
{
    WindowDescription window;
    auto reader = JsonReader::open(path, errors);
    if (!reader)
        return window;
    window.key = reader->text(str("key"));
    const QString fileName = window.key.isEmpty() ? str("Screen") : window.key;
    if (QFileInfo(path).completeBaseName() != fileName)
        reader->addError(str("key"), str("the file of this key must be called \"%1.json\"").arg(fileName));
    window.kind = readKind(*reader);
    window.title = reader->localText(str("title"));
    window.size = reader->size(str("size"));
    readWhatKindHas(*reader, window);
    reader->reportUnknownFields();
    return window;
}
