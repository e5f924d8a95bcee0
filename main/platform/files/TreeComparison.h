// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::files {

/// Whether a file, link or folder is a complete copy of another: the same kinds, names, contents and link
/// texts. Modes and times don't count. Throws if that can't be found out.
bool isCopy(const std::filesystem::path& original, const std::filesystem::path& copy);

/// Whether the content of a file begins with all that is in another, or is the same. Throws if that can't be
/// found out.
bool beginsWith(const std::filesystem::path& file, const std::filesystem::path& beginning);

} // namespace selvane::files
