#include "make-patch/MatchFinder.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::int32_t kNowhere = -1;

int hashBitsFor(std::size_t places)
{
    int bits = 10;
    while (bits < 24 && (std::size_t(1) << bits) < places) {
        ++bits;
    }
    return bits;
}

} // namespace

MatchFinder::MatchFinder(std::string_view text)
    : m_text(text)
    , m_hashBits(hashBitsFor(text.size()))
    , m_long{32, 32, {}, {}}
    , m_short{5, 64, {}, {}}
{
    for (Chains *chains : {&m_long, &m_short}) {
        chains->latest.assign(std::size_t(1) << m_hashBits, kNowhere);
        chains->before.assign(text.size(), kNowhere);
    }
}

std::size_t MatchFinder::hash(const Chains &chains, std::size_t place) const
{
    constexpr std::uint64_t kFactor = 0x9e3779b97f4a7c15U;
    std::uint64_t sum = 0;
    for (std::size_t at = 0; at < chains.width; at += sizeof(std::uint64_t)) {
        std::uint64_t part = 0;
        std::memcpy(&part, m_text.data() + place + at, std::min(chains.width - at, sizeof(part)));
        sum = (sum ^ part) * kFactor;
        sum ^= sum >> 32;
    }
    return std::size_t((sum * kFactor) >> (64 - m_hashBits));
}

void MatchFinder::addTo(Chains &chains, std::size_t begin, std::size_t end)
{
    if (m_text.size() < chains.width) {
        return;
    }
    end = std::min(end, m_text.size() - chains.width + 1);
    for (std::size_t place = begin; place < end; ++place) {
        std::int32_t &latest = chains.latest[hash(chains, place)];
        chains.before[place] = latest;
        latest = std::int32_t(place);
    }
}

void MatchFinder::add(std::size_t begin, std::size_t end)
{
    addTo(m_long, begin, end);
    addTo(m_short, begin, end);
}

MatchFinder::Match MatchFinder::matchAt(std::string_view text, std::size_t place, std::size_t source)
{
    const char *earlier = text.data() + source;
    const char *later = text.data() + place;
    const std::size_t most = text.size() - place;
    return {source, std::size_t(std::mismatch(later, later + most, earlier).first - later)};
}

MatchFinder::Match MatchFinder::findIn(const Chains &chains, std::size_t place, Match best) const
{
    if (m_text.size() - place < chains.width) {
        return best;
    }
    int tries = chains.tries;
    std::int32_t source = chains.latest[hash(chains, place)];
    for (; source != kNowhere && tries > 0 && best.length < kLongEnough; --tries) {
        const Match match = matchAt(m_text, place, std::size_t(source));
        // Of two that are as long, the one nearer to the beginning takes the smaller number to name.
        if (match.length > best.length || (match.length == best.length && match.source < best.source)) {
            best = match;
        }
        source = chains.before[std::size_t(source)];
    }
    return best;
}

MatchFinder::Match MatchFinder::find(std::size_t place, Match atLeast) const
{
    return findIn(m_short, place, findIn(m_long, place, atLeast));
}
