#include "lesson/description/MenuDescription.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

MenuEntryDescription readEntry(JsonReader &reader, const QStringList &buttons)
{
    MenuEntryDescription entry;
    if (reader.flag(str("line"))) {
        return entry;
    }
    entry.label = reader.localText(str("label"));
    int ways = 0;
    if (reader.has(str("button"))) {
        entry.button = reader.choice(str("button"), buttons);
        ++ways;
    }
    if (reader.has(str("entry"))) {
        entry.entry = reader.text(str("entry"));
        ++ways;
    }
    if (reader.has(str("run"))) {
        entry.run = reader.text(str("run"));
        ++ways;
    }
    if (reader.has(str("does"))) {
        entry.does = reader.choice(str("does"), {str("copy"), str("paste"), str("delete"), str("quit")});
        ++ways;
    }
    if (ways != 1) {
        reader.addError(str("label"), str("needs one of button, entry, run and does beside it"));
    }
    entry.keys = reader.texts(str("keys"));
    return entry;
}

} // namespace

QVector<MenuDescription> MenuDescription::read(JsonReader &window, const QStringList &buttons)
{
    QVector<MenuDescription> menus;
    for (JsonReader &reader : window.objects(str("menus"))) {
        MenuDescription menu;
        menu.label = reader.localText(str("label"));
        for (JsonReader &entry : reader.objects(str("entries"))) {
            menu.entries.append(readEntry(entry, buttons));
            entry.reportUnknownFields();
        }
        reader.reportUnknownFields();
        menus.append(menu);
    }
    return menus;
}
