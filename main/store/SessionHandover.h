// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// The bytes of a session record for another account: without what describes connections and tools of the
/// account that it leaves. A record that is no JSON throws a `JsonError` that names `file`.
std::string withoutAccount(const std::string& record, const std::filesystem::path& file);

} // namespace selvane
