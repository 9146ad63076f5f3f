#include "project/events/QuickEvents.h"

#include "project/events/CommandBlock.h"
#include "project/events/MapEvents.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// Codes of the commands that the events are made of.
enum Code {
    kMessage = 101,
    kLine = 401,
    kChoices = 102,
    kEndOfChoices = 404,
    kBranch = 111,
    kElse = 411,
    kEndOfBranch = 412,
    kSelfSwitch = 123,
    kGold = 125,
    kItems = 126,
    kWeapons = 127,
    kArmors = 128,
    kTransfer = 201,
    kFadeOut = 221,
    kFadeIn = 222,
    kWait = 230,
    kRecoverAll = 314,
    kSaveScreen = 304,
};

/// Parameters of a message: no face, a window at the bottom.
constexpr int kAtBottom = 2;
/// How an event begins: when somebody asks, or steps on it.
constexpr int kByAsking = 0;
constexpr int kByTouch = 1;
/// What a branch asks for, and how: at least so much gold.
constexpr int kAsksGold = 7;
constexpr int kAtLeast = 1;
constexpr int kFadeFrames = 30;
constexpr int kNightFrames = 60;

/// A list of commands while it is written, one behind the other.
class Script
{
public:
    Script &add(int code, const QJsonArray &parameters = {})
    {
        m_list.append(CommandBlock::entry(code, m_indent, parameters));
        return *this;
    }

    Script &say(const QString &text)
    {
        add(kMessage, {QString(), 0, 0, kAtBottom});
        return add(kLine, {text});
    }

    /// What is added from here on belongs to the entry before.
    Script &begin()
    {
        ++m_indent;
        return *this;
    }

    Script &end()
    {
        add(EventCommands::kEnd);
        --m_indent;
        return *this;
    }

    /// The list that is written.
    [[nodiscard]] QJsonArray list() const
    {
        QJsonArray list = m_list;
        list.append(CommandBlock::entry(EventCommands::kEnd, 0));
        return list;
    }

private:
    QJsonArray m_list;
    int m_indent = 0;
};

QJsonObject page(const QString &image, int trigger, const QJsonArray &list)
{
    QJsonObject page = MapEvents::blankPage();
    page.insert(str("image"), image);
    page.insert(str("trigger"), trigger);
    page.insert(str("list"), list);
    return page;
}

QJsonObject event(const QString &name, const QJsonArray &pages)
{
    QJsonObject event = MapEvents::blank(name);
    event.insert(str("pages"), pages);
    return event;
}

QString image(const QJsonObject &form)
{
    return form.value(str("image")).toString();
}

QJsonObject transfer(const QJsonObject &form, const QuickEvents::Texts &texts)
{
    const auto number = [&form](const char *member) {
        return form.value(str(member)).toInt();
    };
    const QJsonArray list =
        Script().add(kTransfer, {0, number("map"), number("x"), number("y"), number("direction"), 0}).list();
    return event(texts.value(str("quickTransfer")), {page(image(form), kByTouch, list)});
}

QJsonObject inn(const QJsonObject &form, const QuickEvents::Texts &texts)
{
    const int price = form.value(str("price")).toInt();
    const QString yes = texts.value(str("yes"));
    const QString no = texts.value(str("no"));
    const QJsonArray list = Script()
                                .say(texts.value(str("quickInnAsks")).arg(price))
                                .add(kChoices, {QJsonArray{yes, no}, 1, 0, kAtBottom, 0})
                                .add(EventCommands::kChoice, {0, yes})
                                .begin()
                                .add(kBranch, {kAsksGold, 1, 0, kAtLeast, 0, price, str("A")})
                                .begin()
                                .add(kGold, {1, 0, price})
                                .add(kFadeOut, {kFadeFrames})
                                .add(kRecoverAll, {0, 0})
                                .add(kWait, {kNightFrames})
                                .add(kFadeIn, {kFadeFrames})
                                .say(texts.value(str("quickInnMorning")))
                                .end()
                                .add(kElse)
                                .begin()
                                .say(texts.value(str("quickInnPoor")))
                                .end()
                                .add(kEndOfBranch)
                                .end()
                                .add(EventCommands::kChoice, {1, no})
                                .begin()
                                .end()
                                .add(kEndOfChoices)
                                .list();
    return event(texts.value(str("quickInn")), {page(image(form), kByAsking, list)});
}

