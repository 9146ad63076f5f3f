#pragma once

#include "window/BackHints.h"
#include "window/ControlFinder.h"
#include "window/ControlHand.h"
#include "window/EditorWays.h"
#include "window/EditorWindows.h"
#include "window/FocusReturn.h"
#include "window/HoverTips.h"
#include "window/PlayCover.h"
#include "window/PressGuard.h"
#include "window/StateKeeper.h"

#include <QPointer>

#include <memory>

/// The part of the windows that guides a person: what a lesson asks of an editor beside which windows are
/// open. Each answer is given by a class of its own.
class GuidedWindows : public EditorWindows
{
    Q_OBJECT

public:
    GuidedWindows();
    ~GuidedWindows() override;

    [[nodiscard]] QString windowOf(const QString &windowKey) const override;
    [[nodiscard]] std::optional<ControlSpot> controlAt(const QString &windowKey,
                                                       const QPoint &point) const override;
    [[nodiscard]] std::optional<ControlSpot> controlFor(const Step &step) const override;
    [[nodiscard]] std::optional<QRect> rectOf(const ControlSpot &spot) const override;
    void reveal(const ControlSpot &spot) override;
    [[nodiscard]] bool canCause(const ControlSpot &spot, const Condition &condition) const override;
    [[nodiscard]] bool addsUp(const ControlSpot &spot) const override;
    [[nodiscard]] bool offers(const ControlSpot &spot, const Condition &condition) const override;
    [[nodiscard]] Ways ways() const override;
    [[nodiscard]] QVector<Activity> activities() const override { return {m_cover.activity()}; }
    [[nodiscard]] QString meaningOf(const ControlSpot &spot) const override;
    [[nodiscard]] QVector<ControlSpot> chosen() const override;
    [[nodiscard]] std::optional<UnknownWord> unknownWord(const Step &step) const override;
    [[nodiscard]] QString projectId() const override;
    [[nodiscard]] QString dataMark() const override;
    [[nodiscard]] EditorState state() const override;
    bool restore(const EditorState &state) override;
    bool perform(const ControlUse &use) override;
    [[nodiscard]] QString hintBack(const Way &way, const Step &step) const override;
    [[nodiscard]] QString hintToPutBack(const Step &step) const override;

    [[nodiscard]] std::optional<QPoint> spotToPutBack() const override;

    void setPutBackButton(QWidget *button) override;
    void setPlayWindow(QWidget *window, const std::function<std::optional<QRect>()> &leaveRect) override
    {
        m_cover.setWindow(window, leaveRect);
    }
    bool eventFilter(QObject *watched, QEvent *event) override;

    bool showPlace(const EventPlace &place) override;

    void takeFocusBack() override;
    void setTipsShownElsewhere(bool shown) override;

protected:
    /// What there is to guide through; once, before anything is asked. @p popUp shows the context menu with a
    /// name at a place on the screen.
    void setView(const EditorView &view, std::function<void(const QString &, const QPoint &)> popUp);

private:
    struct Guides;

    /// The window on top, as the desktop has it; nullptr before any is open.
    [[nodiscard]] QWidget *topWindow() const;

    EditorView m_view;
    std::unique_ptr<Guides> m_guides;
    QPointer<QWidget> m_putBackButton;
    FocusReturn m_focus;
    PressGuard m_presses;
    HoverTips m_tips;
    PlayCover m_cover;
};
