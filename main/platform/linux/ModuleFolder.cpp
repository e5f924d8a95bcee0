// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/ModuleFolder.h"

namespace selvane {

namespace fs = std::filesystem;

fs::path modulePath(const std::string& fileName) {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    fs::path beside = folder / fileName;
    if (fs::exists(beside, error))
        return beside;
    return folder.parent_path() / "lib/selvane" / fileName;
}

} // namespace selvane
