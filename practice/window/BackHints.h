#pragma once

#include "host/Way.h"
#include "window/ControlFinder.h"

#include <QCoreApplication>

struct Step;

/// What a person who has strayed from a step reads, in a sentence or two.
class BackHints
{
    Q_DECLARE_TR_FUNCTIONS(BackHints)

public:
    /// @p finder outlives the hints.
    BackHints(const EditorView &view, const ControlFinder *finder);

    /// What to do with the control of @p way.
    [[nodiscard]] QString hint(const Way &way, const Step &step) const;
    /// Only the button "Put it back" helps.
    [[nodiscard]] static QString hintToPutBack();

private:
    [[nodiscard]] QString action(const Way &way) const;
    [[nodiscard]] QString titleOf(const QString &windowKey) const;

    EditorView m_view;
    const ControlFinder *m_finder;
};
