// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/ModuleFolder.h"

namespace selvane {

namespace fs = std::filesystem;

namespace {

fs::path installedPath(const char* folder, const std::string& name) {
    std::error_code error;
    const fs::path here = fs::read_symlink("/proc/self/exe", error).parent_path();
    fs::path beside = here / name;
    if (fs::exists(beside, error))
        return beside;
    return here.parent_path() / folder / name;
}

} // namespace

fs::path modulePath(const std::string& fileName) {
    return installedPath("lib/selvane", fileName);
}

fs::path resourcePath(const std::string& name) {
    return installedPath("share/selvane", name);
}

} // namespace selvane
