#include "Tutorial/overlay/HintDocument.h"

#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/HintHtml.h"

#include <QFont>
#include <QTextDocument>

void fillHintDocument(QTextDocument *document, const QString &hint, const QFont &font)
{
    document->setDocumentMargin(BubbleGeometry::kHintMargin);
    document->setDefaultFont(font);
    document->setHtml(hintToHtml(hint));
}
