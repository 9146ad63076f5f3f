// What the host editor can ask for: one handler for each command word.

#include "Tutorial/TutorialManager.h"

#include "Tutorial/IndicatorFields.h"
#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/preset/PresetData.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

// Far beyond any screen, and small enough that sums of two stay numbers.
constexpr int kFarthest = 1 << 29;

int rectangleField(const CommandFields &fields, int index)
{
    return qBound(-kFarthest, fields.number(index), kFarthest);
}

} // namespace

struct TutorialManager::Command
{
    QLatin1String word;
    void (TutorialManager::*run)(const CommandFields &fields);
};

void TutorialManager::onReceived(const QString &text)
{
    static constexpr Command kCommands[] = {
        {CommandWords::kStart, &TutorialManager::start},
        {CommandWords::kStop, &TutorialManager::stop},
        {CommandWords::kContents, &TutorialManager::ignore},
        {CommandWords::kTutorialList, &TutorialManager::tutorialList},
        {CommandWords::kIndicator, &TutorialManager::indicator},
        {CommandWords::kState, &TutorialManager::state},
        {CommandWords::kLog, &TutorialManager::ignore},
        {CommandWords::kWindowStack, &TutorialManager::windowStack},
        {CommandWords::kWindowPosition, &TutorialManager::position},
        {CommandWords::kControlPosition, &TutorialManager::position},
        {CommandWords::kApplicationWindowSize, &TutorialManager::applicationWindowSize},
        {CommandWords::kTutorial, &TutorialManager::loadAndFeedback},
        {CommandWords::kFromServer, &TutorialManager::fromServer},
        {CommandWords::kRequestPresetData, &TutorialManager::requestPresetData},
        {CommandWords::kShowTooltip, &TutorialManager::showTooltip},
        {CommandWords::kHideTooltip, &TutorialManager::hideTooltip},
    };
    const QStringRef word = CommandFields::word(text);
    for (const Command &command : kCommands) {
        if (word == command.word) {
            (this->*command.run)(CommandFields(text));
            return;
        }
    }
}

void TutorialManager::start(const CommandFields &fields)
{
    if (fields.count() >= 5) {
        m_hostRect = QRect(rectangleField(fields, 1), rectangleField(fields, 2), rectangleField(fields, 3),
                           rectangleField(fields, 4));
    }
    startPlayback();
}

void TutorialManager::startPlayback()
{
    if (!m_visibility.start()) {
        return;
    }
    m_windows.clear();
    Q_EMIT currentWindowKeyChanged();
    m_overlays.createOrShowLog();
    m_overlays.showIndicator();
}

void TutorialManager::stop(const CommandFields & /*fields*/)
{
    stopPlayback();
}

void TutorialManager::stopPlayback()
{
    if (m_visibility.stop()) {
        m_overlays.hideIndicator();
        m_overlays.hideLog();
    }
}

void TutorialManager::ignore(const CommandFields & /*fields*/) {}

void TutorialManager::tutorialList(const CommandFields & /*fields*/)
{
    send(CommandFields::join({CommandWords::kTutorialList, getTutorialJson()}));
}

void TutorialManager::indicator(const CommandFields &fields)
{
    const QString subCommand = fields.text(1);
    if (subCommand == CommandWords::kUpdate) {
        m_overlays.showStep(indicatorUpdate(fields));
    } else if (subCommand == CommandWords::kUpdateXy) {
        m_overlays.moveTarget(QPoint(fields.number(2), fields.number(3)));
    }
}

void TutorialManager::state(const CommandFields &fields)
{
    const QString state = fields.text(1);
    if (state == CommandWords::kShow) {
        if (m_visibility.takesShow() && m_overlays.indicator()) {
            m_overlays.hideLog();
            m_overlays.hideIndicator();
            m_visibility.beginShow();
            logDebug(kSource, "TutorialManager::onReceived", 672) << "m_logHideIgnoreTimeout set to 10";
        }
        m_visibility.hostCameBack();
        updateOverlayVisibility();
    } else if (state == CommandWords::kHide) {
        m_visibility.hostHid();
    }
}

void TutorialManager::windowStack(const CommandFields &fields)
{
    const QString change = fields.text(1);
    if (change == CommandWords::kPush) {
        m_windows.push(fields.text(2));
        Q_EMIT currentWindowKeyChanged();
    } else if (change == CommandWords::kPop && m_windows.pop()) {
        Q_EMIT currentWindowKeyChanged();
    }
}

void TutorialManager::position(const CommandFields &fields)
{
    m_windows.setPosition(fields.text(1), QPoint(fields.number(2), fields.number(3)));
}

void TutorialManager::applicationWindowSize(const CommandFields &fields)
{
    const QSize size(fields.number(1), fields.number(2));
    logDebug(kSource, "TutorialManager::setApplicationWindowSize", 596) << size.width() << size.height();
    m_windows.setApplicationSize(size);
}

void TutorialManager::loadAndFeedback(const CommandFields &fields)
{
    const QString errors = m_authoring->loadLesson(fields.text(1));
    if (errors.isEmpty()) {
        startFromId(-1);
    } else {
        logWarning(kSource, "TutorialManager::loadAndFeedback", 1477) << "Failed to loadTutorial" << errors;
    }
}

void TutorialManager::fromServer(const CommandFields &fields)
{
    logDebug(kSource, "TutorialManager::onReceived", 905) << fields.all();
    m_languages.greet(fields.text(1));
    m_overlays.createLog();
    m_overlays.createIndicator();
}

void TutorialManager::requestPresetData(const CommandFields &fields)
{
    logDebug(kSource, "TutorialManager::onReceived", 971) << fields.all();
    QString answer = presetData(fields.text(1), QCoreApplication::applicationDirPath(), m_presetTranslations,
                                [this](const QString &context, const QString &text) {
                                    return m_languages.texts().sampleText(context, text);
                                });
    if (!answer.isNull()) {
        // In place: an answer may take a gigabyte.
        answer.prepend(CommandFields::join({CommandWords::kFeedbackPresetData, QString()}));
        send(answer);
    }
}

void TutorialManager::showTooltip(const CommandFields &fields)
{
    EditorTooltip::show(this, fields.text(1), fields.number(2), fields.number(3));
}

void TutorialManager::hideTooltip(const CommandFields & /*fields*/)
{
    m_overlays.hideEditorTooltip();
}
