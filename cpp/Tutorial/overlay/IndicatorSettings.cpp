#include "Tutorial/overlay/IndicatorSettings.h"

#include <QString>

namespace {

/// Puts members into a map. A point has two keys, with X and Y behind its name.
struct Writer
{
    template<typename Member>
    void operator()(const QString &key, const Member &member)
    {
        map.insert(key, member);
    }
    void operator()(const QString &name, const QPoint &point)
    {
        map.insert(name + QLatin1Char('X'), point.x());
        map.insert(name + QLatin1Char('Y'), point.y());
    }

    QVariantMap map;
};

/// Sets members from a map.
struct Reader
{
    template<typename Member>
    void operator()(const QString &key, Member &member) const
    {
        member = map.value(key).template value<Member>();
    }
    void operator()(const QString &name, QPoint &point) const
    {
        (*this)(name + QLatin1Char('X'), point.rx());
        (*this)(name + QLatin1Char('Y'), point.ry());
    }

    const QVariantMap &map;
};

// The one table of key and member, for both ways. Settings is const for a writer.
template<typename Settings, typename Each>
void forEach(Settings &settings, Each &each)
{
    auto &state = settings.state;
    auto &placement = state.placement;
    each(QStringLiteral("tooltip"), settings.tooltip);
    if (settings.tooltip) {
        each(QStringLiteral("textEdit"), settings.textEdit);
    }
    each(QStringLiteral("newX"), placement.newX);
    each(QStringLiteral("newY"), placement.newY);
    each(QStringLiteral("lastX"), placement.lastX);
    each(QStringLiteral("lastY"), placement.lastY);
    each(QStringLiteral("upsideDown"), placement.upsideDown);
    each(QStringLiteral("mirror"), placement.mirror);
    each(QStringLiteral("repaintAll"), state.repaintAll);
    each(QStringLiteral("updateTextEditSize"), state.updateTextEditSize);
    each(QStringLiteral("hintHeight"), state.hintHeight);
    each(QStringLiteral("tooltip"), settings.tooltipPlace);
    each(QStringLiteral("nextButton"), settings.nextButton);
    each(QStringLiteral("yesButton"), settings.yesButton);
    each(QStringLiteral("noButton"), settings.noButton);
    each(QStringLiteral("windowKey"), state.windowKey);
    each(QStringLiteral("offsetX"), state.offsetX);
    each(QStringLiteral("offsetY"), state.offsetY);
    each(QStringLiteral("arrowVisible"), state.arrowVisible);
    each(QStringLiteral("hint"), state.hint);
    each(QStringLiteral("nextWindowEnabled"), state.nextWindowEnabled);
    each(QStringLiteral("yesNoWindowEnabled"), state.yesNoWindowEnabled);
    each(QStringLiteral("iconKind"), state.iconKind);
}

} // namespace

QVariantMap IndicatorSettings::toMap() const
{
    Writer writer;
    forEach(*this, writer);
    return writer.map;
}

IndicatorSettings IndicatorSettings::fromMap(const QVariantMap &map)
{
    IndicatorSettings settings;
    const Reader reader{map};
    forEach(settings, reader);
    return settings;
}
