// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Trash.h"

#include <array>
#include <cerrno>
#include <climits>
#include <string>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"
#include "platform/text/ErrorText.h"
#include "platform/text/Text.h"

namespace selvane {

using files::Descriptor;
using files::FileIdentity;

namespace {

/// Where something is that was opened under a former name: the Trash doesn't say under which name it keeps
/// what it takes, but the system follows an open file. Nothing if that can't be told.
std::optional<TrashedItem> placeOf(const Descriptor& item) {
    const std::string link = "/proc/self/fd/" + std::to_string(item.get());
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlink(link.c_str(), text.data(), text.size());
    if (size <= 0)
        return std::nullopt;
    TrashedItem found;
    found.place = std::string_view(text.data(), static_cast<std::size_t>(size));
    struct stat own = {};
    struct stat there = {};
    if (::fstat(item.get(), &own) != 0 || ::lstat(found.place.c_str(), &there) != 0)
        return std::nullopt;
    found.identity = FileIdentity::of(own);
    if (found.identity != FileIdentity::of(there))
        return std::nullopt;
    const std::filesystem::path files = found.place.parent_path();
    found.note = files.parent_path() / "info" / (found.place.filename().native() + ".trashinfo");
    if (files.filename() != "files" || ::lstat(found.note.c_str(), &there) != 0)
        return std::nullopt;
    return found;
}

} // namespace

std::optional<TrashedItem> moveToTrash(const std::filesystem::path& path) {
    const Descriptor item(::open(path.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    Received<std::string> received;
    const int error = desktopServices().trash(path.c_str(), appendBytes, &received);
    const std::string detail = text::singleLine(received.take());
    if (error == 0)
        return item ? placeOf(item) : std::nullopt;
    // The system's own words say more, in its own language.
    std::string reason = describe(std::error_code(error, std::generic_category()));
    if (!detail.empty())
        reason = error == EIO ? detail : reason + ": " + detail;
    throw LauncherError(text::singleLine(path.string()) + ": non può essere spostato nel Cestino (" + reason +
                        ")");
}

} // namespace selvane
