// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ProcInfo.h"

#include <fcntl.h>
#include <sys/sysctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/macos/ProcessStart.h"
#include "platform/process/ProcessArguments.h"

namespace selvane {
namespace {

std::optional<std::string> executableOf(std::int32_t pid) {
    std::array<char, PROC_PIDPATHINFO_MAXSIZE> path = {};
    if (::proc_pidpath(pid, path.data(), static_cast<std::uint32_t>(path.size())) < 1)
        return std::nullopt;
    return path.data();
}

/// Empty if the kernel refuses, as it does for another user's process.
std::string argumentsArea(std::int32_t pid) {
    std::array<int, 3> name = {CTL_KERN, KERN_PROCARGS2, pid};
    constexpr auto kParts = static_cast<unsigned int>(name.size());
    std::size_t size = 0;
    if (::sysctl(name.data(), kParts, nullptr, &size, nullptr, 0) != 0)
        return {};
    std::string area(size, '\0');
    if (::sysctl(name.data(), kParts, area.data(), &size, nullptr, 0) != 0)
        return {};
    area.resize(std::min(size, area.size()));
    return area;
}

} // namespace

std::optional<proc_bsdinfo> processStatus(std::int32_t pid) {
    static_assert(sizeof(proc_bsdinfo) == PROC_PIDTBSDINFO_SIZE);
    proc_bsdinfo status = {};
    constexpr int kSize = sizeof status;
    if (::proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &status, kSize) != kSize)
        return std::nullopt;
    return status;
}

std::uint64_t startTimeOf(const proc_bsdinfo& status) {
    constexpr std::uint64_t kMicroseconds = 1'000'000;
    return status.pbi_start_tvsec * kMicroseconds + status.pbi_start_tvusec;
}

std::optional<ProcInfo> ProcInfo::read(std::int32_t pid) {
    std::optional<std::string> path = executableOf(pid);
    if (!path)
        return std::nullopt;
    ProcInfo info;
    info.pid = pid;
    info.path = std::move(*path);
    if (const auto status = processStatus(pid)) {
        info.ppid = static_cast<std::int32_t>(status->pbi_ppid);
        info.startTime = startTimeOf(*status);
    }
    info.session = std::max(::getsid(pid), 0);
    ProcessArguments started = processArguments(argumentsArea(pid));
    info.args = std::move(started.args);
    info.env = std::move(started.env);
    return info;
}

std::vector<ProcInfo> ProcInfo::all(std::span<const std::string_view> variables) {
    const int expected = ::proc_listallpids(nullptr, 0);
    if (expected < 1)
        return {};
    // More may start between the two calls.
    std::vector<pid_t> pids(2 * static_cast<std::size_t>(expected));
    const int listed = ::proc_listallpids(pids.data(), static_cast<int>(pids.size() * sizeof(pid_t)));
    pids.resize(std::min(pids.size(), static_cast<std::size_t>(std::max(listed, 0))));
    std::vector<ProcInfo> processes;
    for (const pid_t pid : pids) {
        std::optional<ProcInfo> process = pid > 0 ? read(pid) : std::nullopt;
        if (!process)
            continue;
        std::erase_if(process->env, [&](const auto& variable) { return !isKept(variable.first, variables); });
        processes.push_back(std::move(*process));
    }
    return processes;
}

std::vector<std::string> ProcInfo::openFiles(std::int32_t pid, FileUse use) {
    const int expected = ::proc_pidinfo(pid, PROC_PIDLISTFDS, 0, nullptr, 0);
    if (expected <= 0)
        return {};
    constexpr std::size_t kSpare = 64; // more may be opened between the two calls
    std::vector<proc_fdinfo> files(static_cast<std::size_t>(expected) / sizeof(proc_fdinfo) + kSpare);
    const int listed = ::proc_pidinfo(pid, PROC_PIDLISTFDS, 0, files.data(),
                                      static_cast<int>(files.size() * sizeof(proc_fdinfo)));
    files.resize(static_cast<std::size_t>(std::max(listed, 0)) / sizeof(proc_fdinfo));
    std::vector<std::string> paths;
    for (const proc_fdinfo& file : files) {
        vnode_fdinfowithpath info = {};
        constexpr int kSize = sizeof info;
        if (file.proc_fdtype == PROX_FDTYPE_VNODE &&
            ::proc_pidfdinfo(pid, file.proc_fd, PROC_PIDFDVNODEPATHINFO, &info, kSize) == kSize &&
            (use == FileUse::any || (info.pfi.fi_openflags & FWRITE) != 0))
            paths.emplace_back(info.pvip.vip_path);
    }
    return paths;
}

std::int64_t ProcInfo::bytesRead(std::int32_t pid) {
    rusage_info_v2 usage = {};
    const int error = ::proc_pid_rusage(pid, RUSAGE_INFO_V2, reinterpret_cast<rusage_info_t*>(&usage));
    return error == 0 ? static_cast<std::int64_t>(usage.ri_diskio_bytesread) : 0;
}

std::uint64_t ProcInfo::startTimePerSecond() {
    return 1'000'000;
}

/// The kernel gives the time of day, in microseconds.
std::uint64_t ProcInfo::startTimeAt(std::chrono::system_clock::time_point moment) {
    const auto since = std::chrono::duration_cast<std::chrono::microseconds>(moment.time_since_epoch());
    return static_cast<std::uint64_t>(std::max<std::int64_t>(since.count(), 0));
}

} // namespace selvane
