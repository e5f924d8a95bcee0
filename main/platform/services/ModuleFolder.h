// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// Where a module of this installation is, or would be: beside the executable as in a build tree, otherwise
/// in `../lib/selvane`, in a macOS bundle in `../Frameworks`.
std::filesystem::path modulePath(const std::string& fileName);

/// The same for a file or folder that is no code: beside the executable, otherwise in `../share/selvane`, in
/// a macOS bundle in `../Resources`.
std::filesystem::path resourcePath(const std::string& name);

/// What tells one system's installations from another's.
struct InstallationLayout {
    std::filesystem::path executable; ///< of this process, links resolved
    const char* modules;              ///< as seen from the folder above the executable's
    const char* resources;            ///< likewise
};
InstallationLayout installationLayout();

} // namespace selvane
