#include "Tutorial/overlay/HintHtml.h"

QString hintToHtml(const QString &hint)
{
    // Escaped first, so that the markup added behind it stays markup.
    QString html = hint.toHtmlEscaped();
    html.replace(QLatin1Char('\\'), QStringLiteral("<tt>&#x5c;</tt>"));
    html.replace(QLatin1Char('\n'), QStringLiteral("<br />"));
    return html;
}
