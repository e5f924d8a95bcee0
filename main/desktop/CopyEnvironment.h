// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/OpenCopies.h"
#include "platform/process/ProcessFamily.h"

namespace selvane {

/// The environment that the main process of a copy was started with. Most wipe their own; then other
/// processes tell what it was: crash handlers, and what the copy has started.
class CopyEnvironment {
public:
    /// They must live longer. `dataDir` is the copy's data folder, empty when it isn't known yet.
    CopyEnvironment(const CopyEvidence& evidence, const ProcessFamily& family, const ProcInfo& main,
                    const std::string& dataDir);

    /// The normal data folder of the home that it was given, `otherwise` when that can't be told.
    std::string normalDataDir(const std::string& otherwise) const;
    /// Sets the configuration, as far as it can be told.
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
