#include "window/BackHints.h"

#include "lesson/Scenario.h"
#include "window/PlayCover.h"

namespace {

using Does = Way::Does;
using Kind = WindowDescription::Kind;

bool isTheEndOfPlay(const Step &step)
{
    return step.condition.type() == Condition::Type::kAction &&
           step.condition.target() == QLatin1String("play") &&
           step.condition.value() == QLatin1String("close");
}

} // namespace

BackHints::BackHints(const EditorView &view, const ControlFinder *finder)
    : m_view(view)
    , m_finder(finder)
{
}

QString BackHints::hint(const Way &way, const Step &step) const
{
    QString todo = action(way);
    if (PlayCover::isWayOut(way.by)) {
        return todo;
    }
    if (way.does == Does::kShows && isTheEndOfPlay(step)) {
        return tr("The game is closed already.") + QLatin1Char('\n') + todo;
    }
    const QString title = titleOf(step.windowKey);
    if (way.does == Does::kShows || title.isEmpty()) {
        return todo;
    }
    //: %1 is the title of a window; a sentence with what to do follows.
    return tr("This lesson goes on in “%1”.").arg(title) + QLatin1Char('\n') + todo;
}

QString BackHints::action(const Way &way) const
{
    if (way.icon == QLatin1String("wait")) {
        return tr("Wait a moment: this window closes by itself.");
    }
    if (PlayCover::isWayOut(way.by)) {
        //: “Esc” is a key that is drawn below the game.
        return tr("The game lies over what this step is about. Click “Esc” below it until it closes.");
    }
    if (way.by.control == ControlSpot::dismiss()) {
        return way.by.windowKey == m_view.descriptions->popupKey() ? tr("Press Esc: the menu closes.")
                                                                   : tr("Press Esc: this window closes.");
    }
    const QString name = m_finder->nameOf(way.by);
    if (way.does == Does::kCloses) {
        //: %1 is the text of a button that closes a window.
        return tr("Click “%1”.").arg(name);
    }
    if (way.icon == QLatin1String("doubleClick")) {
        //: %1 is what stands in the row of a list.
        return tr("Double-click “%1” again.").arg(name);
    }
    if (way.icon == QLatin1String("rightClick")) {
        //: %1 is what stands in the row of a list, or the name of a part of the window.
        return tr("Right-click “%1” again.").arg(name);
    }
    //: %1 is the text of a button, tab or row of a list.
    return tr("Click “%1” again.").arg(name);
}

QString BackHints::hintToPutBack()
{
    return tr("Something is different from what this step needs. Click “Put it back” in the lesson strip.");
}

QString BackHints::titleOf(const QString &windowKey) const
{
    if (!m_view.descriptions->contains(windowKey)) {
        return {};
    }
    const WindowDescription &window = (*m_view.descriptions)[windowKey];
    return window.kind == Kind::kWindow ? window.title.value(m_view.locale) : QString();
}
