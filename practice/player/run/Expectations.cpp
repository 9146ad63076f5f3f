#include "player/run/Expectations.h"

#include <algorithm>

namespace player {

namespace {

constexpr int kPatience = 10 * GameState::kTicksPerSecond;

bool compares(qint64 left, const QString &sign, qint64 right)
{
    if (sign == QLatin1String("=")) {
        return left == right;
    }
    if (sign == QLatin1String("!=")) {
        return left != right;
    }
    if (sign == QLatin1String("<")) {
        return left < right;
    }
    if (sign == QLatin1String(">")) {
        return left > right;
    }
    if (sign == QLatin1String("<=")) {
        return left <= right;
    }
    return sign == QLatin1String(">=") && left >= right;
}

/// Waits until a number compares as it should.
Seen number(Hand *hand, const QString &sign, const QString &wanted, const std::function<int()> &now)
{
    const bool holds = hand->until(kPatience, [&] { return compares(now(), sign, wanted.toLongLong()); });
    return {holds, QString::number(now())};
}

Seen flag(Hand *hand, const QString &wanted, const std::function<bool()> &now)
{
    if (wanted != QLatin1String("on") && wanted != QLatin1String("off")) {
        return {false, QStringLiteral("neither \"on\" nor \"off\" is expected")};
    }
    const bool holds = hand->until(kPatience, [&] { return now() == (wanted == QLatin1String("on")); });
    return {holds, now() ? QStringLiteral("on") : QStringLiteral("off")};
}

Seen message(Hand *hand, const QStringList &values)
{
    const QString wanted = values.at(0).simplified();
    const auto isThere = [hand, &wanted] {
        const QVector<Panel> panels = hand->frame().panels;
        return std::any_of(panels.begin(), panels.end(),
                           [&wanted](const Panel &panel) { return Hand::textOf(panel).contains(wanted); });
    };
    // What waits for a key does not change by itself.
    (void)hand->until(kPatience, [&] {
        return isThere() || hand->frame().list() != nullptr || [hand] {
            const Panel *const shown = hand->frame().panel("message");
            return shown != nullptr && shown->isWaiting;
        }();
    });
    return {isThere(), hand->seen()};
}

Seen noMessage(Hand *hand, const QStringList &)
{
    return {hand->frame().panel("message") == nullptr, hand->seen()};
}

Seen speaker(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] {
        const Panel *const shown = hand->frame().panel("message");
        return shown != nullptr && shown->title == values.at(0);
    });
    return {holds, hand->seen()};
}

Seen choices(Hand *hand, const QStringList &values)
{
    const auto rows = [hand] {
        QStringList texts;
        if (const Panel *const list = hand->frame().list()) {
            for (const PanelRow &row : list->rows) {
                texts.append(row.text);
            }
        }
        return texts;
    };
    const bool holds = hand->until(kPatience, [&] { return rows() == values; });
    return {holds, rows().join(QStringLiteral(", "))};
}

Seen panel(Hand *hand, const QStringList &values)
{
    const QByteArray role = values.at(0).toLatin1();
    const bool holds =
        hand->until(kPatience, [&] { return hand->frame().panel(role.constData()) != nullptr; });
    return {holds, hand->seen()};
}

Seen battle(Hand *hand, const QStringList &)
{
    return {hand->until(kPatience, [hand] { return hand->isBattle(); }), hand->seen()};
}

Seen switchIs(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(1), [&] { return hand->state().isOn(values.at(0).toInt()); });
}

Seen selfSwitchIs(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(3), [&] {
        return hand->state().isSelfSwitchOn(values.at(0).toInt(), values.at(1).toInt(), values.at(2));
    });
}

Seen variableIs(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2),
                  [&] { return hand->state().variable(values.at(0).toInt()); });
}

Seen goldIs(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(0), values.at(1), [&] { return hand->state().gold; });
}

template<Goods kind>
Seen goods(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2),
                  [&] { return hand->state().count(kind, values.at(0).toInt()); });
}

Seen mapIs(Hand *hand, const QStringList &values)
{
    return number(hand, QStringLiteral("="), values.at(0), [&] { return hand->state().map; });
}

Seen heroIsAt(Hand *hand, const QStringList &values)
{
    const QPoint cell(values.at(0).toInt(), values.at(1).toInt());
    const bool holds = hand->until(kPatience, [&] { return hand->state().hero.cell == cell; });
    const QPoint now = hand->state().hero.cell;
    return {holds, QStringLiteral("%1 %2").arg(now.x()).arg(now.y())};
}

