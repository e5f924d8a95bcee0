// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ProcInfo.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "platform/files/Descriptor.h"
#include "platform/linux/ProcStat.h"

namespace selvane {
namespace {

constexpr std::string_view kDeletedMark = " (deleted)";
constexpr std::size_t kFirstBufferSize = 16384;

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

/// Calls `use` for each NUL-terminated part of `bytes`; the last may lack its NUL.
template <typename Use>
void forEachTerminated(std::string_view bytes, Use use) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\0');
        use(bytes.substr(0, end));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
}

std::vector<std::string> splitArguments(std::string_view bytes) {
    std::vector<std::string> arguments;
    forEachTerminated(bytes, [&](std::string_view argument) { arguments.emplace_back(argument); });
    return arguments;
}

template <typename IsKept>
std::map<std::string, std::string> splitEnvironment(std::string_view bytes, IsKept isKept) {
    std::map<std::string, std::string> environment;
    forEachTerminated(bytes, [&](std::string_view variable) {
        const std::size_t sign = variable.find('=');
        if (sign != std::string_view::npos && isKept(variable.substr(0, sign)))
            environment.insert_or_assign(std::string(variable.substr(0, sign)),
                                         std::string(variable.substr(sign + 1)));
    });
    return environment;
}

/// Reads processes one after another into one buffer.
class ProcReader {
public:
    ProcReader() : m_table(::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

    /// All names in the process table, including those that aren't processes.
    template <typename Use>
    void forEachName(Use use) const {
        files::forEachEntry(m_table.get(), [&](const char* name, unsigned char) { use(name); });
    }

    /// Once open, the folder stands for this very process: if a later process gets the same pid, the files in
    /// it are gone.
    bool open(const char* pid) {
        m_process = files::Descriptor(::openat(m_table.get(), pid, O_PATH | O_DIRECTORY | O_CLOEXEC));
        return static_cast<bool>(m_process);
    }

    std::optional<ProcStat> stat() { return ProcStat::parse(contents("stat")); }

    template <typename IsKept>
    std::optional<ProcInfo> info(std::int32_t pid, IsKept isKept) {
        std::optional<std::string> path = executable();
        if (!path)
            return std::nullopt;
        ProcInfo info;
        info.pid = pid;
        info.path = std::move(*path);
        if (const std::optional<ProcStat> status = stat()) {
            info.ppid = status->ppid;
            info.session = status->session;
            info.startTime = status->startTime;
        }
        info.args = splitArguments(contents("cmdline"));
        info.env = splitEnvironment(contents("environ"), isKept);
        return info;
    }

    std::int64_t bytesRead() {
        constexpr std::string_view kField = "rchar: ";
        const std::string_view fields = contents("io");
        const std::size_t begin = fields.find(kField);
        if (begin == std::string_view::npos)
            return 0;
        const std::string_view value = fields.substr(begin + kField.size());
        return parseNumber<std::int64_t>(value.substr(0, value.find('\n'))).value_or(0);
    }

    std::vector<std::string> openFiles(FileUse use) const {
        const files::Descriptor folder(::openat(m_process.get(), "fd", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        std::vector<std::string> paths;
        std::array<char, PATH_MAX> target;
        files::forEachEntry(folder.get(), [&](const char* name, unsigned char) {
            const std::string_view path = readLink(folder.get(), name, target);
            if (path.starts_with('/') && (use == FileUse::any || isForWriting(folder.get(), name)))
                paths.emplace_back(path);
        });
        return paths;
    }

private:
    /// The permissions of these links say how the file was opened.
    static bool isForWriting(int folder, const char* name) {
        struct stat status = {};
        return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && (status.st_mode & S_IWUSR) != 0;
    }

    /// Empty on failure. The kernel never gives more text than fits.
    static std::string_view readLink(int folder, const char* name, std::array<char, PATH_MAX>& target) {
        const ssize_t size = ::readlinkat(folder, name, target.data(), target.size());
        return {target.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
    }

    std::optional<std::string> executable() const {
        std::array<char, PATH_MAX> target;
        std::string_view path = readLink(m_process.get(), "exe", target);
        if (!path.starts_with('/'))
            return std::nullopt;
        // The application has been upgraded while running.
        if (path.ends_with(kDeletedMark))
            path.remove_suffix(kDeletedMark.size());
        return std::string(path);
    }

    /// Valid until the next call; empty if it can't be read.
    std::string_view contents(const char* name) {
        const files::Descriptor file(::openat(m_process.get(), name, O_RDONLY | O_CLOEXEC));
        if (!file)
            return {};
        std::size_t filled = 0;
        for (;;) {
            const ssize_t count = ::read(file.get(), m_buffer.data() + filled, m_buffer.size() - filled);
            filled += count > 0 ? static_cast<std::size_t>(count) : 0;
            // The kernel fills the buffer as far as it can, so space left over means the end.
            if (count <= 0 || filled < m_buffer.size())
                return {m_buffer.data(), filled};
            m_buffer.resize(m_buffer.size() * 2);
        }
    }

    files::Descriptor m_table;
    files::Descriptor m_process;
    std::vector<char> m_buffer = std::vector<char>(kFirstBufferSize);
};

} // namespace

std::optional<ProcStat> ProcStat::parse(std::string_view line) {
    // The command name may contain spaces and parentheses; the fields after it never do.
    const std::size_t nameEnd = line.rfind(')');
    if (nameEnd == std::string_view::npos)
        return std::nullopt;
    constexpr std::size_t kState = 3, kParent = 4, kSession = 6,
                          kStartTime = 22; // field numbers as in the kernel's documentation
    std::array<std::string_view, kStartTime + 1> fields;
    std::size_t position = nameEnd + 1;
    for (std::size_t field = kState; field <= kStartTime; ++field) {
        if (position >= line.size() || line[position] != ' ')
            return std::nullopt;
        const std::size_t end = line.find_first_of(" \n", position + 1);
        fields[field] = line.substr(position + 1, end - position - 1);
        position = end;
    }
    const auto parent = parseNumber<std::int32_t>(fields[kParent]);
    const auto session = parseNumber<std::int32_t>(fields[kSession]);
    const auto startTime = parseNumber<std::uint64_t>(fields[kStartTime]);
    if (fields[kState].size() != 1 || !parent || !session || !startTime)
        return std::nullopt;
    return ProcStat{fields[kState].front(), *parent, *session, *startTime};
}

std::optional<ProcStat> ProcStat::read(std::int32_t pid) {
    ProcReader reader;
    return reader.open(std::to_string(pid).c_str()) ? reader.stat() : std::nullopt;
}

std::optional<ProcInfo> ProcInfo::read(std::int32_t pid) {
    ProcReader reader;
    return reader.open(std::to_string(pid).c_str()) ? reader.info(pid, [](std::string_view) { return true; })
                                                    : std::nullopt;
}

std::vector<ProcInfo> ProcInfo::all(std::span<const std::string_view> variables) {
    const auto isWanted = [&](std::string_view name) { return isKept(name, variables); };
    std::vector<ProcInfo> processes;
    ProcReader reader;
    reader.forEachName([&](const char* name) {
        const auto number = parseNumber<std::int32_t>(name);
        if (!number || !reader.open(name))
            return;
        if (std::optional<ProcInfo> process = reader.info(*number, isWanted))
            processes.push_back(std::move(*process));
    });
    return processes;
}

std::vector<std::string> ProcInfo::openFiles(std::int32_t pid, FileUse use) {
    ProcReader reader;
    return reader.open(std::to_string(pid).c_str()) ? reader.openFiles(use) : std::vector<std::string>();
}

std::int64_t ProcInfo::bytesRead(std::int32_t pid) {
    ProcReader reader;
    return reader.open(std::to_string(pid).c_str()) ? reader.bytesRead() : 0;
}

std::uint64_t ProcInfo::startTimePerSecond() {
    return static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));
}

/// The kernel counts ticks since boot.
std::uint64_t ProcInfo::startTimeAt(std::chrono::system_clock::time_point moment) {
    using namespace std::chrono;
    timespec sinceBoot = {};
    ::clock_gettime(CLOCK_BOOTTIME, &sinceBoot);
    const nanoseconds uptime = seconds(sinceBoot.tv_sec) + nanoseconds(sinceBoot.tv_nsec);
    const nanoseconds then = uptime - (system_clock::now() - moment);
    const auto ticks = duration<double>(then).count() * static_cast<double>(startTimePerSecond());
    return ticks < 0 ? 0 : static_cast<std::uint64_t>(ticks);
}

} // namespace selvane
