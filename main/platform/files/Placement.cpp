// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Placement.h"

#include <cerrno>
#include <cstdio>
#include <unistd.h>

#include "platform/files/FileCopy.h"
#include "platform/files/Temporary.h"

namespace selvane::files {
namespace {

/// Where names can't be exchanged, neither is there for a moment.
int placeOverLinkInSteps(const std::filesystem::path& temporary, const std::filesystem::path& target) {
    const std::filesystem::path aside = newSibling(target);
    if (const int error = renameExclusively(target, aside); error != 0)
        return error;
    const int error = isLink(aside) ? renameExclusively(temporary, target) : EEXIST;
    if (error != 0)
        static_cast<void>(renameExclusively(aside, target));
    else
        ::unlink(aside.c_str());
    return error;
}

int placeOverLink(const std::filesystem::path& temporary, const std::filesystem::path& target) {
    const int error = exchangeNames(temporary, target);
    if (error == ENOTSUP)
        return placeOverLinkInSteps(temporary, target);
    if (error != 0)
        return error;
    if (isLink(temporary))
        return 0;
    // Something of the user's has replaced the link meanwhile. If it can't be put back, it must not go with
    // that folder.
    if (exchangeNames(temporary, target) != 0)
        static_cast<void>(renameExclusively(temporary, newSibling(target)));
    return EEXIST;
}

} // namespace

int place(const std::filesystem::path& temporary, const std::filesystem::path& target, Replaces replaces) {
    if (replaces == Replaces::link)
        return placeOverLink(temporary, target);
    if (replaces == Replaces::nothing)
        return renameExclusively(temporary, target);
    return ::rename(temporary.c_str(), target.c_str()) == 0 ? 0 : errno;
}

} // namespace selvane::files
