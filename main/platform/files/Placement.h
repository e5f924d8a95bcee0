// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane::files {

/// What something new takes the place of.
enum class Replaces { nothing, link, file };

/// Gives `temporary`, which is complete, its name `target`. A link that it replaces may get the temporary
/// name. Returns 0 or the error, which is EEXIST if anything is there that isn't to be replaced; that stays.
/// Only if another program prevents even this, it is kept beside `target` under a temporary name.
int place(const std::filesystem::path& temporary, const std::filesystem::path& target, Replaces replaces);

} // namespace selvane::files
