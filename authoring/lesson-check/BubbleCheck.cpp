#include "lesson-check/BubbleCheck.h"

#include "Tutorial/overlay/HintHtml.h"

#include <QTextDocument>

namespace {

/// The bubble's text is this wide, and the window below the icon that holds it is this high, in pixels.
constexpr int kTextWidth = 256;
constexpr int kTextHeight = 480 - 56;

} // namespace

Findings BubbleCheck::check(const Catalogue &catalogue, const QString &context)
{
    Findings findings;
    m_font.setLocale(catalogue.locale());
    QTextDocument document;
    document.setDefaultFont(m_font.getFont());
    const Catalogue::Messages messages = catalogue.messages(context);
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        document.setHtml(hintToHtml(message->translation));
        document.setTextWidth(kTextWidth);
        const QSizeF size = document.size();
        const auto report = [&](const QString &what, double has, int allowed) {
            findings.append(
                {Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                 QStringLiteral("the hint does not fit the bubble: it is %1 pixels %2, %3 at most")
                     .arg(qRound(has))
                     .arg(what)
                     .arg(allowed)});
        };
        if (size.height() > kTextHeight)
            report(QStringLiteral("high"), size.height(), kTextHeight);
        if (size.width() > kTextWidth)
            report(QStringLiteral("wide"), size.width(), kTextWidth);
    }
    return findings;
}
