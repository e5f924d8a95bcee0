// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/TreeComparison.h"

#include <algorithm>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"

namespace selvane::files {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBufferSize = 65536;

struct stat statusOf(const fs::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0)
        fail("compare", path, errno);
    return status;
}

/// An open file, read in pieces.
class Contents {
public:
    explicit Contents(const fs::path& path)
        : m_path(path), m_file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC)),
          m_bytes(kBufferSize) {
        if (!m_file)
            fail("compare", path, errno);
    }

    /// Full except for the last piece; empty at the end.
    std::string_view next() {
        std::size_t used = 0;
        while (used < m_bytes.size()) {
            const ssize_t count = ::read(m_file.get(), m_bytes.data() + used, m_bytes.size() - used);
            if (count == 0)
                break;
            if (count > 0)
                used += static_cast<std::size_t>(count);
            else if (errno != EINTR)
                fail("compare", m_path, errno);
        }
        return {m_bytes.data(), used};
    }

private:
    const fs::path& m_path;
    Descriptor m_file;
    std::vector<char> m_bytes;
};

bool haveSameContents(const fs::path& first, const fs::path& second) {
    Contents one(first);
    Contents other(second);
    while (true) {
        const std::string_view piece = one.next();
        if (piece != other.next())
            return false;
        if (piece.empty())
            return true;
    }
}

std::vector<std::string> sortedEntries(const fs::path& folder) {
    std::vector<std::string> names = FileManager().entries(folder);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

bool beginsWith(const fs::path& file, const fs::path& beginning) {
    Contents whole(file);
    Contents part(beginning);
    while (true) {
        const std::string_view piece = part.next();
        if (piece.empty())
            return true;
        if (!whole.next().starts_with(piece))
            return false;
    }
}

bool isCopy(const fs::path& original, const fs::path& copy) {
    std::vector<fs::path> left = {fs::path()}; // below both
    while (!left.empty()) {
        const fs::path below = std::move(left.back());
        left.pop_back();
        const fs::path first = below.empty() ? original : original / below;
        const fs::path second = below.empty() ? copy : copy / below;
        const struct stat one = statusOf(first);
        const struct stat other = statusOf(second);
        if ((one.st_mode & S_IFMT) != (other.st_mode & S_IFMT))
            return false;
        if (S_ISREG(one.st_mode) && (one.st_size != other.st_size || !haveSameContents(first, second)))
            return false;
        if (S_ISLNK(one.st_mode) && fs::read_symlink(first) != fs::read_symlink(second))
            return false;
        if (S_ISDIR(one.st_mode)) {
            const std::vector<std::string> names = sortedEntries(first);
            if (names != sortedEntries(second))
                return false;
            for (const std::string& name : names)
                left.push_back(below / name);
        }
    }
    return true;
}

} // namespace selvane::files
