#pragma once

#include <QByteArray>

#include <cstddef>
#include <string>
#include <string_view>

/// Applies the binary patches that preset data is stored in.
///
/// All numbers in a patch are little-endian and unsigned. It begins with the length of the result in four
/// bytes; operations follow up to its end. An operation is a tag, an offset (copies only), a length less one,
/// and the literal bytes (inserts only):
///
///     tag   operation  offset bytes  length bytes
///     0     insert     -             1
///     1     insert     -             2
///     250   copy       4             2
///     251   copy       4             1
///     252   copy       3             2
///     253   copy       3             1
///     254   copy       2             2
///     255   copy       2             1
///
/// The offset of a copy counts from the start of the base, with the result standing right behind the base, so
/// that a copy can repeat what was written before, byte by byte in rising order: a source that runs into the
/// place being written repeats itself.
class StringPatch
{
public:
    StringPatch() = delete;

    /// Makes @p result from @p base and @p patch. The base is read in place, wherever it lies (a mapped file,
    /// or @p result itself), and is not needed afterwards. Bytes that no operation writes are zero.
    ///
    /// False, with a warning and @p result as it was, on a tag that is not in the table, or when there is no
    /// memory for the result. A corrupt patch is otherwise not an error, and harmless: an operation that the
    /// end of the patch cuts short gives what bytes there are, what goes beyond the result is dropped, what
    /// is read from behind the bytes written so far is zero.
    ///
    /// @throws std::out_of_range when base and result together exceed a signed 32-bit size, @p result as it
    /// was.
    static bool ApplyStringPatch(std::string_view base, const QByteArray &patch, std::string &result);

    /// The length in bytes that @p patch announces for its result; 0 when it ends within that number.
    [[nodiscard]] static std::size_t targetSize(const QByteArray &patch);

    /// Whether a base and a result of these sizes, in bytes, fit together into a signed 32-bit size: for
    /// others ApplyStringPatch throws.
    [[nodiscard]] static bool isPossibleSize(std::size_t baseSize, std::size_t targetSize);

    /// False, with the warning of ApplyStringPatch, on a tag that is not in the table. Takes no memory for a
    /// result.
    static bool checkTags(const QByteArray &patch);
};
