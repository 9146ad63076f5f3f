#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Finds what in a text was there before: for a place, the earlier place whose bytes go on the same way for
/// longest.
///
/// Earlier places are found by the hash of the bytes that begin there, a few bytes long to find short matches
/// and many bytes long to find the long ones in a text that repeats itself all over. Only the latest few
/// dozen places of a hash are tried, so that time stays in proportion to length.
class MatchFinder
{
public:
    struct Match
    {
        std::size_t source = 0; ///< Where the earlier bytes begin.
        std::size_t length = 0; ///< In bytes; may reach beyond the place asked for, as the bytes then repeat.
    };

    /// A match as long as this is taken without a look for a longer one.
    static constexpr std::size_t kLongEnough = 2048;

    /// @p text has to live as long as the finder, and to be shorter than 2^31 bytes.
    explicit MatchFinder(std::string_view text);

    /// Lets matches begin at the places from @p begin on, up to @p end.
    void add(std::size_t begin, std::size_t end);
    /// The longest match for @p place that is found and no shorter than @p atLeast; otherwise @p atLeast.
    [[nodiscard]] Match find(std::size_t place, Match atLeast) const;
    /// The match in @p text for @p place that begins at @p source, which lies before it.
    [[nodiscard]] static Match matchAt(std::string_view text, std::size_t place, std::size_t source);

private:
    /// Places that share a hash, each with the one added before it.
    struct Chains
    {
        std::size_t width;                ///< Bytes that are hashed.
        int tries;                        ///< Places that are looked at.
        std::vector<std::int32_t> latest; ///< By hash.
        std::vector<std::int32_t> before; ///< By place.
    };

    [[nodiscard]] std::size_t hash(const Chains &chains, std::size_t place) const;
    void addTo(Chains &chains, std::size_t begin, std::size_t end);
    [[nodiscard]] Match findIn(const Chains &chains, std::size_t place, Match best) const;

    std::string_view m_text;
    int m_hashBits;
    Chains m_long;
    Chains m_short;
};
