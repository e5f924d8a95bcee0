// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/LockHolder.h"

#include <charconv>
#include <sstream>
#include <string_view>
#include <sys/sysmacros.h>

#include "platform/files/FileManager.h"
#include "platform/linux/ProcStat.h"

namespace selvane {
namespace {

/// A line such as "1: FLOCK  ADVISORY  WRITE 17730 fe:00:10954912 0 EOF". One that begins with "->" waits.
struct LockLine {
    std::string number, kind, strictness, mode, pid, file;
};

template <typename Number>
Number numberIn(std::string_view text, int base = 10) {
    Number number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, base);
    return number;
}

/// Whether `file`, written as "major:minor:inode", could be the one `status` describes. Some file systems
/// show other device numbers there than in a status, so `isExact` says whether those count.
bool isSame(std::string_view file, const struct stat& status, bool isExact) {
    const std::size_t first = file.find(':');
    const std::size_t second = file.find(':', first + 1);
    if (second == std::string_view::npos || numberIn<ino_t>(file.substr(second + 1)) != status.st_ino)
        return false;
    return !isExact || (numberIn<unsigned>(file.substr(0, first), 16) == major(status.st_dev) &&
                        numberIn<unsigned>(file.substr(first + 1, second), 16) == minor(status.st_dev));
}

std::string nameOf(std::int32_t pid) {
    std::string name = FileManager().readIfPossible("/proc/" + std::to_string(pid) + "/comm").value_or("");
    if (name.ends_with('\n'))
        name.pop_back();
    return name;
}

} // namespace

std::optional<LockHolder> LockHolder::of(const struct stat& status) {
    const std::string locks = FileManager().readIfPossible("/proc/locks").value_or("");
    for (const bool isExact : {true, false}) {
        std::istringstream lines(locks);
        for (std::string line; std::getline(lines, line);) {
            LockLine lock;
            std::istringstream(line) >> lock.number >> lock.kind >> lock.strictness >> lock.mode >>
                lock.pid >> lock.file;
            const auto pid = numberIn<std::int32_t>(lock.pid);
            if (lock.kind != "FLOCK" || pid <= 0 || !isSame(lock.file, status, isExact))
                continue;
            const auto stat = ProcStat::read(pid);
            return LockHolder{pid, nameOf(pid), stat && (stat->state == 'T' || stat->state == 't')};
        }
    }
    return std::nullopt;
}

} // namespace selvane
