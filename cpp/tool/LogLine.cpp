#include "tool/LogLine.h"

namespace {

// Of one character or byte: \u and four digits.
constexpr int kLongestEscape = 6;
// Quotes, and what stands between the entries of a list.
constexpr int kAroundText = 4;
// Texts that are no longer than this are taken for as long as they may get.
constexpr int kMeasuredFrom = 1 << 20;
constexpr int kPiece = 1 << 16;

/// How many characters of the log @p text becomes, quotes included.
template<typename Text>
int writtenLength(const Text &text)
{
    QString written;
    QDebug(&written).nospace() << text;
    return written.size();
}

} // namespace

/// The front of @p text that the line still has room for.
template<typename Text>
Text LogLine::fitting(const Text &text)
{
    const qint64 most = qint64(text.size()) * kLongestEscape + kAroundText;
    if (most <= kMeasuredFrom && most <= m_left) {
        m_left -= most;
        return text;
    }
    int fits = 0;
    while (fits < text.size()) {
        const Text piece = text.mid(fits, kPiece);
        const int length = writtenLength(piece);
        if (length > m_left) {
            break;
        }
        m_left -= length;
        fits += piece.size();
    }
    return text.left(fits);
}

LogLine &LogLine::endOfCut(bool cut)
{
    if (cut) {
        m_stream << "(cut)";
        m_left = 0;
    }
    return *this;
}

LogLine &LogLine::operator<<(const QString &text)
{
    const QString front = fitting(text);
    m_stream << front;
    return endOfCut(front.size() < text.size());
}

LogLine &LogLine::operator<<(const QByteArray &bytes)
{
    const QByteArray front = fitting(bytes);
    m_stream << front;
    return endOfCut(front.size() < bytes.size());
}

LogLine &LogLine::operator<<(const QStringList &texts)
{
    QStringList fronts;
    fronts.reserve(texts.size());
    bool cut = false;
    for (const QString &text : texts) {
        fronts.append(fitting(text));
        cut = fronts.constLast().size() < text.size() || m_left <= 0;
        if (cut) {
            break;
        }
    }
    writeList(fronts);
    return endOfCut(cut);
}

LogLine &LogLine::operator<<(const QVariantMap &values)
{
    QVariantMap fronts = values;
    bool cut = false;
    for (QVariant &value : fronts) {
        if (value.userType() == QMetaType::QString) {
            const QString text = value.toString();
            const QString front = fitting(text);
            if (front.size() < text.size()) {
                value = front;
                cut = true;
            }
        }
    }
    m_stream << fronts;
    return endOfCut(cut);
}
