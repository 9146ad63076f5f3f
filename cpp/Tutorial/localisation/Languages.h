#pragma once

#include "Tutorial/localisation/ScenarioTexts.h"

#include <QObject>
#include <QString>

/// The language that is shown and the one before it, the texts in them, and the choice that outlives the
/// process.
///
/// Translators are installed in the application, one for each change, and stay: the newest is asked first.
class Languages final : public QObject
{
    Q_OBJECT

public:
    /// Begins with the locale that was chosen last. The second is "ja_JP", beside "ja_JP" it is "en_US". No
    /// translator is installed.
    explicit Languages(QObject *parent = nullptr);

    [[nodiscard]] QString locale() const { return m_locale; }
    /// Changes the language of all texts and stores it for later runs; the old one becomes the second. A
    /// locale without a catalogue is taken too, and leaves the texts as they are.
    void setLocale(const QString &locale);

    [[nodiscard]] QString locale2() const { return m_locale2; }
    void setLocale2(const QString &locale);

    /// Installs the texts of the locale that the host editor greets with, "en_US" for "-" or none. The chosen
    /// locale stays.
    void greet(const QString &locale);

    /// The texts of the scenario that is open.
    [[nodiscard]] ScenarioTexts &texts() { return m_texts; }

Q_SIGNALS:
    /// The overlays need the font for this locale from now on.
    void fontLocaleChanged(const QString &locale);
    void localeChanged();
    void locale2Changed();

private:
    ScenarioTexts m_texts;
    QString m_locale;
    QString m_locale2;
};
