// Loaded ahead of the program's libraries, this stands between the program and Qt and writes down every
// bundle of resources that is registered, and by which file.

#include <cstdio>
#include <cstring>
#include <string>

#include <dlfcn.h>

namespace {

using Bytes = const unsigned char *;
constexpr const char *kSymbol = "_Z21qRegisterResourceDataiPKhS0_S0_";

// Names stand in the order of the tree: two bytes of length, four of hash, then UTF-16, all big-endian.
std::string firstName(Bytes names)
{
    const int length = names[0] * 256 + names[1];
    std::string name;
    for (int i = 0; i < length; ++i) {
        name += static_cast<char>(names[6 + 2 * i + 1]);
    }
    return name;
}

std::string fileOf(Bytes tree)
{
    Dl_info info;
    if (dladdr(tree, &info) == 0) {
        return "nobody";
    }
    const char *slash = std::strrchr(info.dli_fname, '/');
    return slash != nullptr ? slash + 1 : info.dli_fname;
}

} // namespace

// Qt's own function in name and form.
bool qRegisterResourceData(int version, Bytes tree, Bytes names, Bytes data);

bool qRegisterResourceData(int version, Bytes tree, Bytes names, Bytes data)
{
    std::fprintf(stderr, "%s registers %s in format %d\n", fileOf(tree).c_str(), firstName(names).c_str(),
                 version);
    static const auto registerForReal =
        reinterpret_cast<bool (*)(int, Bytes, Bytes, Bytes)>(dlsym(RTLD_NEXT, kSymbol));
    return registerForReal != nullptr && registerForReal(version, tree, names, data);
}
