// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string_view>

#include "desktop/ClaudeArguments.h"
#include "desktop/OpenCopies.h"
#include "platform/process/ProcessFamily.h"

namespace selvane {

/// The variables that `CopyEnvironment` looks at, apart from those by which applications are recognised.
inline constexpr std::array<std::string_view, 8> kCopyVariables = {kConfigDirVariable,
                                                                   "HOME",
                                                                   "PATH",
                                                                   "XDG_CONFIG_HOME",
                                                                   "DISPLAY",
                                                                   "WAYLAND_DISPLAY",
                                                                   "XDG_RUNTIME_DIR",
                                                                   "DBUS_SESSION_BUS_ADDRESS"};

/// The environment that a copy's main process was started with. Most wipe theirs; then crash handlers and the
/// copy's child processes show what it was.
class CopyEnvironment {
public:
    /// The arguments must outlive this object. `dataDir` is the copy's data folder, empty if not yet known.
    CopyEnvironment(const CopyEvidence& evidence, const ProcessFamily& family, const ProcInfo& main,
                    const std::string& dataDir);

    /// The normal data folder in the copy's home folder, or `otherwise` if that is unknown.
    std::string normalDataDir(const std::string& otherwise) const;
    /// Sets the configuration if it can be determined.
    void tellConfig(OpenCopy& copy, const LaunchNote* note) const;

private:
    const ProcInfo* original() const;
    const ProcInfo* handedOn() const;
    bool isHandler(const ProcInfo& process) const;
    bool isNamedByHelper(std::int32_t handler) const;
    const ProcInfo* nearestHandler() const;

    const CopyEvidence& m_evidence;
    const ProcInfo& m_main;
    const std::string& m_dataDir;
    const std::vector<const ProcInfo*> m_descendants;
};

} // namespace selvane
