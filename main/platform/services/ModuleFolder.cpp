// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/ModuleFolder.h"

namespace selvane {

namespace fs = std::filesystem;

namespace {

fs::path installedPath(const InstallationLayout& layout, const char* folder, const std::string& name) {
    const fs::path here = layout.executable.parent_path();
    std::error_code error;
    fs::path beside = here / name;
    if (fs::exists(beside, error))
        return beside;
    return here.parent_path() / folder / name;
}

} // namespace

fs::path modulePath(const std::string& fileName) {
    const InstallationLayout layout = installationLayout();
    return installedPath(layout, layout.modules, fileName);
}

fs::path resourcePath(const std::string& name) {
    const InstallationLayout layout = installationLayout();
    return installedPath(layout, layout.resources, name);
}

} // namespace selvane
