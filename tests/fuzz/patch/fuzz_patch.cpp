// Feeds patches made by libFuzzer to the applier. Build with -DTUTORIAL_FUZZ=ON, then for a minute:
//
//     build/fuzz/fuzz/fuzz_patch -max_total_time=60 -max_len=4096

#include "tool/StringPatch.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace {

/// Larger targets are good patches that take long to fill; those beyond 31 bits are not filled at all.
constexpr std::uint32_t kLargestTarget = 1U << 20;
constexpr std::uint32_t kOverflowing = 1U << 31;

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void quiet(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    qInstallMessageHandler(&quiet);
    return 0;
}

/// The first byte says how many of the bytes behind it are the base; the rest is the patch.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::size_t baseSize = std::min<std::size_t>(data[0], size - 1);
    const char *bytes = reinterpret_cast<const char *>(data);
    const std::string base(bytes + 1, baseSize);
    const QByteArray patch(bytes + 1 + baseSize, int(size - 1 - baseSize));

    std::uint32_t targetSize = 0;
    if (patch.size() >= 4) {
        std::memcpy(&targetSize, patch.constData(), sizeof(targetSize));
    }
    if (targetSize > kLargestTarget && targetSize < kOverflowing) {
        return 0;
    }

    const std::string before = "as it was";
    std::string result = before;
    try {
        if (StringPatch::ApplyStringPatch(base, patch, result)) {
            expect(result.size() == targetSize);
            std::string again = base;
            expect(StringPatch::ApplyStringPatch(again, patch, again) && again == result);
        } else {
            expect(result == before);
        }
    } catch (const std::out_of_range &) {
        expect(result == before && targetSize >= kOverflowing);
    }
    return 0;
}
