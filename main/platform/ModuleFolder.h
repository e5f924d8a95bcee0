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

} // namespace selvane
