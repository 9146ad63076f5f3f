#include "lesson/description/WindowDescription.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

ControlAction readAction(JsonReader &parent, const QString &field)
{
    ControlAction action;
    if (auto reader = parent.object(field)) {
        action.run = reader->oneOrMoreTexts(str("run"));
        action.close = reader->flag(str("close"));
        action.open = reader->text(str("open"), QString());
        action.begin = reader->oneOrMoreTexts(str("begin"));
        action.popup = reader->text(str("popup"), QString());
        if (reader->has(str("entry"))) {
            action.entry = reader->value(str("entry"));
        }
        action.when = ControlRequirement::read(*reader, str("when"));
        if (reader->has(str("otherwise"))) {
            action.otherwise = std::make_shared<ControlAction>(readAction(*reader, str("otherwise")));
            if (action.when.isEmpty()) {
                reader->addError(str("otherwise"), str("never happens; give the action a when, too"));
            }
        }
        reader->reportUnknownFields();
        if (action.isEmpty()) {
            parent.addError(field, str("does nothing; give it a run, close, open or popup, or remove it"));
        }
        if (!action.begin.isEmpty() && action.open.isEmpty()) {
            parent.addError(field, str("begins something in no window; give it an open, too"));
        }
        if (!action.entry.isUndefined() && action.run.isEmpty() && action.begin.isEmpty()) {
            parent.addError(field, str("has an entry that nothing adds; give it a run or begin that does"));
        }
    }
    return action;
}

void readAction(JsonReader &reader, ControlDescription &control)
{
    control.actionName = reader.text(str("action"));
    control.actionState = reader.text(str("actionState"));
    if (control.actionState != QString() && control.actionState != str("open") &&
        control.actionState != str("close")) {
        reader.addError(str("actionState"), str("must be \"open\", \"close\" or empty"));
    }
    control.actionEnds = reader.flag(str("actionEnds"));
}

/// A size of a list; 0 when there is none.
int readSize(JsonReader &reader, const QString &field)
{
    const int size = reader.number(field, 0);
    if (reader.has(field) && size <= 0) {
        reader.addError(field, str("must be above 0"));
    }
    return size;
}

Stretch readStretch(JsonReader &reader)
{
    Stretch stretch;
    if (reader.has(str("grows"))) {
        const QString way = reader.choice(str("grows"), {str("right"), str("down"), str("both")});
        stretch.right = way != str("down");
        stretch.down = way != str("right");
    }
    if (reader.has(str("anchor"))) {
        reader.choice(str("anchor"), {str("bottom")});
        stretch.isAtBottom = true;
    }
    return stretch;
}

/// The widths of tabs.
QVector<int> readWidths(JsonReader &reader, const QString &field)
{
    const QVector<int> widths = reader.oneOrMoreNumbers(field);
    if (widths.isEmpty() || *std::min_element(widths.cbegin(), widths.cend()) <= 0) {
        reader.addError(field, str("must be above 0"));
    }
    return widths;
}

ControlDescription readControl(JsonReader &reader)
{
    ControlDescription control;
    control.type = reader.text(str("type"));
    control.name = reader.text(str("name"));
    control.geometry = reader.rect(str("geometry"));
    control.stretch = readStretch(reader);
    if (reader.has(str("label"))) {
        control.label = reader.localText(str("label"));
    }
    if (reader.has(str("action")) || reader.has(str("actionState"))) {
        readAction(reader, control);
    }
    control.rowHeight = readSize(reader, str("rowHeight"));
    if (reader.has(str("tabWidth"))) {
        control.tabWidths = readWidths(reader, str("tabWidth"));
    }
    control.click = readAction(reader, str("click"));
    control.doubleClick = readAction(reader, str("doubleClick"));
    control.contextMenu = readAction(reader, str("contextMenu"));
    control.deleteKey = readAction(reader, str("delete"));
    control.copyKey = readAction(reader, str("copy"));
    control.pasteKey = readAction(reader, str("paste"));
    control.shownWhen = ControlRequirement::read(reader, str("shownWhen"));
    control.enabledWhen = ControlRequirement::read(reader, str("enabledWhen"));
    control.own = reader.rest();
    return control;
}

QStringList toolButtonsOf(const QVector<ControlDescription> &controls)
{
    QStringList names;
    for (const ControlDescription &control : controls) {
        if (control.type == str("toolButton")) {
            names.append(control.name);
        }
    }
    return names;
}

WindowDescription::Kind readKind(JsonReader &reader)
{
    const QStringList names{str("window"), str("part"), str("popup"), str("area")};
    return static_cast<WindowDescription::Kind>(qMax(0, names.indexOf(reader.choice(str("kind"), names))));
}

