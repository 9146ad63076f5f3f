#include "lesson-check/BubbleCheck.h"

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/HintDocument.h"
#include "Tutorial/overlay/OverlayStyle.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

namespace {

/// How many lines of a hint a learner reads while acting.
constexpr int kMostLines = 3;

int lineCount(const QTextDocument &document)
{
    int lines = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        lines += block.layout()->lineCount();
    }
    return lines;
}

} // namespace

Findings BubbleCheck::check(const Catalogue &catalogue, const QString &context)
{
    Findings findings;
    m_font.setLocale(catalogue.locale());
    QTextDocument document;
    QFont font = m_font.getFont();
    font.setPointSizeF(OverlayStyle::kSmallestPointSize); // that of most desktops, whatever this one has
    const Catalogue::Messages messages = catalogue.messages(context);
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        fillHintDocument(&document, message->translation, font);
        document.setTextWidth(BubbleGeometry::kHintWidth);
        static_cast<void>(document.size()); // lays it out
        const int lines = lineCount(document);
        if (lines > kMostLines) {
            findings.append({Finding::Kind::kError, catalogue.file(), message->line, context, message.key(),
                             QStringLiteral("the hint takes %1 lines in the bubble, %2 at most; shorten it")
                                 .arg(lines)
                                 .arg(kMostLines)});
        }
    }
    return findings;
}