QJsonObject treasure(const QJsonObject &form, const QuickEvents::Texts &texts)
{
    const int what = form.value(str("what")).toInt();
    const int number = form.value(str("number")).toInt();
    const int amount = form.value(str("amount")).toInt();
    Script script;
    switch (what) {
    case 1:
        script.add(kItems, {number, 0, 0, 1});
        break;
    case 2:
        script.add(kWeapons, {number, 0, 0, 1, false});
        break;
    case 3:
        script.add(kArmors, {number, 0, 0, 1, false});
        break;
    default:
        script.add(kGold, {0, 0, amount});
        break;
    }
    const QString thing =
        what == 0 ? texts.value(str("quickTreasureGold")).arg(amount) : form.value(str("name")).toString();
    script.say(texts.value(str("quickTreasureFound")).arg(thing)).add(kSelfSwitch, {str("A"), 0});
    QJsonObject empty = page(str("chestOpen"), kByAsking, Script().list());
    empty.insert(str("conditions"), QJsonObject{{str("switchId"), 0}, {str("selfSwitch"), str("A")}});
    return event(texts.value(str("quickTreasure")), {page(str("chest"), kByAsking, script.list()), empty});
}

QJsonObject base(const QJsonObject &form, const QuickEvents::Texts &texts)
{
    const QString rest = texts.value(str("quickBaseRest"));
    const QString save = texts.value(str("quickBaseSave"));
    const QString leave = texts.value(str("quickBaseLeave"));
    const QJsonArray list = Script()
                                .say(texts.value(str("quickBaseAsks")))
                                .add(kChoices, {QJsonArray{rest, save, leave}, 2, 0, kAtBottom, 0})
                                .add(EventCommands::kChoice, {0, rest})
                                .begin()
                                .add(kFadeOut, {kFadeFrames})
                                .add(kRecoverAll, {0, 0})
                                .add(kFadeIn, {kFadeFrames})
                                .end()
                                .add(EventCommands::kChoice, {1, save})
                                .begin()
                                .add(kSaveScreen)
                                .end()
                                .add(EventCommands::kChoice, {2, leave})
                                .begin()
                                .end()
                                .add(kEndOfChoices)
                                .list();
    return event(texts.value(str("quickBase")), {page(image(form), kByAsking, list)});
}

} // namespace

QStringList QuickEvents::kinds()
{
    return {str("transfer"), str("inn"), str("treasure"), str("base")};
}

QJsonObject QuickEvents::form(const QString &kind)
{
    if (kind == str("transfer")) {
        return {{str("map"), 1},
                {str("x"), 0},
                {str("y"), 0},
                {str("direction"), 0},
                {str("image"), str("door")}};
    }
    if (kind == str("inn")) {
        return {{str("price"), 10}, {str("image"), str("innkeeper")}};
    }
    if (kind == str("treasure")) {
        return {{str("what"), 0}, {str("number"), 1}, {str("amount"), 10}};
    }
    return {{str("image"), str("crystal")}};
}

QJsonObject QuickEvents::made(const QString &kind, const QJsonObject &form, const Texts &texts)
{
    if (kind == str("transfer")) {
        return transfer(form, texts);
    }
    if (kind == str("inn")) {
        return inn(form, texts);
    }
    if (kind == str("treasure")) {
        return treasure(form, texts);
    }
    return kind == str("base") ? base(form, texts) : QJsonObject();
}