void readWhatKindHas(JsonReader &reader, WindowDescription &window)
{
    using Kind = WindowDescription::Kind;
    if (window.kind == Kind::kPart) {
        window.owner = reader.text(str("partOf"));
        window.stretch = readStretch(reader);
    }
    if (window.kind == Kind::kArea) {
        window.owner = reader.text(str("areaOf"));
    }
    if (window.kind == Kind::kWindow || window.kind == Kind::kPart) {
        window.place = reader.point(str("place"));
        window.controls = ControlDescription::readAll(reader, window.size);
    }
    if (window.kind == Kind::kWindow) {
        window.isDraft = reader.flag(str("draft"));
        window.menus = MenuDescription::read(reader, toolButtonsOf(window.controls));
    }
    if (window.kind == Kind::kWindow && reader.has(str("titleField"))) {
        window.titleField = reader.text(str("titleField"));
        window.titleText = reader.localText(str("titleText"));
    }
    if (window.kind == Kind::kWindow && reader.has(str("minimumSize"))) {
        window.minimumSize = reader.size(str("minimumSize"));
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
            popup.controls = ControlDescription::readAll(popupReader, popup.size);
            popupReader.reportUnknownFields();
            window.popups.append(popup);
        }
    }
}

} // namespace

QRect Stretch::apply(const QRect &described, const QSize &growth) const
{
    const QRect grown = described.adjusted(0, 0, right ? growth.width() : 0, down ? growth.height() : 0);
    return isAtBottom ? grown.translated(0, growth.height()) : grown;
}

bool ControlAction::isEmpty() const
{
    return run.isEmpty() && !close && open.isEmpty() && popup.isEmpty();
}

bool ControlDescription::isCalled(const QString &word) const
{
    return name.section(QLatin1Char('/'), -1) == word;
}

int ControlDescription::tabLeft(int tab) const
{
    int left = 0;
    for (int before = 0; before < tab; ++before) {
        left += tabWidth(before);
    }
    return left;
}

int ControlDescription::tabWidth(int tab) const
{
    return tabWidths.value(tab, tabWidths.isEmpty() ? 0 : tabWidths.constLast());
}

int ControlDescription::tabAt(int x) const
{
    int tab = 0;
    while (tabWidth(tab) > 0 && x >= tabLeft(tab + 1)) {
        ++tab;
    }
    return tab;
}

QString ControlDescription::target() const
{
    return own.object.value(str("target")).toString();
}

QVector<QPair<QString, ControlAction>> ControlDescription::actions() const
{
    QVector<QPair<QString, ControlAction>> actions{{str("click"), click},
                                                   {str("doubleClick"), doubleClick},
                                                   {str("contextMenu"), contextMenu},
                                                   {str("delete"), deleteKey},
                                                   {str("copy"), copyKey},
                                                   {str("paste"), pasteKey}};
    for (int i = 0; i < actions.size(); ++i) {
        if (const auto otherwise = actions.at(i).second.otherwise) {
            actions.append({actions.at(i).first, *otherwise});
        }
    }
    return actions;
}

QVector<ControlDescription> ControlDescription::readAll(JsonReader &parent, const QSize &size)
{
    QVector<ControlDescription> controls;
    QSet<QString> names;
    for (JsonReader &reader : parent.objects(str("controls"))) {
        const ControlDescription control = readControl(reader);
        if (names.contains(control.name)) {
            reader.addError(str("name"),
                            str("\"%1\" stands here twice; give each control its own").arg(control.name));
        }
        if (!QRect(QPoint(), size).contains(control.geometry)) {
            reader.addError(str("geometry"), str("reaches out of the window; keep it inside its size"));
        }
        names.insert(control.name);
        controls.append(control);
    }
    return controls;
}

WindowDescription WindowDescription::read(const QString &path, QStringList *errors)
{
    WindowDescription window;
    auto reader = JsonReader::open(path, errors);
    if (!reader) {
        return window;
    }
    window.key = reader->text(str("key"));
    const QString fileName = window.key.isEmpty() ? str("Screen") : window.key;
    if (QFileInfo(path).completeBaseName() != fileName) {
        reader->addError(str("key"), str("the file of this key must be called \"%1.json\"").arg(fileName));
    }
    window.kind = readKind(*reader);
    window.title = reader->localText(str("title"));
    window.size = reader->size(str("size"));
    readWhatKindHas(*reader, window);
    reader->reportUnknownFields();
    return window;
}
