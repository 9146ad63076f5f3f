#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>

/// Finds the font of the overlays for a locale: fonts that lie in "fonts" beside the program first, then
/// families that a system for that script usually has. A font file is read and registered once.
class TutorialFont
{
public:
    /// @p locale as in "zh_CN". Takes effect with the next getFont.
    void setLocale(const QString &locale) { m_locale = locale; }
    [[nodiscard]] const QString &locale() const { return m_locale; }

    /// The application's default font with the family for the locale.
    [[nodiscard]] QFont getFont();

    /// Base names of font files, or names of families, for the locale; the most wanted first.
    [[nodiscard]] QStringList getFontFamilyList() const;

    /// Registers the fonts of @p names, makes the families behind the first one its substitutes and returns
    /// the first; a name without a usable file stands for an installed family. Empty, with a warning in the
    /// log, when there is none.
    [[nodiscard]] QString getFontFamily(const QStringList &names);

private:
    [[nodiscard]] QStringList familiesOf(const QString &name);

    QHash<QString, int> m_fontIds;
    QString m_locale;
};
