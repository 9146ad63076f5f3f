#include "Tutorial/overlay/HostText.h"

#include <QRegularExpression>
#include <QString>
#include <QTextDocument>
#include <QTextEdit>

namespace {

// The layout of a table in a table takes twice as long with each level.
constexpr int kMostTables = 8;
// Far more than any screen shows.
constexpr int kMostCharacters = 100000;

bool isHarmless(const QString &text)
{
    static const QRegularExpression table(QStringLiteral("<\\s*table"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression file(QStringLiteral("<\\s*(img|link)|background|url\\s*\\(|@import"),
                                         QRegularExpression::CaseInsensitiveOption);
    return text.count(table) <= kMostTables && !text.contains(file);
}

} // namespace

void setHostText(QTextEdit *edit, const QString &hostText)
{
    const QString text = hostText.left(kMostCharacters);
    if (Qt::mightBeRichText(text) && !isHarmless(text)) {
        edit->setPlainText(text);
    } else {
        edit->setText(text);
    }
}
