#include "tool/StringPatch.h"

#include "tool/LogLine.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\tool\StringPatch.cpp)";
constexpr std::size_t kSizeWidth = 4; // of the length of the result, in bytes

/// Walks a patch from front to back; behind its end there is nothing.
class PatchReader
{
public:
    explicit PatchReader(const QByteArray &patch)
        : m_data(patch.constData())
        , m_left(std::size_t(patch.size()))
    {
    }

    [[nodiscard]] bool atEnd() const { return m_left == 0; }

    /// The number in the next @p width bytes. If the patch ends within them: none, and the rest is used up.
    std::optional<std::size_t> number(std::size_t width)
    {
        const std::string_view bytes = literals(width);
        if (bytes.size() < width) {
            return std::nullopt;
        }
        std::size_t value = 0;
        for (std::size_t i = width; i > 0; --i) {
            value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
        }
        return value;
    }

    /// The next @p count bytes, or as many as there are.
    std::string_view literals(std::size_t count)
    {
        const std::string_view bytes(m_data, std::min(count, m_left));
        m_data += bytes.size();
        m_left -= bytes.size();
        return bytes;
    }

private:
    const char *m_data;
    std::size_t m_left;
};

/// The text in the making. It is addressed as if it stood right behind the base in one buffer, but the base
/// is read where it is: writing only ever appends, so one reserved string is all the memory there is.
class PatchTarget
{
public:
    PatchTarget(std::string_view base, std::size_t size)
        : m_base(base)
        , m_size(size)
    {
        m_text.reserve(size);
    }

    void insert(std::string_view bytes) { m_text.append(bytes.substr(0, m_size - m_text.size())); }

    void copy(std::size_t offset, std::size_t count)
    {
        count = std::min(count, m_size - m_text.size());
        if (offset < m_base.size()) {
            const std::size_t fromBase = std::min(count, m_base.size() - offset);
            m_text.append(m_base.substr(offset, fromBase));
            offset = m_base.size();
            count -= fromBase;
        }
        offset -= m_base.size();
        // A source that runs into the place being written repeats what lies between the two. Each round
        // copies all that stands there by now, so the piece doubles from round to round.
        while (count > 0 && offset < m_text.size()) {
            const std::size_t piece = std::min(count, m_text.size() - offset);
            m_text.append(m_text, offset, piece);
            count -= piece;
        }
        m_text.append(count, '\0'); // a source that nothing has been written to yet
    }

    /// The whole text: what no operation wrote is zero.
    std::string take() &&
    {
        m_text.resize(m_size);
        return std::move(m_text);
    }

private:
    std::string_view m_base;
    std::size_t m_size;
    std::string m_text;
};

struct Operation
{
    std::size_t offsetWidth; ///< In bytes; 0 for an insert.
    std::size_t lengthWidth; ///< In bytes.
};

std::optional<Operation> operationOf(unsigned tag)
{
    switch (tag) {
    case 0:
        return Operation{0, 1};
    case 1:
        return Operation{0, 2};
    case 250:
        return Operation{4, 2};
    case 251:
        return Operation{4, 1};
    case 252:
        return Operation{3, 2};
    case 253:
        return Operation{3, 1};
    case 254:
        return Operation{2, 2};
    case 255:
        return Operation{2, 1};
    default:
        return std::nullopt;
    }
}

/// Carries out every operation. False, with a warning, on a tag that is none.
bool applyOperations(PatchReader &patch, PatchTarget &target)
{
    while (!patch.atEnd()) {
        const auto tag = static_cast<unsigned char>(patch.literals(1).front());
        const std::optional<Operation> operation = operationOf(tag);
        if (!operation) {
            logWarning(kSource, "StringPatch::ApplyStringPatch", 284) << "Invalid tag" << int(tag);
            return false;
        }
        const std::optional<std::size_t> offset = patch.number(operation->offsetWidth);
        const std::optional<std::size_t> length = patch.number(operation->lengthWidth);
        if (!offset || !length) {
            continue;
        }
        if (operation->offsetWidth == 0) {
            target.insert(patch.literals(*length + 1));
        } else {
            target.copy(*offset, *length + 1);
        }
    }
    return true;
}

} // namespace

bool StringPatch::ApplyStringPatch(std::string_view base, const QByteArray &patch, std::string &result)
{
    PatchReader reader(patch);
    const std::size_t size = reader.number(kSizeWidth).value_or(0);
    try {
        if (isPossibleSize(base.size(), size)) {
            PatchTarget target(base, size);
            if (!applyOperations(reader, target)) {
                return false;
            }
            result = std::move(target).take();
            return true;
        }
    } catch (const std::bad_alloc &) {
        logWarning(kSource, "StringPatch::ApplyStringPatch", 265) << "Not enough memory for" << size;
        return false;
    }
    if (!checkTags(patch)) {
        return false;
    }
    throw std::out_of_range("invalid string position");
}

std::size_t StringPatch::targetSize(const QByteArray &patch)
{
    return PatchReader(patch).number(kSizeWidth).value_or(0);
}

bool StringPatch::isPossibleSize(std::size_t baseSize, std::size_t targetSize)
{
    // Sizes are signed 32-bit values for all who read this format.
    return targetSize + baseSize <= std::size_t(std::numeric_limits<qint32>::max());
}

bool StringPatch::checkTags(const QByteArray &patch)
{
    PatchReader reader(patch);
    reader.number(kSizeWidth);
    PatchTarget nothing({}, 0);
    return applyOperations(reader, nothing);
}
