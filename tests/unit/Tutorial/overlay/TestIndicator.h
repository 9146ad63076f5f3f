#pragma once

#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/overlay/TutorialTooltip.h"

#include <QApplication>
#include <QFont>
#include <QPushButton>
#include <QTextEdit>
#include <QTimerEvent>

/// A TutorialIndicator whose clock and ticks are in the test's hands, on a host of 1920 x 1080. One at a
/// time.
class TestIndicator final : public TutorialIndicator
{
public:
    explicit TestIndicator(OverlayHost *manager, const QFont &first = {})
        : TutorialIndicator(nullptr, manager, first)
        , font(first)
    {
        setHostRect({0, 0, 1920, 1080});
    }

    void setHint(const QString &hint) { TutorialIndicator::setHint(hint, font); }
    void setSettings(const QVariantMap &settings) { TutorialIndicator::setSettings(settings, font); }

    void tick(int count = 1)
    {
        for (int i = 0; i < count; ++i) {
            QTimerEvent event(0);
            timerEvent(&event);
        }
    }

    /// The state under its settings name, as the indicator tells it.
    [[nodiscard]] QVariant state(const char *name) const { return getSettings().value(QLatin1String(name)); }

    [[nodiscard]] QTextEdit *textEdit() const { return tooltip()->findChild<QTextEdit *>(); }
    [[nodiscard]] static QPushButton *button(const char *name)
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            if (widget->objectName() == QLatin1String(name)) {
                return qobject_cast<QPushButton *>(widget);
            }
        }
        return nullptr;
    }
    [[nodiscard]] static QPushButton *next() { return button("nextButton"); }
    [[nodiscard]] static QPushButton *yes() { return button("yesButton"); }
    [[nodiscard]] static QPushButton *no() { return button("noButton"); }

    qint64 clockMs = 0;
    QFont font; ///< of the next hint

protected:
    [[nodiscard]] qint64 elapsedMs() const override { return clockMs; }
};
