// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/ModuleFolder.h"

namespace selvane {

namespace fs = std::filesystem;

namespace {

fs::path installedPath(const char* InstallationLayout::*folder, const std::string& name) {
    const InstallationLayout layout = installationLayout();
    const fs::path here = layout.executable.parent_path();
    std::error_code error;
    fs::path beside = here / name;
    if (fs::exists(beside, error))
        return beside;
    return here.parent_path() / layout.*folder / name;
}

} // namespace

fs::path modulePath(const std::string& fileName) {
    return installedPath(&InstallationLayout::modules, fileName);
}

fs::path resourcePath(const std::string& name) {
    return installedPath(&InstallationLayout::resources, name);
}

} // namespace selvane
