#pragma once

class QString;
class QTextEdit;

/// Gives @p edit the text @p hostText of the host editor, or the front of it where that is longer than any
/// screen, by QTextEdit::setText, which takes what looks like rich text for that. Rich text that names files
/// to be read, or that would hold up the event loop with its length, its tables or its measures, is shown as
/// it is written.
void setHostText(QTextEdit *edit, const QString &hostText);
