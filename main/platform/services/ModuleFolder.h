// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// Where a module of this installation is, or would be: beside the executable, as in a build tree, otherwise
/// in `../lib/selvane`, or in `../Frameworks` in a macOS bundle.
std::filesystem::path modulePath(const std::string& fileName);

/// The same for other files and folders: beside the executable, otherwise in `../share/selvane`, or in
/// `../Resources` in a macOS bundle.
std::filesystem::path resourcePath(const std::string& name);

/// How an installation is laid out on this system.
struct InstallationLayout {
    std::filesystem::path executable; ///< of this process, links resolved
    const char* modules;              ///< relative to the parent of the executable's folder
    const char* resources;            ///< likewise
};
InstallationLayout installationLayout();

} // namespace selvane
