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
        const int height = qRound(document.size().height());
        if (height > kTextHeight)
            findings.append(
                {Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                 QStringLiteral("the hint does not fit the bubble: it is %1 pixels high, %2 at most")
                     .arg(height)
                     .arg(kTextHeight)});
    }
    return findings;
}
