#pragma once

#include "FakeHost.h"
#include "XWindows.h"

#include <QColor>
#include <QImage>
#include <QWidget>

#include <memory>

/// The host editor's window: below the overlays, of one color, counting what the mouse does to it.
class WindowBelow final : public QWidget
{
public:
    int presses = 0;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

/// The program with a host and the host's window, for each test. However a test goes, the program leaves
/// quietly: nothing in its log comes from anyone but itself.
class CompanionWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr QSize kBubble{640, 480};
    static constexpr QSize kButton{64, 32};
    static constexpr QSize kTooltip{320, 240};
    static constexpr QSize kLog{1, 1};
    static constexpr int kSoonMs = 30000;

    /// What the host does before it starts the program.
    virtual void prepare(FakeHost & /*host*/) {}

    /// What a step's flags and icon say.
    static constexpr int kNext = 1;
    static constexpr int kYesNo = 2;
    static constexpr int kArrow = 4;
    static constexpr int kNoIcon = 6;

    static QStringList idsOf(const QVector<XWindows::Window> &windows);
    static QImage picture(const QString &name);
    /// What tells the screen's @p area from @p picture drawn at @p at in it, on the host editor's window;
    /// nothing when they look the same. What is partly transparent is blended by the compositor here and by
    /// Qt there, which round differently; everything else must be exact.
    static QString difference(const QRect &area, const QImage &picture, const QPoint &at);
    /// Waits until the screen looks so; gives the last difference when it never did.
    static QString lastDifference(const QRect &area, const QImage &picture, const QPoint &at);

    void play();
    void update(int x, int y, const QString &hint, int flags, int icon = kNoIcon);
    /// Waits for heartbeats of the program from now on, ten ticks apart.
    bool waitForBeats(int count);
    /// With 64 pixels of hint height, which is what stands until a hint is measured.
    void verifyBubbleAt(const QPoint &place);
    /// Clicks at @p inside of the button whose window is at @p place, as soon as a click there goes to it.
    /// False when it never does.
    bool clickButton(const QPoint &place, const QPoint &inside);
    [[nodiscard]] qint64 pid() const { return m_host->process().processId(); }
    [[nodiscard]] QVector<XWindows::Window> overlays() const { return XWindows::mapped(pid()); }
    [[nodiscard]] QVector<XWindows::Window> overlays(const QSize &size) const
    {
        return XWindows::mapped(pid(), size);
    }
    [[nodiscard]] bool bubbleIsAt(const QPoint &place) const
    {
        const QVector<XWindows::Window> bubbles = overlays(kBubble);
        return bubbles.size() == 1 && bubbles.first().rect.topLeft() == place;
    }

    std::unique_ptr<WindowBelow> m_below;
    std::unique_ptr<FakeHost> m_host;
};
