#include "Tutorial/CommandTable.h"

#include "Tutorial/AuthoringCalls.h"
#include "Tutorial/IndicatorFields.h"
#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "Tutorial/localisation/Languages.h"
#include "Tutorial/playback/Playback.h"
#include "Tutorial/preset/PresetData.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <utility>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

// Far beyond any screen, and small enough that sums of two stay numbers.
constexpr int kFarthest = 1 << 29;

using Parts = CommandTable::Parts;

int rectangleField(const CommandFields &fields, int index)
{
    return qBound(-kFarthest, fields.number(index), kFarthest);
}

QPoint pointField(const CommandFields &fields, int index)
{
    return {fields.number(index), fields.number(index + 1)};
}

void start(Parts &parts, const CommandFields &fields)
{
    if (fields.count() >= 5) {
        parts.playback.setHostRect({rectangleField(fields, 1), rectangleField(fields, 2),
                                    rectangleField(fields, 3), rectangleField(fields, 4)});
    }
    parts.playback.start();
}

void stop(Parts &parts, const CommandFields & /*fields*/)
{
    parts.playback.stop();
}

void ignore(Parts & /*parts*/, const CommandFields & /*fields*/) {}

void tutorialList(Parts &parts, const CommandFields & /*fields*/)
{
    parts.send(CommandFields::join({CommandWords::kTutorialList, parts.authoring.lessonList()}));
}

void indicator(Parts &parts, const CommandFields &fields)
{
    const QString change = fields.text(1);
    if (change == CommandWords::kUpdate) {
        parts.playback.showStep(indicatorUpdate(fields));
    } else if (change == CommandWords::kUpdateXy) {
        parts.playback.moveTarget(pointField(fields, 2));
    }
}

void state(Parts &parts, const CommandFields &fields)
{
    const QString state = fields.text(1);
    if (state == CommandWords::kShow) {
        parts.playback.hostCameBack();
    } else if (state == CommandWords::kHide) {
        parts.playback.hostHid();
    }
}

void windowStack(Parts &parts, const CommandFields &fields)
{
    const QString change = fields.text(1);
    if (change == CommandWords::kPush) {
        parts.playback.pushWindow(fields.text(2));
    } else if (change == CommandWords::kPop) {
        parts.playback.popWindow();
    }
}

void position(Parts &parts, const CommandFields &fields)
{
    parts.playback.setPosition(fields.text(1), pointField(fields, 2));
}

void applicationWindowSize(Parts &parts, const CommandFields &fields)
{
    parts.playback.setApplicationSize({fields.number(1), fields.number(2)});
}

void tutorial(Parts &parts, const CommandFields &fields)
{
    const QString errors = parts.authoring.loadLesson(fields.text(1));
    if (errors.isEmpty()) {
        parts.send(parts.authoring.startCommand(-1));
    } else {
        logWarning(kSource, "TutorialManager::loadAndFeedback", 1477) << "Failed to loadTutorial" << errors;
    }
}

void fromServer(Parts &parts, const CommandFields &fields)
{
    logDebug(kSource, "TutorialManager::onReceived", 905) << fields.all();
    parts.languages.greet(fields.text(1));
    parts.playback.createOverlays();
}

void requestPresetData(Parts &parts, const CommandFields &fields)
{
    logDebug(kSource, "TutorialManager::onReceived", 971) << fields.all();
    QString answer = presetData(fields.text(1), parts.programFolder, parts.sampleTable,
                                [&parts](const QString &context, const QString &text) {
                                    return parts.languages.texts().sampleText(context, text);
                                });
    if (!answer.isNull()) {
        // In place: an answer may take a gigabyte.
        answer.prepend(CommandFields::join({CommandWords::kFeedbackPresetData, QString()}));
        parts.send(answer);
    }
}

void showTooltip(Parts &parts, const CommandFields &fields)
{
    parts.playback.showTooltip(fields.text(1), pointField(fields, 2));
}

void hideTooltip(Parts &parts, const CommandFields & /*fields*/)
{
    parts.playback.hideTooltip();
}

struct Command
{
    QLatin1String word;
    void (*run)(Parts &parts, const CommandFields &fields);
};

constexpr Command kCommands[] = {
    {CommandWords::kStart, &start},
    {CommandWords::kStop, &stop},
    {CommandWords::kContents, &ignore},
    {CommandWords::kTutorialList, &tutorialList},
    {CommandWords::kIndicator, &indicator},
    {CommandWords::kState, &state},
    {CommandWords::kLog, &ignore},
    {CommandWords::kWindowStack, &windowStack},
    {CommandWords::kWindowPosition, &position},
    {CommandWords::kControlPosition, &position},
    {CommandWords::kApplicationWindowSize, &applicationWindowSize},
    {CommandWords::kTutorial, &tutorial},
    {CommandWords::kFromServer, &fromServer},
    {CommandWords::kRequestPresetData, &requestPresetData},
    {CommandWords::kShowTooltip, &showTooltip},
    {CommandWords::kHideTooltip, &hideTooltip},
};

} // namespace

CommandTable::CommandTable(Parts parts)
    : m_parts(std::move(parts))
{
}

void CommandTable::run(const QString &command)
{
    // The word alone first: fields of a command that nobody knows are not worth cutting.
    const auto word = CommandFields::word(command);
    for (const Command &known : kCommands) {
        if (word == known.word) {
            known.run(m_parts, CommandFields(command));
            return;
        }
    }
}
