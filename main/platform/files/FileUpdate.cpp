// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <sys/stat.h>

#include "platform/files/DiskSync.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"
#include "platform/files/Temporary.h"
#include "platform/files/TreeComparison.h"

/// Changing a file that other programs change too.
namespace selvane {

using files::build;
using files::Descriptor;
using files::fail;
using files::isAnything;
using files::Temporary;

namespace {

/// Undoes an exchange that took away more than it should, even if `file` is replaced again meanwhile: in the
/// end, `temporary` is the file `own` describes again. If that fails, what is there is kept.
bool putBack(Temporary& temporary, const std::filesystem::path& file, const struct stat& own) {
    struct stat status = {};
    do {
        if (files::exchangeNames(temporary.path(), file) != 0 || !isAnything(temporary.path(), status)) {
            temporary.setPlaced();
            return false;
        }
    } while (status.st_dev != own.st_dev || status.st_ino != own.st_ino);
    return true;
}

} // namespace

bool FileManager::writeIfUnchanged(const std::filesystem::path& file,
                                   const std::optional<std::string>& expected, std::string_view bytes) const {
    Temporary temporary(file);
    struct stat own = {};
    build(temporary, file, [&](const std::filesystem::path& path) {
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        Descriptor open(::open(path.c_str(), kFlags, S_IRUSR | S_IWUSR));
        struct stat old = {};
        if (!open || ::fstat(open.get(), &own) != 0)
            fail("write", path, errno);
        int error = files::writeAll(open.get(), bytes);
        if (error == 0 && isAnything(file, old) && S_ISREG(old.st_mode))
            files::inherit(open.get(), file, old.st_mode, Privacy::ownerOnly);
        if (error == 0)
            error = files::syncOne(open.get());
        if (const int closing = open.closeReporting(); error == 0)
            error = closing;
        if (error != 0)
            fail("write", path, error);
    });
    if (!expected) {
        const int error = files::renameExclusively(temporary.path(), file);
        if (error != 0 && error != EEXIST)
            fail("write", file, error);
        if (error == 0) {
            temporary.setPlaced();
            waitForPlaceOf(file);
        }
        return error == 0;
    }
    if (readIfPresent(file) != expected)
        return false;
    int error = files::exchangeNames(temporary.path(), file);
    if (error == ENOTSUP)
        error = ::rename(temporary.path().c_str(), file.c_str()) == 0 ? 0 : errno;
    else if (error == 0 && readIfPossible(temporary.path()) != expected)
        error = putBack(temporary, file, own) ? EAGAIN : EEXIST;
    if (error == EAGAIN || error == ENOENT)
        return false;
    if (error != 0)
        fail("write", file, error);
    waitForPlaceOf(file);
    return true;
}

bool FileManager::removeIfUnchanged(const std::filesystem::path& file, std::string_view expected) const {
    if (readIfPresent(file) != expected)
        return false;
    Temporary aside(file);
    if (const int error = files::renameExclusively(file, aside.path()); error != 0)
        fail("remove", file, error);
    if (readIfPossible(aside.path()) != expected) {
        static_cast<void>(files::renameExclusively(aside.path(), file));
        aside.setPlaced();
        return false;
    }
    waitForPlaceOf(file);
    return true;
}

bool FileManager::replaceCopy(const std::filesystem::path& path, const std::filesystem::path& original,
                              const std::function<void(const std::filesystem::path& temporary)>& make) const {
    if (!files::isCopy(original, path))
        return false;
    Temporary temporary(path);
    build(temporary, path, make);
    struct stat own = {};
    if (!isAnything(temporary.path(), own))
        fail("replace", path, errno);
    const int error = files::exchangeNames(temporary.path(), path);
    if (error == ENOTSUP) { // one after the other
        if (!completeMove(path, original))
            return false;
        temporary.place(path);
        waitForPlaceOf(path);
        return true;
    }
    if (error != 0)
        fail("replace", path, error);
    bool isCopy = false;
    try {
        isCopy = files::isCopy(original, temporary.path());
    } catch (const std::filesystem::filesystem_error&) { // not certain: put it back
    }
    if (!isCopy) {
        putBack(temporary, path, own);
        return false;
    }
    waitForPlaceOf(path);
    return true;
}

} // namespace selvane
