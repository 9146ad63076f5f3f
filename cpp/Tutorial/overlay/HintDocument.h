#pragma once

#include <QString>

class QFont;
class QTextDocument;

/// Fills @p document with the plain text @p hint as the bubble shows it. Its height follows when it is given
/// the width BubbleGeometry::kHintWidth.
void fillHintDocument(QTextDocument *document, const QString &hint, const QFont &font);
