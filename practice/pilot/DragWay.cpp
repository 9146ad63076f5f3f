#include "pilot/DragWay.h"

#include "lesson/LessonWords.h"

#include <QRegularExpression>

namespace {

// Three cells to the side and two up or down.
constexpr int kAside = 96;
constexpr int kUpOrDown = 64;

bool says(const QString &words, const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption).match(words).hasMatch();
}

/// The part of the hint that tells of the drag. English names the direction behind the word, and may name a
/// button of the mouse before it.
QString partAboutTheDrag(const QString &hint)
{
    static const QRegularExpression ends(QStringLiteral("[.,;:!?、，。；：！？\n]"));
    const QStringList parts = hint.split(ends);
    for (const QString &part : parts) {
        if (LessonWords::saysDrag(part)) {
            return part.mid(qMax(0, part.indexOf(QLatin1String("drag"), 0, Qt::CaseInsensitive)));
        }
    }
    return hint;
}

} // namespace

QPoint dragWay(const QString &hint)
{
    const QString words = partAboutTheDrag(hint);
    const int aside = int(says(words, QStringLiteral("\\bright\\b|右"))) -
                      int(says(words, QStringLiteral("\\bleft\\b|左")));
    const int down = int(says(words, QStringLiteral("\\b(down|lower|below)\\b|下"))) -
                     int(says(words, QStringLiteral("\\b(up|upper|above)\\b|上")));
    const bool isTold = aside != 0 || down != 0;
    return isTold ? QPoint(aside * kAside, down * kUpOrDown) : QPoint(kAside, kUpOrDown);
}
