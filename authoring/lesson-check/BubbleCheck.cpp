#include "lesson-check/BubbleCheck.h"

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/HintDocument.h"

#include <QTextDocument>

Findings BubbleCheck::check(const Catalogue &catalogue, const QString &context)
{
    Findings findings;
    m_font.setLocale(catalogue.locale());
    QTextDocument document;
    const QFont font = m_font.getFont();
    const Catalogue::Messages messages = catalogue.messages(context);
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        fillHintDocument(&document, message->translation, font);
        document.setTextWidth(BubbleGeometry::kHintWidth);
        const int height = qRound(document.size().height());
        if (height > BubbleGeometry::kMostHintHeight) {
            findings.append(
                {Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                 QStringLiteral("the hint does not fit the bubble: it is %1 pixels high, %2 at most")
                     .arg(height)
                     .arg(BubbleGeometry::kMostHintHeight)});
        }
    }
    return findings;
}
