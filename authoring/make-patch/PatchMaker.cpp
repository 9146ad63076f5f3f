#include "make-patch/PatchMaker.h"

#include "make-patch/MatchFinder.h"
#include "tool/StringPatch.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

constexpr std::size_t kMostPerOperation = 65536;
constexpr std::size_t kMostPerShortOperation = 256;
// Half of what the format can address: the search takes many times this in memory.
constexpr std::size_t kMostTogether = std::size_t(1) << 30;
// What a match of at least this length covers is not searched again: the place it came from is.
constexpr std::size_t kLongMatch = 32;
// After so many bytes without a match the search begins to leave places out, more of them the longer it finds
// nothing: in bytes that never repeat each search is in vain and slow. A match begins before the place where
// it is found all the same, since it is followed back.
constexpr std::size_t kPatience = 4096;
constexpr std::size_t kLongestStride = 64;
constexpr std::size_t kBetweenReports = std::size_t(1) << 20;

std::size_t offsetWidth(std::size_t offset)
{
    if (offset < 0x10000) {
        return 2;
    }
    return offset < 0x1000000 ? 3 : 4;
}

std::size_t lengthWidth(std::size_t length)
{
    return length <= kMostPerShortOperation ? 1 : 2;
}

/// What a copy takes in the patch, in bytes.
std::size_t copyCost(MatchFinder::Match match)
{
    std::size_t cost = 0;
    while (match.length > 0) {
        const std::size_t piece = std::min(match.length, kMostPerOperation);
        cost += 1 + offsetWidth(match.source) + lengthWidth(piece);
        match.source += piece;
        match.length -= piece;
    }
    return cost;
}

/// Writes operations, each in its smallest form.
class PatchWriter
{
public:
    explicit PatchWriter(std::size_t targetSize) { number(targetSize, 4); }

    void insert(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const std::string_view piece = bytes.substr(0, kMostPerOperation);
            const std::size_t width = lengthWidth(piece.size());
            number(width - 1, 1); // the tag
            number(piece.size() - 1, width);
            m_patch.append(piece.data(), int(piece.size()));
            bytes.remove_prefix(piece.size());
        }
    }

    void copy(MatchFinder::Match match)
    {
        while (match.length > 0) {
            const std::size_t piece = std::min(match.length, kMostPerOperation);
            const std::size_t width = offsetWidth(match.source);
            number(250 + 2 * (4 - width) + 2 - lengthWidth(piece), 1); // the tag
            number(match.source, width);
            number(piece - 1, lengthWidth(piece));
            match.source += piece;
            match.length -= piece;
        }
    }

    [[nodiscard]] const QByteArray &patch() const { return m_patch; }

private:
    void number(std::size_t value, std::size_t width)
    {
        for (; width > 0; --width, value >>= 8) {
            m_patch.append(char(value & 0xff));
        }
    }

    QByteArray m_patch;
};

/// Goes through the target from front to back, and at each place either copies the best match or leaves a
/// byte to be inserted.
class Differ
{
public:
    Differ(const std::string &base, const std::string &target)
        : m_baseSize(base.size())
        , m_targetSize(target.size())
        , m_text(base + target)
        // Zeros at the end need no operation.
        , m_view(std::string_view(m_text).substr(0, base.size() + target.find_last_not_of('\0') + 1))
        , m_writer(target.size())
        , m_distance(base.size())
        , m_literals(base.size())
    {
    }

    QByteArray patch(const PatchMaker::Progress &progress) &&
    {
        std::size_t place = m_baseSize;
        std::size_t report = place;
        while (place < m_view.size()) {
            if (progress && m_targetSize >= kBetweenReports && place >= report) {
                progress(place - m_baseSize, m_targetSize);
                report = place + kBetweenReports;
            }
            const std::size_t end = copyTo(place);
            const std::size_t next = end > place ? end : std::min(place + stride(place), m_view.size());
            if (m_finder && (end == place || end - place < kLongMatch)) {
                m_finder->add(place, next);
            }
            place = next;
        }
        m_writer.insert(m_view.substr(m_literals));
        return m_writer.patch();
    }

private:
    /// How far to go on from @p place, where no match is.
    [[nodiscard]] std::size_t stride(std::size_t place) const
    {
        return std::clamp((place - m_literals) / kPatience, std::size_t(1), kLongestStride);
    }

    /// The best match for @p place. The two likeliest are tried first: an edit leaves what follows it either
    /// at the distance that the last copy had, or as far from the end as it was.
    [[nodiscard]] MatchFinder::Match bestMatch(std::size_t place)
    {
        MatchFinder::Match best;
        for (const std::size_t distance : {m_distance, m_targetSize}) {
            if (distance == 0 || distance > place) {
                continue;
            }
            const MatchFinder::Match match = MatchFinder::matchAt(m_view, place, place - distance);
            if (match.length > best.length) {
                best = match;
            }
        }
        if (best.length >= std::min(MatchFinder::kLongEnough, m_view.size() - place)) {
            return best;
        }
        if (!m_finder) {
            m_finder.emplace(m_view);
            m_finder->add(0, place);
        }
        return m_finder->find(place, best);
    }

    /// Writes a copy for @p place if that is shorter than to insert the bytes; returns where it ends, @p
    /// place if none is written.
    std::size_t copyTo(std::size_t place)
    {
        MatchFinder::Match match = bestMatch(place);
        const std::size_t asked = place;
        const std::size_t end = place + match.length;
        while (match.length > 0 && place > m_literals && match.source > 0 &&
               m_view[place - 1] == m_view[match.source - 1]) {
            --place;
            --match.source;
            ++match.length;
        }
        // A copy in the middle of an insert makes two inserts of it.
        const std::size_t newInsert = place > m_literals ? 2 : 0;
        if (match.length <= copyCost(match) + newInsert) {
            return asked;
        }
        m_writer.insert(m_view.substr(m_literals, place - m_literals));
        m_writer.copy(match);
        m_distance = place - match.source;
        m_literals = end;
        return end;
    }

    std::size_t m_baseSize;
    std::size_t m_targetSize;
    std::string m_text;
    std::string_view m_view; ///< Base and target, one behind the other, as offsets count.
    std::optional<MatchFinder>
        m_finder; ///< Made when it is needed first: a text that is unchanged does without.
    PatchWriter m_writer;
    std::size_t m_distance; ///< From the source of the last copy to where it went.
    std::size_t m_literals; ///< From here on nothing is written yet.
};

} // namespace

bool PatchMaker::makePatch(const std::string &base, const std::string &target, QByteArray &patch,
                           QString &error, const Progress &progress)
{
    if (base.size() + target.size() > kMostTogether) {
        error = QStringLiteral("base and target have %1 bytes together; more than %2 are not handled")
                    .arg(base.size() + target.size())
                    .arg(kMostTogether);
        return false;
    }
    const QByteArray made = Differ(base, target).patch(progress);
    std::string result;
    if (!StringPatch::ApplyStringPatch(base, made, result) || result != target) {
        error =
            QStringLiteral("the patch made does not give the target when it is applied; this is a fault of "
                           "the program");
        return false;
    }
    patch = made;
    return true;
}
