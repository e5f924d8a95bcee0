// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/CopyEnvironment.h"

#include <algorithm>

#include "platform/files/Locations.h"
#include "platform/files/NormalizedPath.h"
#include "platform/process/MainProcess.h"

namespace selvane {
namespace {

const std::string* variable(const ProcInfo& process, std::string_view name) {
    const auto found = process.env.find(std::string(name));
    return found == process.env.end() || found->second.empty() ? nullptr : &found->second;
}

/// A wiped environment is empty or holds part of the process's title.
bool hasEnvironment(const ProcInfo& process) {
    return variable(process, "HOME") || variable(process, "PATH") || variable(process, kConfigDirVariable);
}

/// Servers and tools are often started with only the few variables that every program needs. Session
/// variables show that a process inherited them all.
bool hasSessionEnvironment(const ProcInfo& process) {
    return variable(process, "DISPLAY") || variable(process, "WAYLAND_DISPLAY") ||
           variable(process, "DBUS_SESSION_BUS_ADDRESS") || variable(process, "XDG_RUNTIME_DIR");
}

bool isCrashHandler(const ProcInfo& process) {
    return process.path.ends_with("/chrome_crashpad_handler") && hasEnvironment(process);
}

std::string_view folderOf(const ProcInfo& process) {
    return std::string_view(process.path).substr(0, process.path.rfind('/'));
}

void setConfig(OpenCopy& copy, const ProcInfo& source) {
    const std::string* config = variable(source, kConfigDirVariable);
    copy.config = config == nullptr ? std::nullopt : std::optional(normalizedPath(*config));
    copy.isConfigKnown = true;
}

} // namespace

CopyEnvironment::CopyEnvironment(const CopyEvidence& evidence, const ProcessFamily& family,
                                 const ProcInfo& main, const std::string& dataDir)
    : m_evidence(evidence), m_main(main), m_dataDir(dataDir), m_descendants(family.descendants(main.pid)) {}

std::string CopyEnvironment::normalDataDir(const std::string& otherwise) const {
    const ProcInfo* source = original();
    if (source == nullptr)
        source = handedOn();
    if (source == nullptr || variable(*source, "HOME") == nullptr)
        return otherwise;
    return normalizedPath(applicationDataFolder(source->env, "Claude", [] { return true; }));
}

void CopyEnvironment::tellConfig(OpenCopy& copy, const LaunchNote* note) const {
    const auto namesConfig = [](const ProcInfo* process) {
        return variable(*process, kConfigDirVariable) != nullptr;
    };
    const auto below = std::find_if(m_descendants.begin(), m_descendants.end(), namesConfig);
    copy.isConfigKnown = true;
    if (const ProcInfo* source = original())
        setConfig(copy, *source);
    else if (note != nullptr && note->dataDir == copy.dataDir)
        copy.config = note->config;
    else if (below != m_descendants.end())
        setConfig(copy, **below);
    else if (const ProcInfo* handler = nearestHandler())
        setConfig(copy, *handler);
    else
        copy.isConfigKnown = handedOn() != nullptr;
}

/// The main process itself or its crash handler, which leaves the process tree but keeps its environment.
const ProcInfo* CopyEnvironment::original() const {
    if (hasEnvironment(m_main))
        return &m_main;
    const auto& all = m_evidence.processes;
    const auto handler = std::ranges::find_if(
        all, [this](const ProcInfo& each) { return isCrashHandler(each) && isHandler(each); });
    return handler == all.end() ? nullptr : &*handler;
}

/// The nearest descendant that inherited the whole environment.
const ProcInfo* CopyEnvironment::handedOn() const {
    const auto found = std::find_if(m_descendants.begin(), m_descendants.end(),
                                    [](const ProcInfo* each) { return hasSessionEnvironment(*each); });
    return found == m_descendants.end() ? nullptr : *found;
}

bool CopyEnvironment::isHandler(const ProcInfo& process) const {
    constexpr std::string_view kDatabase = "--database=";
    if (std::ranges::count(m_descendants, &process) > 0 || isNamedByHelper(process.pid))
        return true;
    if (process.startTime < m_main.startTime)
        return false;
    const bool writesThere = std::ranges::any_of(process.args, [&](const std::string& argument) {
        return argument.starts_with(kDatabase) && !m_dataDir.empty() &&
               m_evidence.folders.holding(std::string_view(argument).substr(kDatabase.size())) == m_dataDir;
    });
    const std::string* starter = variable(process, "GIO_LAUNCHED_DESKTOP_FILE_PID");
    return writesThere || (starter != nullptr && *starter == std::to_string(m_main.pid));
}

/// Helpers are given the pid of the crash handler.
bool CopyEnvironment::isNamedByHelper(std::int32_t handler) const {
    const std::string argument = "--crashpad-handler-pid=" + std::to_string(handler);
    return std::ranges::any_of(m_descendants, [&](const ProcInfo* process) {
        return std::ranges::any_of(process->args, [&](const std::string& text) {
            const std::size_t found = text.find(argument);
            const std::size_t end = found + argument.size();
            return found != std::string::npos && (end == text.size() || text[end] == ' ');
        });
    });
}

/// A crash handler from the same folder that started right after the main process, provided that no other
/// main process started around that time.
const ProcInfo* CopyEnvironment::nearestHandler() const {
    const std::uint64_t kWhile = 2 * ProcInfo::startTimePerSecond();
    const auto isSoonAfter = [&](const ProcInfo& later, const ProcInfo& earlier) {
        return later.startTime >= earlier.startTime && later.startTime <= earlier.startTime + kWhile;
    };
    for (const ProcInfo& handler : m_evidence.processes) {
        if (!isCrashHandler(handler) || folderOf(handler) != folderOf(m_main) ||
            !isSoonAfter(handler, m_main))
            continue;
        const auto others = std::ranges::count_if(m_evidence.processes, [&](const ProcInfo& other) {
            return other.pid != m_main.pid && other.path == m_main.path && canBeMainProcess(other) &&
                   isSoonAfter(handler, other);
        });
        if (others == 0)
            return &handler;
    }
    return nullptr;
}

} // namespace selvane
