// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files/FileManager.h"
#include "support/TemporaryFolder.h"

/// What the tests of the file operations share.
namespace selvane::test {

inline const FileManager kFiles;

inline struct stat statusOf(const std::filesystem::path& path) {
    struct stat status = {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

inline mode_t modeOf(const std::filesystem::path& path) {
    return statusOf(path).st_mode & 07777;
}

inline void makeFile(const std::filesystem::path& file, const std::string& text, mode_t mode) {
    kFiles.write(file, text);
    kFiles.setMode(file, mode);
}

/// The error code with which `operation` fails.
template <typename Operation>
int failure(Operation operation) {
    try {
        operation();
    } catch (const std::filesystem::filesystem_error& error) {
        return error.code().value();
    }
    return 0;
}

/// Whether `check` holds for an unprivileged user.
template <typename Check>
bool holdsUnprivileged(const TemporaryFolder& folder, Check check) {
    constexpr uid_t kNobody = 65534;
    if (::geteuid() != 0)
        return check();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
        EXPECT_EQ(::lchown(entry.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(::lchown(folder.path().c_str(), kNobody, kNobody), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // An exception must end the child, or it would continue with the other tests.
        const auto holds = [&]() noexcept { return check(); };
        ::_exit(::setgid(kNobody) == 0 && ::setuid(kNobody) == 0 && holds() ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status == 0;
}

} // namespace selvane::test
