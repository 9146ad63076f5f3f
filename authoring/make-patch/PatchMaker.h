#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <string>

/// Makes the patches that StringPatch applies.
class PatchMaker
{
public:
    PatchMaker() = delete;

    /// Hears how many bytes of the target are done, of how many. A target of less than a MiB is not reported.
    using Progress = std::function<void(std::size_t done, std::size_t size)>;

    /// Makes in @p patch a small patch that turns @p base into @p target, and proves it by applying it. Takes
    /// time in proportion to the two lengths.
    ///
    /// False, with the reason in @p error and @p patch as it was, when the two have more than 1 GiB
    /// together.
    static bool makePatch(const std::string &base, const std::string &target, QByteArray &patch,
                          QString &error, const Progress &progress = {});
};
