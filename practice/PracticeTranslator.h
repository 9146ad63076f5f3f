#pragma once

#include <QTranslator>

/// The practice editor's own texts in one language, which the application shows from when this is made until
/// it goes. Make it before the first text. Texts are written in English in the sources, so English, like a
/// locale that has no catalogue, needs none.
class PracticeTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// @p locale as in "ja_JP". Needs an application.
    explicit PracticeTranslator(const QString &locale);
};
