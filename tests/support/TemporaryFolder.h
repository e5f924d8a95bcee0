// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace selvane::test {

/// A new empty folder, removed at the end with everything in it. Its path contains no symbolic links. It is
/// in TMPDIR if that is set, and otherwise in memory if possible: on a disk, whoever makes and removes many
/// files waits for it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        namespace fs = std::filesystem;
        std::string name = fs::canonical(place()) / (kPrefix + "XXXXXX");
        if (::mkdtemp(name.data()) == nullptr)
            throw std::system_error(errno, std::generic_category(), name);
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { remove(m_path); }

    /// Whether a folder has the name of one.
    static bool isOne(const std::filesystem::path& folder) {
        return folder.filename().string().starts_with(kPrefix);
    }

    /// Removes one whatever its permissions, and those of the folders inside, are. Throws for any other
    /// folder.
    static void remove(const std::filesystem::path& folder) {
        if (!isOne(folder))
            throw std::logic_error("no temporary folder: " + folder.string());
        std::error_code ignored; // failing to remove something isn't the test's fault
        makeWritable(folder);
        std::filesystem::remove_all(folder, ignored);
    }

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::filesystem::path& path) const { return m_path / path; }

private:
    static inline const std::string kPrefix = "selvane-test-";

    static std::filesystem::path place() {
        constexpr const char* kMemory = "/dev/shm";
        const bool isInMemory = std::getenv("TMPDIR") == nullptr && ::access(kMemory, W_OK | X_OK) == 0;
        return isInMemory ? kMemory : std::filesystem::temp_directory_path();
    }

    /// Changes each folder before listing it: only then can the folders inside be reached.
    static void makeWritable(const std::filesystem::path& folder) {
        namespace fs = std::filesystem;
        std::error_code ignored;
        fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
        for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
            if (!entry.is_symlink(ignored) && entry.is_directory(ignored))
                makeWritable(entry.path());
        }
    }

    std::filesystem::path m_path;
};

} // namespace selvane::test
