// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/ModuleFolder.h"

namespace selvane {

InstallationLayout installationLayout() {
    std::error_code error;
    return {.executable = std::filesystem::read_symlink("/proc/self/exe", error),
            .modules = "lib/selvane",
            .resources = "share/selvane"};
}

} // namespace selvane
