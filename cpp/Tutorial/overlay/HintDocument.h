#pragma once

#include <QString>

class QFont;
class QTextDocument;

/// How wide a hint's text edit is, in pixels; its text wraps at that width less twice the margin.
inline constexpr int kHintWidth = 256;

/// Room around the text of a hint inside of its text edit, in pixels. The shadow of the panel lies in it.
inline constexpr int kHintMargin = 12;

/// Fills @p document with the plain text @p hint as the bubble shows it. Its height follows when it is given
/// the width kHintWidth.
void fillHintDocument(QTextDocument *document, const QString &hint, const QFont &font);
