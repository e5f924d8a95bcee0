// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// The one spelling in which a path is compared and handed on: absolute, without "." and ".." parts, doubled
/// or trailing slashes. Links stay in it, except where ".." follows one and leads to the parent of its
/// target.
std::string normalizedPath(const std::filesystem::path& path);

} // namespace selvane
