// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// A session record prepared for another account: without the connections and tools of the account it leaves.
/// If the record isn't JSON, throws a `JsonError` that names `file`.
std::string withoutAccount(const std::string& record, const std::filesystem::path& file);

} // namespace selvane
