#include "player/run/Expectations.h"
#include "player/run/Expecting.h"

#include <algorithm>

namespace player {

using namespace Expecting;

namespace {

const Panel *shownMessage(const Hand &hand)
{
    return hand.frame().panel("message");
}

/// What waits for a key or an answer does not change by itself.
bool rests(const Hand &hand)
{
    const Panel *const shown = shownMessage(hand);
    return hand.frame().list() != nullptr || (shown != nullptr && shown->isWaiting);
}

/// Waits for what a message shows, up to where it rests.
Seen ofMessage(Hand *hand, const std::function<bool()> &isThere)
{
    (void)hand->until(kPatience, [&] { return isThere() || rests(*hand); });
    return {isThere(), hand->seen()};
}

Seen message(Hand *hand, const QStringList &values)
{
    const QString wanted = values.at(0).simplified();
    return ofMessage(hand, [hand, &wanted] {
        const QVector<Panel> panels = hand->frame().panels;
        return std::any_of(panels.begin(), panels.end(),
                           [&wanted](const Panel &panel) { return Hand::textOf(panel).contains(wanted); });
    });
}

Seen anyMessage(Hand *hand, const QStringList &)
{
    return onScreen(hand, [hand] {
        const Panel *const shown = shownMessage(*hand);
        return shown != nullptr && !shown->texts().join(QString()).trimmed().isEmpty();
    });
}

Seen noMessage(Hand *hand, const QStringList &)
{
    return {shownMessage(*hand) == nullptr, hand->seen()};
}

Seen speaker(Hand *hand, const QStringList &values)
{
    return ofMessage(hand, [&] {
        const Panel *const shown = shownMessage(*hand);
        return shown != nullptr && shown->title == values.at(0);
    });
}

Seen anySpeaker(Hand *hand, const QStringList &)
{
    return ofMessage(hand, [hand] {
        const Panel *const shown = shownMessage(*hand);
        return shown != nullptr && !shown->title.isEmpty();
    });
}

Seen face(Hand *hand, const QStringList &values)
{
    const auto shownFace = [hand] {
        const Panel *const shown = shownMessage(*hand);
        return shown != nullptr ? shown->face : QStringLiteral("no message");
    };
    (void)hand->until(kPatience, [&] { return shownFace() == values.at(0) || rests(*hand); });
    return {shownFace() == values.at(0), shownFace()};
}

QStringList rowsOf(const Hand &hand)
{
    QStringList texts;
    if (const Panel *const list = hand.frame().list()) {
        for (const PanelRow &row : list->rows) {
            texts.append(row.text);
        }
    }
    return texts;
}

Seen choices(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return rowsOf(*hand) == values; });
    return {holds, rowsOf(*hand).join(QStringLiteral(", "))};
}

Seen choiceCount(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return rowsOf(*hand).size() == values.at(0).toInt(); });
    return {holds, rowsOf(*hand).join(QStringLiteral(", "))};
}

Seen panelIs(Hand *hand, const QStringList &values)
{
    const QByteArray role = values.at(0).toLatin1();
    return onScreen(hand, [&] { return hand->frame().panel(role.constData()) != nullptr; });
}

/// Above anybody who is in sight.
Seen balloon(Hand *hand, const QStringList &values)
{
    const auto shown = [hand] {
        QStringList numbers;
        for (const Sprite &sprite : hand->frame().sprites) {
            if (sprite.balloon != 0) {
                numbers.append(QString::number(sprite.balloon));
            }
        }
        return numbers;
    };
    const bool holds = hand->until(kPatience, [&] { return shown().contains(values.at(0)); });
    return {holds, holds ? values.at(0) : QStringLiteral("none")};
}

/// On somebody on the map, or in a battle, where the party counts, too.
Seen animation(Hand *hand, const QStringList &values)
{
    const int wanted = values.at(0).toInt();
    const bool holds = hand->until(kPatience, [&] {
        const Frame &frame = hand->frame();
        const auto shows = [wanted](const auto &one) {
            return one.animation == wanted;
        };
        return std::any_of(frame.sprites.begin(), frame.sprites.end(), shows) ||
               std::any_of(frame.battlers.begin(), frame.battlers.end(), shows) ||
               std::any_of(frame.animations.begin(), frame.animations.end(), shows);
    });
    return {holds, holds ? values.at(0) : QStringLiteral("none")};
}

Seen pictureIs(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(1),
                [&] { return hand->state().screen.pictures.value(values.at(0).toInt()).name; });
}

Seen backdropIs(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(0), [hand] { return hand->frame().backdrop; });
}

Seen titleIs(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(0), [hand] { return hand->frame().title; });
}

Seen musicIs(Hand *hand, const QStringList &values)
{
    return text(hand, values.at(0), [hand] { return hand->frame().music.file; });
}

Seen soundIs(Hand *hand, const QStringList &values)
{
    const auto heard = [hand] {
        QStringList names;
        for (const Sound &sound : hand->sounds()) {
            names.append(sound.file);
        }
        return names;
    };
    return {hand->until(kPatience, [&] { return heard().contains(values.at(0)); }),
            heard().join(QStringLiteral(", "))};
}

} // namespace

void addExpectationsOfSight(WordTable *table)
{
    table->add("expect message", &anyMessage);
    table->add("expect message *", &message);
    table->add("expect no message", &noMessage);
    table->add("expect speaker", &anySpeaker);
    table->add("expect speaker *", &speaker);
    table->add("expect face *", &face);
    table->add("expect choices = #", &choiceCount);
    table->add("expect choices ...", &choices);
    table->add("expect panel *", &panelIs);
    table->add("expect balloon #", &balloon);
    table->add("expect animation #", &animation);
    table->add("expect picture # *", &pictureIs);
    table->add("expect backdrop *", &backdropIs);
    table->add("expect title *", &titleIs);
    table->add("expect music *", &musicIs);
    table->add("expect sound *", &soundIs);
}

} // namespace player