Seen partyIs(Hand *hand, const QStringList &values)
{
    const auto party = [hand] {
        QStringList numbers;
        for (const int actor : hand->state().party) {
            numbers.append(QString::number(actor));
        }
        return numbers;
    };
    const bool holds = hand->until(kPatience, [&] { return party() == values; });
    return {holds, party().join(QLatin1Char(' '))};
}

template<int Actor::*fact>
Seen actorFact(Hand *hand, const QStringList &values)
{
    return number(hand, values.at(1), values.at(2), [&] {
        const Actor *const actor = hand->state().knownActor(values.at(0).toInt());
        return actor != nullptr ? actor->*fact : -1;
    });
}

Seen actorName(Hand *hand, const QStringList &values)
{
    const auto name = [&] {
        const Actor *const actor = hand->state().knownActor(values.at(0).toInt());
        return actor != nullptr ? actor->name : QString();
    };
    return {hand->until(kPatience, [&] { return name() == values.at(1); }), name()};
}

Seen actorState(Hand *hand, const QStringList &values)
{
    return flag(hand, values.at(2), [&] {
        const Actor *const actor = hand->state().knownActor(values.at(0).toInt());
        return actor != nullptr && actor->hasState(values.at(1).toInt());
    });
}

Seen musicIs(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return hand->frame().music.file == values.at(0); });
    return {holds, hand->frame().music.file};
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

Seen pictureIs(Hand *hand, const QStringList &values)
{
    const auto name = [&] {
        return hand->state().screen.pictures.value(values.at(0).toInt()).name;
    };
    return {hand->until(kPatience, [&] { return name() == values.at(1); }), name()};
}

Seen eventIsAt(Hand *hand, const QStringList &values)
{
    const auto at = [&] {
        for (const Sprite &sprite : hand->frame().sprites) {
            if (sprite.event == values.at(0).toInt()) {
                return QStringLiteral("%1 %2").arg(sprite.at.x()).arg(sprite.at.y());
            }
        }
        return QStringLiteral("not to be seen");
    };
    const QString wanted = values.mid(1).join(QLatin1Char(' '));
    return {hand->until(kPatience, [&] { return at() == wanted; }), at()};
}

QString problemsOf(const Hand &hand)
{
    QStringList texts;
    for (const Problem &problem : hand.problems()) {
        texts.append(problem.toString());
    }
    return texts.isEmpty() ? QStringLiteral("no problem") : texts.join(QStringLiteral("; "));
}

Seen problem(Hand *hand, const QStringList &values)
{
    const bool holds = hand->until(kPatience, [&] { return problemsOf(*hand).contains(values.at(0)); });
    return {holds, problemsOf(*hand)};
}

Seen noProblems(Hand *hand, const QStringList &)
{
    return {hand->problems().isEmpty(), problemsOf(*hand)};
}

} // namespace

void addExpectations(WordTable *table)
{
    table->add("expect message *", &message);
    table->add("expect no message", &noMessage);
    table->add("expect speaker *", &speaker);
    table->add("expect choices ...", &choices);
    table->add("expect panel *", &panel);
    table->add("expect battle", &battle);
    table->add("expect switch # *", &switchIs);
    table->add("expect self switch # # * *", &selfSwitchIs);
    table->add("expect variable # * #", &variableIs);
    table->add("expect gold * #", &goldIs);
    table->add("expect item # * #", &goods<Goods::kItem>);
    table->add("expect weapon # * #", &goods<Goods::kWeapon>);
    table->add("expect armor # * #", &goods<Goods::kArmor>);
    table->add("expect map #", &mapIs);
    table->add("expect at # #", &heroIsAt);
    table->add("expect event # at # #", &eventIsAt);
    table->add("expect party ...", &partyIs);
    table->add("expect level # * #", &actorFact<&Actor::level>);
    table->add("expect exp # * #", &actorFact<&Actor::exp>);
    table->add("expect hp # * #", &actorFact<&Actor::hp>);
    table->add("expect mp # * #", &actorFact<&Actor::mp>);
    table->add("expect name # *", &actorName);
    table->add("expect state # # *", &actorState);
    table->add("expect music *", &musicIs);
    table->add("expect sound *", &soundIs);
    table->add("expect picture # *", &pictureIs);
    table->add("expect problem *", &problem);
    table->add("expect no problems", &noProblems);
}

} // namespace player
